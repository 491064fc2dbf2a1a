"""The kinds whose payload is fields joined by "_", "@" and "."."""

from descriptors import narrowed
from envelope import leading_int, to_int
from json_kinds import common_style, read_direction_behind, start


def fields_and_direction(call, counts, read):
    """Splits at "@", then each side on its own: a bad head does not keep the direction from being read."""
    sides = call.rest().split(b"@")
    if len(sides) != 2:
        return
    fields = sides[0].split(b"_")
    if counts(len(fields)):
        read(fields)
    read_direction_behind(call, sides[1])


def exactly(count):
    return lambda number: number == count


def store_mode(call, text):
    value = to_int(text)
    if value is not None:
        call.out.base["mode_flag"] = value == 0


def store_scene(call, text):
    value = to_int(text)
    if value is not None:
        call.out.base["scene"] = value


def route_name(call):
    base, _ = start(call, "BubbleDrawDescriptor", 0)

    def read(fields):
        base["content"] = fields[0]
        store_mode(call, fields[1])
        store_scene(call, fields[2])

    fields_and_direction(call, exactly(3), read)
    common_style(call, "route_name_style" if base["scene"] == 0 else "route_name_scene_style")
    tag, function = "KavrixMapLayerMgr_BubbleName", "ParseRouteNameBubbleResourceName"
    call.log(0, tag, function, call.out.base_log_text())


def indoor_entries(call):
    base, own = start(call, "IndoorEntriesBubbleDrawDescriptor", 13)

    def read(fields):
        base["content"] = fields[0]
        store_mode(call, fields[1])
        base["lan"] = fields[2]
        own["entries_value"] = narrowed(leading_int(fields[3]))
        own["entries_text"] = fields[4]

    fields_and_direction(call, exactly(5), read)
    common_style(call, "indoor_entries_style")
    tag, function = "MapLayerMgr_IndoorEntries", "ParseIndoorEntriesBubbleResourceName"
    call.log(0, tag, function, call.out.base_log_text(), b"resource_name ", call.name)


def eta(call):
    tag, function = "KavrixMapLayerMgr_DestNameEta", "ParseEtaBubbleResourceName"
    call.log(0, tag, function, b"resource_name:", call.name)
    base, own = start(call, "DestNameEtaDrawDescriptor")

    def read(fields):
        base["content"] = fields[0]
        store_mode(call, fields[1])
        store_scene(call, fields[3])

    fields_and_direction(call, exactly(4), read)
    bar = base["content"].rfind(b"|")
    if bar >= 0:
        own["sub_text"] = base["content"][bar + 1 :]
        base["content"] = base["content"][:bar]
    record = call.configuration.record("eta_style" if base["scene"] == 0 else "eta_scene_style")
    by_mode = 0 if base["mode_flag"] else 1
    base.update(
        style_name=record.name,
        style_scale=(record.real(2), record.real(8)),
        style_word=record.word(3 + by_mode),
    )
    own.update(
        second_style_value=record.word(5),
        second_mode_style_value=record.word(6 + by_mode),
        third_mode_style_value=record.word(9 + by_mode),
        fourth_mode_style_value=record.word(11 + by_mode),
    )
    call.log(0, tag, function, call.out.log_text())


def route_label(call):
    base, _ = start(call, "BubbleDrawDescriptor", 7)

    def read(fields):
        base["content"] = fields[0]
        store_mode(call, fields[1])

    fields_and_direction(call, exactly(2), read)
    record = call.configuration.record("route_label_style")
    base.update(
        style_scale=(record.real(4), 0.0),
        style_name=record.name,
        style_word=record.word(2 if base["mode_flag"] else 3),
    )
    tag, function = "KavrixMapLayerMgr_RouteLabel", "ParseRouteLabelBubbleResourceName"
    call.log(0, tag, function, call.out.base_log_text())


def light_wait(call):
    base, _ = start(call, "LightWaitBubbleDrawDescriptor", 14)

    def read(fields):
        base["content"] = fields[0]
        store_mode(call, fields[1])
        store_scene(call, fields[2])
        base["is_force"] = fields[3] == b"1"

    fields_and_direction(call, exactly(4), read)
    common_style(call, "light_wait_style")
    tag, function = "MapLayerMgr_LightWait", "ParseLightWaitBubbleResourceName"
    call.log(0, tag, function, call.out.base_log_text())


def hd_long_solid(call):
    base, _ = start(call, "HDLongSolidBubbleDrawDescriptor", 12)
    common_style(call, "hd_long_solid_style")

    def read(fields):
        base["content"] = fields[0]
        store_mode(call, fields[1])
        if len(fields) >= 3:
            base["is_force"] = True

    fields_and_direction(call, lambda count: count >= 2, read)
    tag, function = "KavrixMapLayerMgr_LongSolid", "ParseHdLongSolidBubbleResourceName"
    call.log(0, tag, function, call.out.base_log_text())
