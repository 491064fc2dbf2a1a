"""Builds the payloads of names: well-formed ones and ones that are spoiled in a chosen way."""

JSON_KEYS = {
    "trafficBubble": "content:text direction:int mode:int light_text:text scene:int extra_type:int nav_mode:int",
    "companionBubble": "is_force_:int time:text distance:text fee:text light:text label:text mode:int better:int "
    "scene:int scene_:int",
    "cameraBubble": "cameras:cameras scene:int is_selected_:int is_force_:int snap_text:text lan:text mode:int "
    "distance:int direction:int",
    "routeExplainBubble": "second_content:texts scene:int mode:int uid:text content:text icon:text lan:text "
    "second_type:int scene_type:int bubble_type:int direction:int is_force_:int",
    "markerBubble": "scene:int mode:int direction:int content:text is_force_:int lan:text",
    "lightCountdownBubble": "is_force_:int scene:int mode:int id:text style:int light_type:int turn_arrow_type:int "
    "time:int text:text",
    "multiLightCountdownBubble": "is_force_:int scene:int mode:int style:int id:text is_animation:int "
    "light_descriptors:lights",
    "viaCircleBubble": "scene:int lan:text mode:int direction:int route_id:text index:int is_selected:int "
    "is_reached:int is_main_map:int resource_id:int is_force_:int",
    "turnBubble": "is_force_:int type:int direction:int mode:int scene:int lan:text distance:int",
    "UndergroundParkBubble": "lan:text mode:int direction:int name:text content:text",
    "ForceDotBubble": "mode:int type:int content:text is_force_:int",
    "ForcePollBubble": "mode:int type:int content:text is_force_:int",
    "YawNoticeBubble": "scene:int content:text lan:text type:int direction:int mode:int is_force_:int reason:int",
    "RouteAccidentBubble": "scene:int content:text lan:text type:int direction:int mode:int is_force_:int "
    "accident_id:text severity:int",
    "SafeWarningBubble": "scene:int content:text lan:text type:int direction:int mode:int is_force_:int "
    "category:int distance:int",
    "LaneChangeBubble": "scene:int content:text lan:text type:int direction:int mode:int is_force_:int "
    "target_lane:int distance:int",
    "marker": "lan:text mode:int scene:int direction:int marker_type:int name:text resource_id:int is_main_map:int",
}

NUMBER_BEHIND = ("companionBubble", "lightCountdownBubble", "multiLightCountdownBubble", "SafeWarningBubble")

FIELDS = {
    "nameBubble": ("text", "number", "number"),
    "inDoorEntriesBubble": ("text", "number", "text", "entries", "text"),
    "etaBubble": ("barred", "number", "text", "number"),
    "labelBubble": ("text", "number"),
    "lightWaitBubble": ("text", "number", "number", "force"),
    "hdLongSolidBubble": ("text", "number", "text"),
}

PLAIN_INTEGERS = [b"0", b"1", b"2", b"3", b"5", b"7", b"12", b"14", b"15", b"90", b"350", b"-1", b"-7"]
EXTREME_INTEGERS = [
    b"2147483647", b"-2147483648", b"2147483648", b"-2147483649", b"3000000000", b"4294967295", b"4294967296",
    b"70000", b"40000", b"32767", b"32768", b"-32768", b"-32769", b"65535", b"65536", b"-1", b"-0", b"007",
    b"99999999999999999999", b"-99999999999999999999", b"9223372036854775807", b"9223372036854775808",
    b"-9223372036854775808", b"-9223372036854775809", b"18446744073709551615", b"18446744073709551616",
]
REALS = [b"1e5", b"5.0", b"1.0", b"0.0", b"-0.0", b"1E0", b"0e0", b"1.5", b"1e-3", b"-2.5e+2", b"1.", b"-.5", b"-"]
NOT_NUMBERS = [b".5", b"+1", b"0x5", b"1e", b"1e+", b"NaN", b"Infinity", b"--1", b"1-", b"1_0", b"1,0"]
WRONG_VALUES = [b'"5"', b'""', b"null", b"true", b"false", b"[]", b"{}", b"[1]", b'{"type":1}', b"5", b"0", b"1.5"]
WRONG_LISTS = [b"{}", b'{"0":{"type":1}}', b'"a"', b"null", b"3", b"true", b"[]", b"[[]]"]
ANY_ELEMENTS = [
    b"{}", b"[]", b"null", b"true", b"0", b"-3", b"4.5", b'"text"', b'""', b'[{"type":1}]', b'{"text":3}',
    b'{"type":"1","speed":2}', b'{"light_type":1.0,"text":"t"}', b'{"turn_arrow_type":3000000000}',
]
FIELD_NUMBERS = [
    b"", b"+", b"-", b"+1", b"-0", b"+0", b"00", b"007", b" 0", b"0 ", b"1a", b"a1", b"0x1", b"1.0", b"--1", b"+-1",
    b"\xef\xbc\x91", b"\t0", b"12abc", b"-5x", b"abc", b"true",
]
# Where leading digits count.
ENTRIES = (FIELD_NUMBERS, EXTREME_INTEGERS, [b" \n7", b"\v\f\r-8", b"65537x", b"99999999", b"+12-3"])
ROOTS = [b"3", b'"{}"', b"null", b"true", b"", b" ", b"[]", b"'x'", b"{", b"}", b"{'a':1}", b"#\n{}", b'{"mode":0,}']

