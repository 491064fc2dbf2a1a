"""The kinds whose payload is a JSON object alone, and what all readers of keys share."""

from descriptors import Descriptor, narrowed
from envelope import Keys, is_not_zero, is_one, is_zero, keys_of, to_int

TRAFFIC_TAG = "KavrixMapLayerMgr_BubbleTraffic"
CAMERA_TAG = "KavrixMapLayerMgr_CameraLayer"
PARSE_FAILED = b"parse json failed: "


def read_mode(keys, base):
    base["mode_flag"] = keys.flag("mode", base["mode_flag"], is_zero)


def read_direction(keys, base):
    base["direction"] = narrowed(keys.integer("direction", base["direction"]))


def read_integers(keys, members, *names):
    for name in names:
        members[name] = keys.integer(name, members[name])


def read_texts(keys, members, *names):
    for name in names:
        members[name] = keys.text(name, members[name])


def start(call, type_name, bubble_kind=None):
    call.out = Descriptor(type_name)
    if bubble_kind is not None:
        call.out.base["bubble_kind"] = bubble_kind
    return call.out.base, call.out.own


def keys_or_failure(call, marker_length, tag, function):
    payload = call.payload(marker_length)
    keys = keys_of(payload)
    if keys is None:
        call.log(1, tag, function, PARSE_FAILED, payload)
    return payload, keys


def read_direction_behind(call, text):
    """The number between "@" and the marker, in a text that holds both."""
    pieces = text.split(b".")
    if len(pieces) == 2:
        store_direction(call, pieces[0])


def store_direction(call, text):
    value = to_int(text)
    if value is not None:
        call.out.base["direction"] = narrowed(value)


def common_style(call, record_name):
    record = call.configuration.record(record_name)
    call.out.base.update(style_name=record.name, style_word=record.word(2), style_scale=(record.real(3),) * 2)


def traffic(call):
    base, own = start(call, "TrafficDrawDescriptor", 1)
    function = "ParseTrafficBubbleResourceName"
    _, keys = keys_or_failure(call, 14, TRAFFIC_TAG, function)
    if keys is None:
        return
    read_texts(keys, base, "content")
    read_direction(keys, base)
    read_mode(keys, base)
    read_texts(keys, own, "light_text")
    read_integers(keys, base, "scene")
    read_integers(keys, own, "extra_type")
    nav_mode = keys.integer("nav_mode", 1)
    if base["scene"] == 0:
        name = "traffic_style"
    else:
        name = "traffic_nav_style" if nav_mode == 1 else "traffic_scene_style"
    record = call.configuration.record(name)
    base.update(style_word=record.word(2), style_name=record.name, style_scale=(record.real(3),) * 2)
    first = 4 if base["mode_flag"] else 8
    for offset in range(3):
        own[f"style_float_{offset + 1}"] = record.real(first + offset)
    own["style_word_2"] = record.word(first + 3)
    call.log(0, TRAFFIC_TAG, function, call.out.base_log_text())


def camera(call):
    base, own = start(call, "CameraDrawDescriptor")
    function = "ParseCameraBubbleResourceName"
    _, keys = keys_or_failure(call, 13, CAMERA_TAG, function)
    if keys is None:
        return
    elements = [Keys(element) for element in keys.elements("cameras")]
    own["cameras"] = [{"type": each.integer("type", 0), "speed": each.integer("speed", 0)} for each in elements]
    read_integers(keys, base, "scene")
    base["selected"] = keys.flag("is_selected_", base["selected"], is_one)
    base["is_force"] = keys.flag("is_force_", base["is_force"], is_one)
    read_texts(keys, own, "snap_text")
    read_texts(keys, base, "lan")
    read_mode(keys, base)
    read_integers(keys, own, "distance")
    read_direction(keys, base)
    record = call.configuration.record("camera_style" if base["scene"] == 0 else "camera_scene_style")
    own["plain_style_values"] = [record.word(number) for number in (14, 15, 16)]
    own["mode_style_value"] = record.word(17 if base["mode_flag"] else 18)
    base["style_name"] = record.name
    call.log(0, CAMERA_TAG, function, call.out.log_text())


