"""The names that the page is tried with."""

import glob
import json
import random


def sample_names():
    """(name, whether it is a marker name), in bytes."""
    names = []
    for path in sorted(glob.glob("samples/*.txt")):
        with open(path, "rb") as file:
            names += [(line, path.endswith("marker_name.txt")) for line in file.read().splitlines()]
    return names


def golden_names():
    names = []
    for path in sorted(glob.glob("tests/golden/*.jsonl")):
        with open(path, encoding="utf-8") as file:
            names += [(json.loads(line)["resource_name"].encode(), path.endswith("marker_name.jsonl")) for line in file]
    return [(name, is_marker) for name, is_marker in names if not set(b"\r\n") & set(name)]


def broken_names(count):
    """Samples with some bytes replaced, removed or put in, NUL and bytes that are not UTF-8 among them."""
    chance = random.Random(16)
    samples = sample_names()
    names = []
    for _ in range(count):
        name, is_marker = chance.choice(samples)
        name = bytearray(name)
        for _ in range(chance.randrange(1, 4)):
            at = chance.randrange(len(name))
            put = [] if chance.random() < 0.3 else [chance.choice([0, 0x80, 0xE5, 0xFF, *b'"{}[],:_@.09-\\'])]
            name[at:at + chance.randrange(2)] = bytes(put)
        if name and not set(b"\r\n") & set(name):
            names.append((bytes(name), is_marker))
    return names


def log_of(count):
    """A client's log with a name in every line, 3 in 100 of them cut off."""
    chance = random.Random(10)
    samples = [name.decode() for name, is_marker in sample_names() if not is_marker]
    lines = []
    for number in range(count):
        name = chance.choice(samples)
        name = name if chance.random() >= 0.03 else name[:len(name) * 2 // 3]
        lines.append(f"12:{number // 60 % 60:02}:{number % 60:02} I asks for {name}\n")
    return "".join(lines)