WORDS = [
    b"", b"a", b"Main St", b"12 min", b"\xe5\x9b\xbd\xe8\xb4\xb8", b"\xf0\x9f\x9a\xa6", b"25 km", b"zh", b"POI",
    b"\xc3\xa9t\xc3\xa9", b"\xd0\x9f\xd1\x80", b"1", b"0", b"x" * 40,
]
ODD_BYTES = [
    b"\xff", b"\xc3(", b"\xe4\xb8", b"\xed\xb0\x80", b"\xf0\x9f\x98", b"\xc0\x80", b"\xf4\x90\x80\x80", b"\x80",
    b"\x01", b"\n", b"\r\n", b"\t", b"\x7f", b"\x1b[31m", b"\xef\xbb\xbf", b"\xe2\x80\xa8",
]
ESCAPES = [
    b'\\"', b"\\\\", b"\\/", b"\\b\\f\\n\\r\\t", b"\\u0041", b"\\u4e2d", b"\\ud83d\\ude80", b"\\u0000", b"\\u00e9",
    b"\\uDC00", b"\\ud800\\u0041",
]
BAD_ESCAPES = [b"\\ud800", b"\\ud800x", b"\\ud83d\\n", b"\\u12", b"\\u12g4", b"\\x41", b"\\'", b"\\0"]
COMMENTS = [b"/**/", b"/* c */", b"/* } \" */", b"// c\n", b"//\r", b"/***/", b"/*/ */"]
TAILS = [b" x", b"{}", b" {\"mode\":1}", b"}", b"]", b"//", b"/*", b"\xff", b",", b" \n"]


