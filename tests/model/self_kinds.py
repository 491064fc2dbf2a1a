"""The kinds that find the JSON in their name themselves, and the names of markers."""

from descriptors import Descriptor, narrowed
from envelope import is_not_zero, is_one, keys_of
from json_kinds import PARSE_FAILED, TRAFFIC_TAG, read_direction, read_integers, read_mode, read_texts, store_direction

MARKER_TYPES = (
    "Poi Start Destination ViaPoint Parking ChargingStation GasStation Toll ServiceArea Camera TrafficLight Event "
    "Home Company Favorite"
).split()


def yaw_notice(call):
    call.out = initialised("YawNoticeBubbleDrawDescriptor", json_inside(call.name))


def route_accident(call):
    call.out = initialised("RouteAccidentBubbleDrawDescriptor", json_inside(call.name))


def lane_change(call):
    call.out = initialised("HDLaneChangeBubbleDrawDescriptor", json_inside(call.name))


def safe_warning(call):
    payload = call.payload(18)
    pieces = payload.split(b"@")
    if len(pieces) != 2:
        message = (b"parse resource_name failed: ", payload)
        call.log(1, TRAFFIC_TAG, "ParseSafeWarningResourceName", *message)
        return
    call.out = initialised("SafeWarningBubbleDrawDescriptor", pieces[0])
    store_direction(call, pieces[1])


def json_inside(name):
    """What begins at the first brace; the reader ignores what follows the object."""
    start = name.find(b"{")
    return b"" if start < 0 else name[start:]


def initialised(type_name, text):
    out = Descriptor(type_name)
    keys = keys_of(text)
    if keys is None:
        return out
    read_integers(keys, out.base, "scene")
    read_texts(keys, out.base, "content", "lan")
    out.base["type"] = narrowed(keys.integer("type", out.base["type"]))
    read_direction(keys, out.base)
    read_mode(keys, out.base)
    out.base["is_force"] = keys.flag("is_force_", out.base["is_force"], is_one)
    for name, value in list(out.own.items()):
        read = read_texts if isinstance(value, bytes) else read_integers
        read(keys, out.own, name)
    return out


def marker_name(call):
    keys = keys_of(call.payload(7))
    if keys is None:
        call.log(1, TRAFFIC_TAG, "GetMarkerDrawDescriptor", PARSE_FAILED, call.name)
        return
    call.out = Descriptor("MarkerDrawDescriptor")
    base, own = call.out.base, call.out.own
    base["bubble_kind"] = 21
    read_texts(keys, base, "lan")
    read_mode(keys, base)
    read_integers(keys, base, "scene")
    read_direction(keys, base)
    own["marker_type"] = narrowed(keys.integer("marker_type", own["marker_type"]))
    read_texts(keys, own, "name")
    read_integers(keys, own, "resource_id")
    own["is_main_map"] = keys.flag("is_main_map", own["is_main_map"], is_not_zero)
    base["is_force"] = True
    base["content"] = call.prefix + type_text(own["marker_type"]).lower().encode() + b"_" + own["name"]


def type_text(marker_type):
    return MARKER_TYPES[marker_type] if 0 <= marker_type < len(MARKER_TYPES) else str(marker_type)
