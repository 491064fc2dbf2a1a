"""Makes names to decode, good ones and bad ones, always the same ones for a seed."""

from payloads import FIELDS, JSON_KEYS, Payloads

KINDS = [kind for kind in (*JSON_KEYS, *FIELDS) if kind != "marker"]

# How a name departs from a plain one, and how often.
WAYS = {
    "plain": 20, "types": 12, "numbers": 14, "separators": 12, "bytes": 10, "lenient": 8, "elements": 8, "root": 3,
    "nested": 1, "cut": 8, "mutated": 10, "prefix": 8, "two markers": 6, "wrong marker": 2, "behind marker": 3,
    "stray": 3,
}

MUTATION_BYTES = b'{}[],:"\\@_.|-+0159eEtfn /*\xff\xe4 '


class Names:
    def __init__(self, random, prefix, marker_names):
        self.random = random
        self.prefix = prefix
        self.marker_names = marker_names
        self.payloads = Payloads(random)

    def make(self):
        """(how it was made, the name); no name holds a NUL."""
        way = self.random.choices(list(WAYS), WAYS.values())[0]
        kind = "marker" if self.marker_names else self.random.choice(KINDS)
        if way == "elements" and self.random.random() < 0.7 and not self.marker_names:
            kind = self.random.choice(("cameraBubble", "multiLightCountdownBubble", "routeExplainBubble"))
        marker = b"." + kind.encode()
        payload = self.payloads.payload(kind, way)
        return way, self.whole(way, payload, marker).replace(b"\0", b"")

    def whole(self, way, payload, marker):
        name = self.prefix + payload + marker
        if way == "cut":
            return self.cut(name, marker)
        if way == "mutated":
            return self.prefix + self.mutated(payload) + (self.mutated(marker) if self.chance(0.1) else marker)
        if way == "prefix":
            return self.other_prefix() + self.random.choice((payload, payload, b"", b"{}")) + marker
        if way == "two markers":
            return self.with_other_marker(payload, marker)
        if way == "wrong marker":
            return self.prefix + payload + self.random.choice(almost(marker))
        if way == "behind marker":
            return name + self.random.choice((b"x", b".", b".png", b"@3", b"{}", b" ", marker, b"\xff\xff", payload))
        if way == "stray":
            return self.stray(payload, marker)
        return name

    def chance(self, probability):
        return self.random.random() < probability

    def cut(self, name, marker):
        """Loses its end, its beginning or its middle; mostly keeps the marker, so that a kind still reads it."""
        at, length = self.random.randrange(len(name) + 1), self.random.randrange(1, 30)
        body = self.random.choice((name[:at], name[at:], name[:at] + name[at + length :]))
        return body if self.chance(0.3) or marker in body else body + marker

    def mutated(self, text):
        text = bytearray(text)
        for _ in range(self.random.randrange(1, 4)):
            at = self.random.randrange(len(text) + 1)
            byte = self.random.choice(MUTATION_BYTES) if self.chance(0.8) else self.random.randrange(1, 256)
            action = self.random.randrange(4)
            if action == 0:
                text.insert(at, byte)
            elif action == 1:
                del text[at : at + self.random.randrange(1, 4)]
            elif action == 2:
                text[at : at + 1] = bytes([byte])
            else:
                text[at:at] = text[at : at + self.random.randrange(1, 12)]
        return bytes(text)

    def other_prefix(self):
        shorter = self.prefix[: self.random.randrange(len(self.prefix) + 1)]
        return self.random.choice((b"", shorter, shorter, b"?" * len(self.prefix), self.prefix * 2, self.prefix + b"/"))

    def with_other_marker(self, payload, marker):
        other = b"." + self.random.choice(KINDS).encode()
        at = self.random.randrange(len(payload) + 1)
        bodies = (
            payload + other + marker, payload + marker + other, other + payload + marker,
            payload[:at] + other + payload[at:] + marker, payload.replace(b':"', b':"' + other, 1) + marker,
        )
        return self.prefix + self.random.choice(bodies)

    def stray(self, payload, marker):
        noise = bytes(self.random.randrange(1, 256) for _ in range(self.random.randrange(40)))
        whole = self.prefix + noise + marker
        return self.random.choice((b"", self.prefix, marker, noise, noise + marker, payload, whole))


def almost(marker):
    """Texts that come near the marker and are none."""
    return marker.swapcase(), marker[1:], marker[:-1], marker.upper(), b"." + marker[1:2].swapcase() + marker[2:]