def route_explain(call):
    base, own = start(call, "ExplainBubbleDrawDescriptor")
    function = "ParseRouteExplainBubbleResourceName"
    _, keys = keys_or_failure(call, 19, CAMERA_TAG, function)
    if keys is None:
        return
    own["second_content"] = [line for line in keys.elements("second_content") if isinstance(line, bytes)]
    read_integers(keys, base, "scene")
    read_mode(keys, base)
    read_texts(keys, own, "uid")
    own["explain_content"] = keys.text("content", own["explain_content"])
    read_texts(keys, base, "icon", "lan")
    read_integers(keys, own, "second_type", "scene_type", "bubble_type")
    read_direction(keys, base)
    call.log(0, CAMERA_TAG, function, call.out.log_text())


def marker_bubble(call):
    base, _ = start(call, "BubbleDrawDescriptor", 0)
    _, keys = keys_or_failure(call, 13, TRAFFIC_TAG, "ParseMarkerBubbleResourceName")
    if keys is None:
        return
    read_integers(keys, base, "scene")
    read_mode(keys, base)
    read_direction(keys, base)
    read_texts(keys, base, "content")
    common_style(call, "marker_bubble")


def via_circle(call):
    base, own = start(call, "ViaPointDrawDescriptor", 20)
    _, keys = keys_or_failure(call, 16, TRAFFIC_TAG, "ParseViaCircleBubbleResourceName")
    if keys is None:
        return
    read_integers(keys, base, "scene")
    read_texts(keys, base, "lan")
    read_mode(keys, base)
    read_direction(keys, base)
    read_texts(keys, own, "route_id")
    read_integers(keys, own, "index")
    for flag in ("is_selected", "is_reached", "is_main_map"):
        own[flag] = keys.flag(flag, own[flag], is_not_zero)
    read_integers(keys, own, "resource_id")


def turn(call):
    function = "ParseTurnBubbleResourceName"
    call.log(0, "KavrixMapLayerMgr_TurnArrow", function, b" resource_name:", call.name)
    base, own = start(call, "TurnArrowBubbleDrawDescriptor")
    payload = call.payload(11)
    base["bubble_kind"] = 10
    base["style_name"] = call.configuration.record("turn_style").name
    keys = keys_of(payload)
    if keys is None:
        return
    base["is_force"] = keys.flag("is_force_", base["is_force"], is_one)
    base["type"] = narrowed(keys.integer("type", base["type"]))
    read_direction(keys, base)
    read_mode(keys, base)
    read_integers(keys, base, "scene")
    read_texts(keys, base, "lan")
    read_integers(keys, own, "distance")


def underground_park(call):
    base, _ = start(call, "BubbleDrawDescriptor", 25)
    function = "ParseUndergroundParkBubbleResourceName"
    payload, keys = keys_or_failure(call, 22, TRAFFIC_TAG, function)
    if keys is None:
        return
    call.log(1, TRAFFIC_TAG, function, payload)
    read_texts(keys, base, "lan")
    read_mode(keys, base)
    read_direction(keys, base)
    base["content"] = keys.text("name", base["content"])


def force_dot(call):
    forced(call, 27, b"ForceDot", 15, "ParseForceDotBubbleResourceName")


def force_poll(call):
    forced(call, 28, b"ForcePoll", 16, "ParseForcePollBubbleResourceName")


def forced(call, bubble_kind, content, marker_length, function):
    base, _ = start(call, "BubbleDrawDescriptor", bubble_kind)
    payload, keys = keys_or_failure(call, marker_length, TRAFFIC_TAG, function)
    if keys is None:
        return
    call.log(1, TRAFFIC_TAG, function, payload)
    read_mode(keys, base)
    base["type"] = narrowed(keys.integer("type", base["type"]))
    base["content"] = content
    base["is_force"] = True
