"""An independent decoder: what the tool must print for a name, worked out without any of the tool's code."""

import field_kinds
import json_kinds
import numbered_kinds
import self_kinds
from descriptors import printable
from envelope import Call, TooShort

# In the order in which they are looked for: the first that occurs anywhere in the name wins.
KINDS = (
    ("trafficBubble", json_kinds.traffic),
    ("nameBubble", field_kinds.route_name),
    ("inDoorEntriesBubble", field_kinds.indoor_entries),
    ("companionBubble", numbered_kinds.companion),
    ("cameraBubble", json_kinds.camera),
    ("etaBubble", field_kinds.eta),
    ("labelBubble", field_kinds.route_label),
    ("routeExplainBubble", json_kinds.route_explain),
    ("markerBubble", json_kinds.marker_bubble),
    ("lightCountdownBubble", numbered_kinds.light_countdown),
    ("multiLightCountdownBubble", numbered_kinds.multi_light_countdown),
    ("viaCircleBubble", json_kinds.via_circle),
    ("lightWaitBubble", field_kinds.light_wait),
    ("turnBubble", json_kinds.turn),
    ("hdLongSolidBubble", field_kinds.hd_long_solid),
    ("UndergroundParkBubble", json_kinds.underground_park),
    ("ForceDotBubble", json_kinds.force_dot),
    ("ForcePollBubble", json_kinds.force_poll),
    ("YawNoticeBubble", self_kinds.yaw_notice),
    ("RouteAccidentBubble", self_kinds.route_accident),
    ("SafeWarningBubble", self_kinds.safe_warning),
    ("LaneChangeBubble", self_kinds.lane_change),
)


def predict(name, configuration, prefix, marker_names=False):
    """The object that the tool prints for the name; "exception" only says whether there is one."""
    call = Call(name, configuration, prefix)
    kind = None
    threw = False
    try:
        if marker_names:
            self_kinds.marker_name(call)
        else:
            kind, parse = recognise(name)
            dispatch(call, parse)
    except TooShort:
        threw = True
    return {
        "resource_name": printable(name),
        "kind": kind,
        "descriptor": call.out and call.out.json(),
        "records": [
            {"level": level, "tag": tag, "function": function, "message": printable(message)}
            for level, tag, function, message in call.records
        ],
        "exception": threw,
    }


def recognise(name):
    for kind, parse in KINDS:
        if b"." + kind.encode() in name:
            return kind, parse
    return None, None


def dispatch(call, parse):
    tag, function = "KavrixMapLayerMgr", "GetBubbleDrawDescriptor"
    call.log(0, tag, function, b"resource_name:", call.name)
    if parse is None:
        call.log(1, tag, function, b"resource_name:", call.name, b", it is a not valid bubble.")
    else:
        parse(call)


def failed(prediction, configuration, marker_names):
    """Whether the tool counts the name as failed, which decides its exit status."""
    head = "[Kavrix][" + printable(configuration.context_name) + "]parse "
    no_marker = prediction["kind"] is None and not marker_names
    not_parsed = any(each["level"] == 1 and each["message"].startswith(head) for each in prediction["records"])
    return no_marker or not_parsed or prediction["exception"]
