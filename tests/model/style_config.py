"""The configuration of style records, as the decoder sees it and as a file for the tool."""

import dataclasses
import json
import struct

# Record name and number of values: those of the container in its order, then the one that stands beside it.
RECORDS = (
    ("route_name_style", 4), ("traffic_style", 12), ("companion_style", 8), ("camera_style", 18),
    ("eta_style", 12), ("eta_scene_style", 12), ("route_label_style", 4), ("camera_scene_style", 18),
    ("traffic_nav_style", 14), ("route_name_scene_style", 4), ("turn_style", 2), ("unread_style_12", 18),
    ("unread_style_13", 2), ("hd_long_solid_style", 4), ("unread_style_15", 2), ("indoor_entries_style", 4),
    ("light_wait_style", 4), ("unread_style_18", 2), ("unread_style_19", 2), ("unread_style_20", 2),
    ("traffic_scene_style", 11), ("marker_bubble", 4),
)

# Which values of a record are floats; all others are words.
FLOATS = {
    **dict.fromkeys(
        ("route_name_style", "route_name_scene_style", "indoor_entries_style", "light_wait_style",
         "hd_long_solid_style", "marker_bubble"), {3}),
    **dict.fromkeys(("traffic_style", "traffic_nav_style", "traffic_scene_style"), {3, 4, 5, 6, 8, 9, 10}),
    "companion_style": {6, 7},
    "eta_style": {2, 8},
    "eta_scene_style": {2, 8},
    "route_label_style": {4},
}


def as_float32(value):
    return struct.unpack("<f", struct.pack("<f", value))[0]


class StyleRecord:
    """A name and the values that close the record; missing values are 0."""

    def __init__(self, name=b"", values=()):
        self.name = name
        self.values = tuple(values)

    def word(self, number):
        return self.values[number - 1] if number <= len(self.values) else 0

    def real(self, number):
        return as_float32(self.values[number - 1]) if number <= len(self.values) else 0.0


@dataclasses.dataclass
class Configuration:
    context_name: bytes
    multi_light_type: int
    records: dict

    def record(self, name):
        return self.records.get(name, StyleRecord())

    def write(self, path, random):
        """Writes the file that the tool reads; `random` picks between equal ways to write a value."""
        records = {}
        for name, record in self.records.items():
            floats = FLOATS.get(name, ())
            values = [
                value if number in floats else random.choice((value, f"0x{value:x}", f"0x{value:08x}"))
                for number, value in enumerate(record.values, 1)
            ]
            records[name] = {"name": record.name.decode(), "values": values}
        marker_bubble = records.pop("marker_bubble", None)
        document = {
            "context_name": self.context_name.decode(),
            "multi_light_type": self.multi_light_type,
            "bubble_layer": records,
        }
        if marker_bubble:
            document["marker_bubble"] = marker_bubble
        with open(path, "w", encoding="utf-8") as file:
            json.dump(document, file, ensure_ascii=random.choice((True, False)), indent=2)


def make_configuration(random):
    """Records whose names and values all differ, the one or other record cut short or left out."""
    records = {}
    for order, (name, count) in enumerate(RECORDS, 1):
        if random.random() < 0.05:
            continue
        kept = count if random.random() < 0.9 else random.randrange(count + 1)
        floats = FLOATS.get(name, ())
        values = [
            _float(random, order, number) if number in floats else _word(random, order, number)
            for number in range(1, kept + 1)
        ]
        records[name] = StyleRecord(random.choice((name, f"样式 {order}", f"{name}_{order}", "")).encode(), values)
    context_name = random.choice(("main-map", "", "副图", 'map "2"')).encode()
    return Configuration(context_name, random.choice((0, 3, -1, 40000, 70000, 2147483647, -2147483648)), records)


def _word(random, order, number):
    value = order * 1000 + number
    return value if random.random() < 0.7 else (0xFF000000 + value if random.random() < 0.8 else 0xFFFFFFFF)


def _float(random, order, number):
    value = order * 100 + number
    return random.choice((value, value + 0.5, -value / 7, value / 1e6, value * 1e30, value / 1e44, 16777217 + value))
