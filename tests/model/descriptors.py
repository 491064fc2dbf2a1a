"""What a decoded bubble holds: its members in order, their text in a log record and their form in JSON."""

import unicodedata

BASE_MEMBERS = (
    ("scene", 0), ("content", b""), ("lan", b""), ("bubble_kind", 0), ("type", 0), ("direction", 0),
    ("mode_flag", False), ("style_name", b""), ("icon", b""), ("style_word", 0), ("style_scale", (0.0, 0.0)),
    ("selected", False), ("is_force", False),
)

OWN_MEMBERS = {
    "BubbleDrawDescriptor": (),
    "TrafficDrawDescriptor": (
        ("light_text", b""), ("extra_type", 0), ("style_float_1", 0.0), ("style_float_2", 0.0),
        ("style_float_3", 0.0), ("style_word_2", 0),
    ),
    "IndoorEntriesBubbleDrawDescriptor": (("entries_value", 0), ("entries_text", b"")),
    "CompanionBubbleDrawDescriptor": (
        ("time", b""), ("label", b""), ("distance", b""), ("fee", b""), ("light", b""), ("better", False),
        ("scene", 0),
    ),
    "CameraDrawDescriptor": (
        ("cameras", ()), ("distance", 0), ("snap_text", b""), ("plain_style_values", (0, 0, 0)),
        ("mode_style_value", 0),
    ),
    "DestNameEtaDrawDescriptor": (
        ("sub_text", b""), ("second_style_value", 0), ("second_mode_style_value", 0),
        ("third_mode_style_value", 0), ("fourth_mode_style_value", 0),
    ),
    "ExplainBubbleDrawDescriptor": (
        ("uid", b""), ("explain_content", b""), ("second_content", ()), ("second_type", 0), ("scene_type", 0),
        ("bubble_type", 0),
    ),
    "LightCountdownTimerDrawDescriptor": (
        ("id", b""), ("style", 0), ("light_type", 0), ("turn_arrow_type", 0), ("time", 0), ("text", b""),
    ),
    "MultiLightCountdownTimerDrawDescriptor": (
        ("style", 0), ("id", b""), ("is_animation", False), ("light_descriptors", ()),
    ),
    "ViaPointDrawDescriptor": (
        ("route_id", b""), ("index", 0), ("is_selected", False), ("is_reached", False), ("is_main_map", False),
        ("resource_id", 0),
    ),
    "LightWaitBubbleDrawDescriptor": (),
    "TurnArrowBubbleDrawDescriptor": (("distance", 0),),
    "HDLongSolidBubbleDrawDescriptor": (),
    "YawNoticeBubbleDrawDescriptor": (("reason", 0),),
    "RouteAccidentBubbleDrawDescriptor": (("accident_id", b""), ("severity", 0)),
    "SafeWarningBubbleDrawDescriptor": (("category", 0), ("distance", 0)),
    "HDLaneChangeBubbleDrawDescriptor": (("target_lane", 0), ("distance", 0)),
    "MarkerDrawDescriptor": (("marker_type", 0), ("name", b""), ("resource_id", 0), ("is_main_map", False)),
}


LINE_AND_DIRECTION_CONTROLS = "\u200e\u200f\u2028\u2029\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069"


class Descriptor:
    def __init__(self, type_name):
        self.type_name = type_name
        self.base = dict(BASE_MEMBERS)
        self.own = dict(OWN_MEMBERS[type_name])

    def log_text(self):
        """What a log record shows where the kind prints its own type."""
        return _log_record(self.type_name, [*self.base.items(), *self.own.items()])

    def base_log_text(self):
        """What a log record shows where the kind prints the base alone."""
        return _log_record("BubbleDrawDescriptor", self.base.items())

    def json(self):
        return {"type": self.type_name, "base": _json(self.base), "own": _json(self.own)}


def narrowed(value):
    """The low 16 bits, signed."""
    return ((value + 0x8000) & 0xFFFF) - 0x8000


def printable(text):
    """Bytes as JSON output shows them."""
    return text.decode("utf-8", "replace")


def _log_record(type_name, members):
    return type_name.encode() + b"{" + _log_members(members) + b"}"


def _log_members(members):
    return b", ".join(name.encode() + b":" + _log(value) for name, value in members)


def _log(value):
    if isinstance(value, bool):
        return b"true" if value else b"false"
    if isinstance(value, bytes):
        return b'"' + _escaped(value) + b'"'
    if isinstance(value, float):
        return b"%.6f" % value
    if isinstance(value, dict):
        return b"{" + _log_members(value.items()) + b"}"
    if isinstance(value, (list, tuple)):
        return b"[" + b", ".join(_log(element) for element in value) + b"]"
    return b"%d" % value


def _escaped(text):
    """A text as a log record quotes it: on one line, its end told from what it holds."""
    return "".join(map(_escape, text.decode("utf-8", "surrogateescape"))).encode()


def _escape(character):
    code_point = ord(character)
    if 0xDC80 <= code_point <= 0xDCFF:  # a byte that is not UTF-8
        return f"\\x{code_point - 0xDC00:02x}"
    if character in '"\\':
        return "\\" + character
    if character in "\n\r\t":
        return {"\n": "\\n", "\r": "\\r", "\t": "\\t"}[character]
    if unicodedata.category(character) == "Cc" or character in LINE_AND_DIRECTION_CONTROLS:
        return f"\\u{code_point:04x}"
    return character


def _json(value):
    if isinstance(value, bytes):
        return printable(value)
    if isinstance(value, dict):
        return {name: _json(member) for name, member in value.items()}
    if isinstance(value, (list, tuple)):
        return [_json(element) for element in value]
    return value
