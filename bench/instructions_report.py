"""Turns the counts of scripts/instructions into the tables and plots of docs/performance.md.

instructions_report.py BUILD_FOLDER DOCS_FOLDER
"""

import sys

from plot import bars, lines
from report import group, machine, rewrite_section, table

PAYLOADS = ["P1", "P2", "P3"]


def read(path):
    with open(path, encoding="utf-8") as file:
        return {case: int(count) for case, count in (line.rstrip("\n").split("\t") for line in file)}


def verdict(value, firm, reached_for):
    if value <= reached_for:
        return "met, reached" if reached_for < firm else "met"
    return "met, not reached" if value <= firm else "not met"


def targets(counts, allocations):
    rows = []
    for name in PAYLOADS:
        parse = counts[f"bare-parse/{name}"]
        ratio, reference = counts[f"decode/{name}"] / parse, counts[f"reference/{name}"] / parse
        rows.append([f"decode of {name} over the bare parse", f"{ratio:.3f}", "1.25", "1.15",
                     verdict(ratio, 1.25, 1.15), f"{reference:.3f}"])
    decode = counts["decode/P4"]
    rows.append(["decode of P4, instructions", decode, 4000, 3200, verdict(decode, 4000, 3200),
                 counts["reference/P4"]])
    beyond = allocations["decode/P4"] - allocations["snapshot/names of 8 bytes"]
    rows.append(["decode of P4, allocations beyond the snapshot's own", beyond, 3, "", verdict(beyond, 3, 3),
                 allocations["reference/P4"] - allocations["snapshot/names of 8 bytes"]])
    sizes = {"200 B of text": 200, "2 KB of text": 2048, "2 KB without a marker": 2048}
    text = max(counts[f"find/{what}"] / size for what, size in sizes.items())
    rows.append(["finding the kind in a text, instructions a byte, the worst", f"{text:.2f}", 2, "",
                 verdict(text, 2, 2), ""])
    per_byte = {what: count / 2048 for what, count in group(counts, "find").items() if what.startswith("2 KB of ")}
    tails = max(cost for what, cost in per_byte.items() if what.endswith("Bubble"))
    dots = max(cost for what, cost in per_byte.items() if not what.endswith("Bubble"))
    rows.append(["finding the kind in 2 KB of dots, cut markers or 'B's, instructions a byte, the worst",
                 f"{dots:.2f}", 6, "", verdict(dots, 6, 6), ""])
    rows.append(["finding the kind in 2 KB of nothing but `Bubble` or `.eBubble`, instructions a byte",
                 f"{tails:.2f}", 6, "", verdict(tails, 6, 6), ""])
    off = counts["log/off"]
    rows.append(["a log statement that is off, instructions", off, 240, "", verdict(off, 240, 240), ""])
    return table(["what", "measured", "firm", "reached for", "", "the reference decoder"], rows)


def peers(counts):
    ways = [("decode", "the whole decode"), ("bare-parse", "the bare JsonCpp parse"),
            ("jsoncpp-job", "parse + keys, JsonCpp, as the library does it"), ("reference", "the reference decoder"),
            ("nlohmann-job", "parse + keys, nlohmann::json"), ("rapidjson-job", "parse + keys, RapidJSON")]
    rows = []
    for way, title in ways:
        row = [title]
        for name in PAYLOADS:
            count = counts[f"{way}/{name}"]
            row += [count, f"{count / counts[f'bare-parse/{name}']:.2f}"]
        rows.append(row)
    return table(["", "P1", "ratio", "P2", "ratio", "P3", "ratio"], rows)


