#!/usr/bin/env python3
"""Writes the first inputs of each fuzzer: the names of the golden files, the default configuration, and the inputs that
fuzz/corpus/FUZZER.jsonl (what reached code, by pack_corpus.py) and fuzz/found/FUZZER.jsonl (what broke something) keep.

usage: seeds.py ROOT OUTPUT < markers    ROOT of the repository; the markers one a line, as fuzz_dictionary prints them
"""

import json
import pathlib
import sys

PREFIX = "kavrix://resource/"
LONGEST = 2048  # more would be cut off: -max_len of scripts/fuzz


def golden_names(root):
    for path in sorted((root / "tests/golden").glob("*.jsonl")):
        for line in path.read_text(encoding="utf-8").splitlines():
            yield json.loads(line)["resource_name"]


def payload_inputs(names, markers):
    """Inputs of the payloads fuzzer: the number of the marker as a byte, then the payload."""
    for name in names:
        for number, marker in enumerate(markers):
            if name.startswith(PREFIX) and name.endswith(marker):
                yield bytes([number]) + name[len(PREFIX):-len(marker)].encode()


def lines_of(path):
    return path.read_text(encoding="ascii").splitlines() if path.exists() else []


def remembered_inputs(root, fuzzer):
    for line in lines_of(root / f"fuzz/corpus/{fuzzer}.jsonl"):
        yield json.loads(line).encode("latin-1")
    for line in lines_of(root / f"fuzz/found/{fuzzer}.jsonl"):
        yield json.loads(line)["input"].encode("latin-1")


def text_inputs(names):
    """Payloads without their JSON, and the fields in them."""
    for name in names:
        payload = name.removeprefix(PREFIX)
        yield payload.encode()
        yield from (field.encode() for field in payload.replace("@", "_").split("_"))
    yield from (b"2147483648", b" \t-9223372036854775809", b"+5", b"\xe0\x9f\xbf", b"\xed\xa0\x80", b"\xf4\x90\x80\x80")


def config_inputs(root):
    config = json.loads((root / "samples/default_config.json").read_text(encoding="utf-8"))
    yield compact(config)
    yield compact({**config, "bubble_layer": {}})
    for name, record in config["bubble_layer"].items():
        yield json.dumps({"bubble_layer": {name: record}}, ensure_ascii=False).encode()
    yield compact({"marker_bubble": config["marker_bubble"]})


def compact(value):
    return json.dumps(value, ensure_ascii=False, separators=(",", ":")).encode()


def log_inputs(names):
    own = "routine KavrixMapLayerMgr GetBubbleDrawDescriptor a.cpp:1 [Kavrix][m]resource_name:"
    for i in range(0, len(names), 4):
        some = names[i:i + 4]
        yield b"\0" + "\n".join(f"x {name}, y" for name in some).encode()
        yield b"\0" + " ".join(some).encode()
        yield b"\0" + "".join(f"[Kavrix][m]resource_name:{name}\n" * 2 for name in some).encode()
        yield b"\0" + "".join(own + name.replace("\\", "\\\\") + "\n" for name in some).encode()
        yield b"\1" + "\n".join(json.dumps({"message": name}) for name in some).encode()


def stream_inputs(names):
    for i in range(0, len(names), 8):
        some = [name.encode() for name in names[i:i + 8]]
        yield b"\x02\xff" + b"\n".join(some)
        yield b"\x20\xff" + b"\r\n".join(some) + b"\n"
        yield b"\x81\x10" + b"\0".join(some)


def main():
    root, output = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    markers = sys.stdin.read().split()
    names = list(golden_names(root))
    inputs = {
        "names": [name.encode() for name in names],
        "explain": [name.encode() for name in names],
        "payloads": payload_inputs(names, markers),
        "nodes": [name.removeprefix(PREFIX).encode() for name in names],
        "round_trip": payload_inputs(names, markers),
        "texts": text_inputs(names),
        "config": config_inputs(root),
        "extract": log_inputs(names),
        "line_input": stream_inputs(names),
    }
    for path in sorted(root.glob("fuzz/*/*.jsonl")):
        if path.stem not in inputs:
            sys.exit(f"seeds.py: {path} is of no fuzzer")
    for fuzzer, seeds in inputs.items():
        folder = output / fuzzer
        folder.mkdir(parents=True, exist_ok=True)
        for number, seed in enumerate(sorted({*seeds, *remembered_inputs(root, fuzzer)})):
            if len(seed) > LONGEST:
                sys.exit(f"seeds.py: an input of {fuzzer} has {len(seed)} bytes, expected at most {LONGEST}: {seed[:60]}")
            (folder / f"seed-{number:04}").write_bytes(seed)


main()
