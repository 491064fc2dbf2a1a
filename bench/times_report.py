"""Turns the times of scripts/bench into the tables of times of docs/performance.md.

times_report.py BUILD_FOLDER DOCS_FOLDER
"""

import json
import statistics
import sys

from report import machine, rewrite_section, table


def read(path):
    """The least processor time of the repetitions, in ns, by case: whatever else runs only adds to it."""
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    times = {}
    for run in runs:
        if run["run_type"] == "iteration":
            assert run["time_unit"] == "ns"
            times[run["run_name"]] = min(run["cpu_time"], times.get(run["run_name"], float("inf")))
    return times


def ratios(times):
    ways = [("decode", "whole decode"), ("bare-parse", "bare JsonCpp parse"), ("reference", "reference decoder"),
            ("library-job", "parse + keys, this library"), ("simdjson-job", "parse + keys, simdjson on demand"),
            ("rapidjson-job", "parse + keys, RapidJSON"), ("nlohmann-job", "parse + keys, nlohmann::json"),
            ("jsoncpp-job", "parse + keys, JsonCpp")]
    rows = []
    for way, title in ways:
        row = [title]
        for name in ["P1", "P2", "P3"]:
            time = times[f"{way}/{name}"]
            row += [f"{time:,.0f}", f"{time / times[f'bare-parse/{name}']:.2f}"]
        rows.append(row)
    return table(["ns", "P1", "ratio", "P2", "ratio", "P3", "ratio"], rows)


def threads(path):
    """The median and the best of each column; the last row divides the two cells above it, not single rounds."""
    with open(path, encoding="utf-8") as file:
        rounds = [[int(rate) for rate in line.split("\t")] for line in file]
    one, two = [[round_[i] for round_ in rounds] for i in (0, 1)]
    median = [statistics.median(one), statistics.median(two)]
    best = [max(one), max(two)]
    rows = [["decodes a second, one thread", f"{median[0]:,.0f}", f"{best[0]:,}"],
            ["decodes a second, two threads", f"{median[1]:,.0f}", f"{best[1]:,}"],
            ["two threads over one", f"{median[1] / median[0]:.2f}", f"{best[1] / best[0]:.2f}"]]
    return table([f"{len(rounds)} rounds", "median", "best"], rows)


def main(build, docs):
    times = read(f"{build}/times.json")
    parts = {"Ratios": ratios(times), "Threads": threads(f"{build}/threads.tsv")}
    text = machine("libjsoncpp-dev", "libbenchmark-dev", "libsimdjson-dev", "nlohmann-json3-dev", "rapidjson-dev")
    with open(f"{build}/times.json", encoding="utf-8") as file:
        load = json.load(file)["context"]["load_avg"]
    text += f"Load of the machine when it began: {load[0]:.1f}. The least processor time of twenty runs.\n"
    for title, part in parts.items():
        text += f"\n### {title}\n\n{part}"
    rewrite_section(f"{docs}/performance.md", "times", text)
    print(parts["Ratios"])
    print(parts["Threads"])


main(*sys.argv[1:])
