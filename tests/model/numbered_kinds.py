"""The kinds whose payload is a JSON object, "@" and a number."""

from descriptors import narrowed
from envelope import Keys, is_not_zero, is_one, keys_of
from json_kinds import (
    PARSE_FAILED,
    TRAFFIC_TAG,
    read_direction_behind,
    read_integers,
    read_mode,
    read_texts,
    start,
)

COUNTDOWN_TAG = "KavrixMapLayerMgr_LightCountdownTimer"


def companion(call):
    base, own = start(call, "CompanionBubbleDrawDescriptor")
    function = "ParseCompanionBubbleResourceName"
    pieces = call.rest().split(b"@")
    if len(pieces) == 2:
        keys = keys_of(pieces[0])
        if keys is None:
            call.log(1, TRAFFIC_TAG, function, PARSE_FAILED, call.name)
        else:
            base["is_force"] = keys.flag("is_force_", base["is_force"], is_not_zero)
            read_texts(keys, own, "time", "distance", "fee", "light", "label")
            read_mode(keys, base)
            own["better"] = keys.flag("better", own["better"], is_one)
            read_integers(keys, own, "scene")
            base["scene"] = keys.integer("scene_", base["scene"])
            read_direction_behind(call, pieces[1])
    record = call.configuration.record("companion_style")
    number = {(True, True): 3, (True, False): 2, (False, True): 5, (False, False): 4}[base["mode_flag"], own["better"]]
    base.update(style_word=record.word(number), style_name=record.name, style_scale=(record.real(6), record.real(7)))
    call.log(0, "KavrixMapLayerMgr_BubbleCompanion", function, call.out.log_text())


def light_countdown(call):
    base, own = start(call, "LightCountdownTimerDrawDescriptor")

    def read(keys):
        base["is_force"] = keys.flag("is_force_", base["is_force"], is_one)
        read_integers(keys, base, "scene")
        read_mode(keys, base)
        read_texts(keys, own, "id")
        read_integers(keys, own, "style", "light_type", "turn_arrow_type", "time")
        read_texts(keys, own, "text")

    countdown(call, "ParseLightCountdownBubbleResourceName", read)


def multi_light_countdown(call):
    base, own = start(call, "MultiLightCountdownTimerDrawDescriptor")
    base["type"] = narrowed(call.configuration.multi_light_type)

    def read(keys):
        base["is_force"] = keys.flag("is_force_", base["is_force"], is_one)
        read_integers(keys, base, "scene")
        read_mode(keys, base)
        read_integers(keys, own, "style")
        read_texts(keys, own, "id")
        own["is_animation"] = keys.flag("is_animation", own["is_animation"], is_one)
        own["light_descriptors"] = [light(Keys(element)) for element in keys.elements("light_descriptors")]

    countdown(call, "ParseMultiLightCountdownBubbleResourceName", read)


def light(keys):
    members = {"light_type": 0, "turn_arrow_type": -1, "remain_time": 0, "text": b"", "total_time": 0}
    read_integers(keys, members, "light_type", "turn_arrow_type", "remain_time", "total_time")
    read_texts(keys, members, "text")
    return members


def countdown(call, function, read):
    pieces = call.rest().split(b"@")
    if len(pieces) == 2:
        keys = keys_of(pieces[0])
        if keys is None:
            call.log(1, COUNTDOWN_TAG, function, PARSE_FAILED, pieces[0])
        else:
            read(keys)
        read_direction_behind(call, pieces[1])
    call.log(0, COUNTDOWN_TAG, function, call.out.log_text())