def stages(counts):
    p1 = {"finding the kind": counts["find/P1"], "envelope": counts["envelope/P1"], "parse": counts["parse/P1"],
          "descriptor and keys": counts["keys/P1"], "snapshot": counts["snapshot/names of 8 bytes"],
          "log statements, off": 2 * counts["log/off"]}
    p4 = {"finding the kind": counts["find/P4"], "envelope": counts["envelope/P4"],
          "snapshot": counts["snapshot/names of 8 bytes"], "log statements, off": 3 * counts["log/off"]}
    rows = []
    for stage in p1:
        rows.append([stage, p1[stage], f"{p1[stage] / counts['decode/P1']:.1%}"])
        rows[-1] += [p4[stage], f"{p4[stage] / counts['decode/P4']:.1%}"] if stage in p4 else ["", ""]
    rest = [counts["decode/P1"] - sum(p1.values()), counts["decode/P4"] - sum(p4.values())]
    rows.append(["the rest", rest[0], f"{rest[0] / counts['decode/P1']:.1%}",
                 rest[1], f"{rest[1] / counts['decode/P4']:.1%}"])
    rows.append(["whole decode", counts["decode/P1"], "", counts["decode/P4"], ""])
    return table(["stage", "P1", "of it", "P4", "of it"], rows)


def finding(counts):
    rows = []
    for what, count in group(counts, "find").items():
        if what.startswith("P"):
            continue
        size = 200 if what.startswith("200 B") else 2048
        rows.append([f"`{what}`", count, f"{count / size:.2f}"])
    return table(["name", "instructions", "a byte"], rows)


def logging(counts):
    rows = [["a statement, off", counts["log/off"]], ["a statement, on, the record dropped by its sink", counts["log/on"]]]
    rows += [[f"decode of {name}, logs on", count] for name, count in group(counts, "decode-logs-on").items()]
    return table(["", "instructions"], rows)


def kinds(counts, allocations):
    reference = group(counts, "reference-kind")
    rows = [[kind.replace("_", " "), count, reference[kind], f"{reference[kind] / count:.2f}",
             allocations[f"kind/{kind}"], allocations[f"reference-kind/{kind}"]]
            for kind, count in group(counts, "kind").items()]
    return table(["kind", "decode", "reference decoder", "ratio", "allocations", "of the reference decoder"], rows)


def linear(counts):
    one, two = group(counts, "linear/1"), group(counts, "linear/2")
    rows = [[f"`{what}`", f"{count:,}", f"{two[what]:,}", f"{two[what] / count:.2f}"] for what, count in one.items()]
    return table(["made of", "10⁶ bytes", "2 × 10⁶ bytes", "ratio"], rows)


def draw(counts, docs):
    series = {"whole decode": "length", "reference decoder": "reference-length",
              "bare JsonCpp parse": "bare-parse-length"}
    points = {title: [(int(size), count) for size, count in group(counts, name).items()]
              for title, name in series.items()}
    lines(f"{docs}/cost-by-length.svg", "Instructions by payload length", "bytes of JSON payload", points)
    reference = group(counts, "reference-kind")
    rows = [(kind.replace("_", " "), count, reference[kind]) for kind, count in group(counts, "kind").items()]
    bars(f"{docs}/cost-by-kind.svg", "Instructions by kind, the first sample name of each",
         ["decode", "reference decoder"], rows)


def main(build, docs):
    counts = read(f"{build}/instructions.tsv")
    nothing = counts["nothing/nothing"]
    order = [line.rstrip("\n") for line in open(f"{build}/cases.txt", encoding="utf-8")]
    counts = {case: counts[case] - nothing for case in order}
    allocations = read(f"{build}/allocations.tsv")
    parts = {
        "Against the targets": targets(counts, allocations), "Against other ways": peers(counts),
        "By stage": stages(counts), "Finding the kind": finding(counts), "Logging": logging(counts),
        "By kind": kinds(counts, allocations), "Long names": linear(counts),
    }
    text = machine("libjsoncpp-dev", "libc6", "nlohmann-json3-dev", "rapidjson-dev", "valgrind")
    for title, part in parts.items():
        text += f"\n### {title}\n\n{part}"
    rewrite_section(f"{docs}/performance.md", "instructions", text)
    draw(counts, docs)
    print(parts["Against the targets"])
    print(parts["Against other ways"])


main(*sys.argv[1:])