class Payloads:
    def __init__(self, random):
        self.random = random

    def pick(self, *pools):
        return self.random.choice(self.random.choice(pools))

    def chance(self, probability):
        return self.random.random() < probability

    def payload(self, kind, way):
        """What stands between the prefix and the marker."""
        if kind in FIELDS:
            return self.fields(kind, way) + b"@" + self.field_number(way)
        text = self.object(JSON_KEYS[kind], way)
        return text + b"@" + self.field_number(way) if kind in NUMBER_BEHIND else text

    def fields(self, kind, way):
        made = [self.field(form, way) for form in FIELDS[kind]]
        if kind == "hdLongSolidBubble" and self.chance(0.5):
            made.pop()
        if way == "separators":
            self.disturb(made)
        return b"_".join(made)

    def disturb(self, made):
        for _ in range(self.random.randrange(1, 3)):
            at = self.random.randrange(len(made) + 1)
            if made and self.chance(0.5):
                del made[at - 1 : at]
            else:
                made.insert(at, self.pick(WORDS, [b"", b"@", b".", b"|"]))

    def field(self, form, way):
        if form == "number":
            return self.field_number(way)
        if form == "entries":
            return self.pick(*(ENTRIES if self.chance(0.4) else (PLAIN_INTEGERS,)))
        if form == "force":
            return self.random.choice((b"1", b"1", b"0", b"01", b"1 ", b"", b"true", b"2"))
        if form == "barred":
            return b"|".join(self.word(way) for _ in range(self.random.choice((1, 2, 2, 3))))
        return self.word(way)

    def word(self, way):
        word = self.pick(WORDS)
        if way == "bytes":
            word += self.pick(ODD_BYTES) + self.pick(WORDS, ODD_BYTES)
        if way == "separators" and self.chance(0.3):
            word += self.pick([b"@", b"_", b".", b"|", b"\\", b'"', b"{"])
        return word

    def field_number(self, way):
        if way == "numbers" or (way == "types" and self.chance(0.3)):
            return self.pick(EXTREME_INTEGERS)
        if way == "types":
            return self.pick(FIELD_NUMBERS)
        if way == "separators" and self.chance(0.3):
            return self.pick([b"9.5", b"9@1", b"", b".", b"1.", b"@"])
        return self.pick(PLAIN_INTEGERS)

    def object(self, keys, way):
        members = [self.member(*key.split(":"), way) for key in keys.split() if self.chance(0.8)]
        if self.chance(0.2):
            self.random.shuffle(members)
        if way == "lenient":
            members = self.loosen(members)
        blank = self.random.choice((b"", b"", b" ", b"\n\t"))
        text = b"{" + blank + (b"," + blank).join(members) + blank + b"}"
        if way == "lenient":
            text = self.maybe(COMMENTS) + text + self.maybe(TAILS)
        if way == "root":
            return self.pick(ROOTS, ROOTS, [b"[" + text + b"]"])
        if way == "nested":
            return self.nested(text)
        return text

    def maybe(self, pool):
        return self.random.choice(pool) if self.chance(0.4) else b""

    def loosen(self, members):
        """Equal keys, unknown keys, comments and blanks: all that the reader lets pass."""
        extra = self.random.sample(members, min(len(members), 2))
        members = members + [member.partition(b":")[0] + b":" + self.pick(WRONG_VALUES) for member in extra]
        members.append(self.random.choice((b'"unknown":[1,{"mode":0}]', b'"Mode":1', b'"mode ":1', b'"mod\\u0065":1')))
        self.random.shuffle(members)
        return [self.maybe(COMMENTS) + member + self.maybe(COMMENTS) for member in members]

    def nested(self, text):
        depth = self.random.choice((5, 900, 997, 998, 999, 1000, 1001, 1100))
        inner = self.random.choice((b"", b"1"))
        deep = b'{"deep":' + b"[" * depth + inner + b"]" * depth
        return deep + (b"}" if text == b"{}" else b"," + text[1:])

    def member(self, key, form, way):
        return b'"' + key.encode() + b'":' + self.value(form, way)

    def value(self, form, way):
        if way == "types" and self.chance(0.4):
            return self.pick(WRONG_LISTS if form in ("cameras", "lights", "texts") else WRONG_VALUES)
        if form == "int":
            return self.integer(way)
        if form == "text":
            return self.text(way)
        return b"[" + b",".join(self.element(form, way) for _ in range(self.random.randrange(5))) + b"]"

    def integer(self, way):
        if way == "numbers":
            pools = (EXTREME_INTEGERS, EXTREME_INTEGERS, REALS, PLAIN_INTEGERS)
            return self.pick(NOT_NUMBERS) if self.chance(0.01) else self.pick(*pools)
        return self.pick(PLAIN_INTEGERS)

    def text(self, way):
        inner = self.pick(WORDS)
        if way == "bytes":
            inner += self.pick(ODD_BYTES, ESCAPES) + self.pick(WORDS, ODD_BYTES, ESCAPES)
            if self.chance(0.03):
                inner += self.pick(BAD_ESCAPES)
        if way == "separators" and self.chance(0.2):
            inner += self.pick([b"@", b"_", b".", b"{", b"}", b"//", b"/*", b"[", b","])
        return b'"' + inner + b'"'

    def element(self, form, way):
        if way == "elements" and self.chance(0.6):
            return self.pick(ANY_ELEMENTS)
        if form == "texts":
            return self.text(way)
        keys = {
            "cameras": "type:int speed:int",
            "lights": "light_type:int turn_arrow_type:int remain_time:int text:text total_time:int",
        }[form]
        members = [self.member(*key.split(":"), way) for key in keys.split() if self.chance(0.8)]
        return b"{" + b",".join(members) + b"}"
