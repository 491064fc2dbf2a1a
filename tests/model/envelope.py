"""How a payload is cut out of a name, and the few conversions that every kind shares."""

import re

from lenient_json import parse_object

INT32_MIN, INT32_MAX = -(1 << 31), (1 << 31) - 1
INT64_MIN, INT64_MAX = -(1 << 63), (1 << 63) - 1


class TooShort(Exception):
    """The name is shorter than the prefix: the call ends with an exception."""


class Call:
    """One decoding: what goes in, and what comes out."""

    def __init__(self, name, configuration, prefix):
        self.name = name
        self.configuration = configuration
        self.prefix = prefix
        self.out = None
        self.records = []

    def log(self, level, tag, function, *message):
        head = b"[Kavrix][" + self.configuration.context_name + b"]"
        self.records.append((level, tag, function, head + b"".join(message)))

    def rest(self):
        """All that follows the prefix."""
        if len(self.name) < len(self.prefix):
            raise TooShort
        return self.name[len(self.prefix) :]

    def payload(self, marker_length):
        """What stands between prefix and marker, by count; with no room for the marker, all that follows the prefix."""
        rest = self.rest()
        count = len(rest) - marker_length
        return rest if count < 0 else rest[:count]


def to_int(text):
    """The 32-bit integer that the text is, else None."""
    if not re.fullmatch(rb"[+-]?[0-9]+", text):
        return None
    value = int(text)
    return value if INT32_MIN <= value <= INT32_MAX else None


def leading_int(text):
    """The integer that the text begins with, held within 64 bits, else 0."""
    match = re.match(rb"[ \t\n\v\f\r]*([+-]?[0-9]+)", text)
    value = int(match.group(1)) if match else 0
    return min(max(value, INT64_MIN), INT64_MAX)


class Keys:
    """The keys of a JSON value: what is absent or of another type gives the default."""

    def __init__(self, value):
        self.members = value if isinstance(value, dict) else {}

    def integer(self, key, default):
        value = self.members.get(key.encode())
        fits = isinstance(value, int) and not isinstance(value, bool) and INT32_MIN <= value <= INT32_MAX
        return value if fits else default

    def text(self, key, default):
        value = self.members.get(key.encode())
        return value if isinstance(value, bytes) else default

    def elements(self, key):
        value = self.members.get(key.encode())
        return value if isinstance(value, list) else []

    def flag(self, key, default, accepts):
        return accepts(self.integer(key, int(default)))


def keys_of(text):
    """The keys of the JSON object that the text is, else None."""
    value = parse_object(text)
    return None if value is None else Keys(value)


def is_zero(value):
    return value == 0


def is_one(value):
    return value == 1


def is_not_zero(value):
    return value != 0
