#!/usr/bin/env python3
"""Decodes generated names with the tool and with the model, and reports where the two differ.

    compare.py TOOL [--seed N] [--names N] [--show N]

Exit status: 0 where both agree on every name, 1 where they differ.
"""

import argparse
import collections
import dataclasses
import json
import os
import random
import subprocess
import sys
import tempfile

from generate import Names
from model import failed, predict
from style_config import as_float32, make_configuration

BATCH = 1000
DEFAULT_PREFIX = b"kavrix://resource/"
PREFIXES = (b"", b"p", b"app_with@a.long/prefix/of/more/than/forty/letters/", "图层://".encode())

# The reader of the model calls itself twice for a level of nesting.
sys.setrecursionlimit(10000)


def main():
    options = arguments()
    report = Report(options.show)
    made = random.Random(options.seed)
    for order, start in enumerate(range(0, options.names, BATCH)):
        setting = Setting(made, marker_names=order % 8 == 5)
        compare_batch(options.tool, setting, made, min(BATCH, options.names - start), report)
    report.close(options.seed)
    return 1 if report.differing else 0


def arguments():
    parser = argparse.ArgumentParser(description="Compares the tool with an independent model of the decoder.")
    parser.add_argument("tool", help="path of kavrix-resource")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--names", type=int, default=20000)
    parser.add_argument("--show", type=int, default=10, help="how many differing names to show")
    return parser.parse_args()


class Setting:
    """What the names of a batch share: the configuration and the options of the tool."""

    def __init__(self, made, marker_names):
        self.marker_names = marker_names
        self.prefix = DEFAULT_PREFIX if made.random() < 0.7 else made.choice(PREFIXES)
        self.file_configuration = make_configuration(made)
        self.configuration = self.file_configuration
        self.options = ["--marker"] if marker_names else []
        if self.prefix != DEFAULT_PREFIX:
            self.options += ["--prefix", self.prefix]
        if made.random() < 0.2:
            self.configuration = dataclasses.replace(self.configuration, context_name=b"other")
            self.options += ["--context-name", "other"]


def compare_batch(tool, setting, made, count, report):
    generator = Names(made, setting.prefix, setting.marker_names)
    names = [generator.make() for _ in range(count)]
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "config.json")
        setting.file_configuration.write(path, made)
        options = [*setting.options, "--config", path]
        lines, status = decode(tool, options, [name for _, name in names])

    report.expect_equal("number of lines", len(names), len(lines))
    some_failed = False
    for (way, name), line in zip(names, lines):
        expected = predict(name, setting.configuration, setting.prefix, setting.marker_names)
        some_failed = some_failed or failed(expected, setting.configuration, setting.marker_names)
        report.add(way, name, setting.options, list(differences(expected, read(line))))
    report.expect_equal("exit status", int(some_failed), status)


def decode(tool, options, names):
    command = [tool, "decode", "--format", "json", "--null", *options]
    run = subprocess.run(command, input=b"".join(name + b"\0" for name in names), stdout=subprocess.PIPE, check=False)
    return run.stdout.split(b"\n")[:-1], run.returncode


def read(line):
    """The tool's line, the text of an exception reduced to whether there is one."""
    try:
        result = json.loads(line.decode("utf-8"))
    except ValueError as problem:
        return f"unreadable line: {problem}"
    if isinstance(result, dict) and "exception" in result:
        result["exception"] = isinstance(result["exception"], str)
    return result


def differences(expected, actual, path=""):
    """Each place where the two are not the same: (path, expected, actual)."""
    if isinstance(expected, dict) and isinstance(actual, dict):
        for key in [*expected, *(key for key in actual if key not in expected)]:
            missing = "(missing)"
            yield from differences(expected.get(key, missing), actual.get(key, missing), f"{path}.{key}")
    elif isinstance(expected, (list, tuple)) and isinstance(actual, list) and len(expected) == len(actual):
        for index, pair in enumerate(zip(expected, actual)):
            yield from differences(*pair, f"{path}[{index}]")
    elif not same(expected, actual):
        yield path, expected, actual


def same(expected, actual):
    if isinstance(expected, float):
        return type(actual) in (int, float) and as_float32(actual) == expected
    if isinstance(expected, tuple):
        expected = list(expected)
    return type(actual) is type(expected) and actual == expected


class Report:
    def __init__(self, show):
        self.show = show
        self.names = 0
        self.differing = 0
        self.ways = collections.Counter()
        self.differing_ways = collections.Counter()

    def add(self, way, name, options, found):
        self.names += 1
        self.ways[way] += 1
        if not found:
            return
        self.differing += 1
        self.differing_ways[way] += 1
        if self.differing <= self.show:
            print(f"name {name!r} ({way}; {' '.join(map(str, options))})")
            for path, expected, actual in found:
                print(f"    {path}\n        model: {expected!r}\n        tool:  {actual!r}")

    def expect_equal(self, what, expected, actual):
        if expected != actual:
            self.differing += 1
            print(f"{what}: model {expected}, tool {actual}")

    def close(self, seed):
        ways = ", ".join(f"{way} {count}" for way, count in sorted(self.ways.items()))
        print(f"seed {seed}: {self.names} names ({ways})")
        if self.differing_ways:
            print("differing: " + ", ".join(f"{way} {count}" for way, count in sorted(self.differing_ways.items())))
        print(f"{self.differing} differ")


if __name__ == "__main__":
    sys.exit(main())
