"""Turns the counts of scripts/instructions into the tables and plots of docs/performance.md.

instructions_report.py BUILD_FOLDER DOCS_FOLDER
"""

import sys

from plot import bars, lines
from report import group, machine, rewrite_section, table

PAYLOADS = ["P1", "P2", "P3"]
FALLBACKS = ["P1 with a comment", "P1 with 19 digits", "P1 with a broken end"]

# What the same cases cost at commit 8e34272, before there was a scanner: counted once.
BEFORE = {"decode-logs-on/P1": 38014, "decode-logs-on/P4": 20381,
          "decode/P1 with a comment": 26172, "decode/P1 with 19 digits": 26488, "decode/P1 with a broken end": 23313}


def read(path):
    with open(path, encoding="utf-8") as file:
        return {case: int(count) for case, count in (line.rstrip("\n").split("\t") for line in file)}


def target(what, value, firm, reached_for=None, form=""):
    if value > firm:
        verdict = "not met"
    elif reached_for is None:
        verdict = "met"
    else:
        verdict = "met, reached" if value <= reached_for else "met, not reached"
    return [what, format(value, form), format(firm, form), "" if reached_for is None else format(reached_for, form),
            verdict]


def without_scanner(counts, name):
    """What the decode of `name` would cost if JsonCpp's tree were listed at once."""
    return counts[f"decode/{name}"] - counts[f"library-job/{name}"] + counts[f"tree-job/{name}"]


def decode_targets(counts, allocations):
    rows = []
    for name, firm, reached_for in (("P1", 0.22, 0.19), ("P2", 0.17, 0.14), ("P3", 0.12, 0.10)):
        ratio = counts[f"decode/{name}"] / counts[f"bare-parse/{name}"]
        rows.append(target(f"decode of {name} over the bare parse", ratio, firm, reached_for, ".3f"))
    for name in PAYLOADS:
        ratio = counts[f"decode/{name}"] / counts[f"rapidjson-job/{name}"]
        rows.append(target(f"decode of {name} over parse + keys by RapidJSON", ratio, 0.75, 0.6, ".3f"))
    for name in FALLBACKS:
        ratio = counts[f"decode/{name}"] / without_scanner(counts, name)
        rows.append(target(f"decode of {name} over the same without the scanner", ratio, 1.10, 1.04, ".3f"))
        ratio = counts[f"decode/{name}"] / BEFORE[f"decode/{name}"]
        rows.append(target(f"decode of {name} over before", ratio, 1.10, 1.04, ".3f"))
    rows.append(target("decode of P4, instructions", counts["decode/P4"], 3400, 3000, ",d"))
    for name in ("P1", "P4"):
        beyond = allocations[f"decode/{name}"] - allocations["snapshot/names of 8 bytes"]
        rows.append(target(f"decode of {name}, allocations beyond the snapshot's own", beyond, 4))
    ratio = counts["decode-logs-on/P1"] / BEFORE["decode-logs-on/P1"]
    rows.append(target("decode of P1 with logs on over before", ratio, 0.5, 0.35, ".3f"))
    for what, firm, reached_for in (("one text", 5, 3.5), ("array of objects", 35, 25), ("brackets, closed", 70, 50)):
        millions = counts[f"linear/1/{what}"] / 1e6
        rows.append(target(f"10⁶ bytes of `{what}`, million instructions", millions, firm, reached_for, ".1f"))
    return rows


def finding_targets(counts):
    sizes = {"200 B of text": 200, "2 KB of text": 2048, "2 KB without a marker": 2048}
    text = max(counts[f"find/{what}"] / size for what, size in sizes.items())
    per_byte = {what: count / 2048 for what, count in group(counts, "find").items() if what.startswith("2 KB of ")}
    tails = max(cost for what, cost in per_byte.items() if what.endswith("Bubble"))
    dots = max(cost for what, cost in per_byte.items() if not what.endswith("Bubble"))
    finding = "finding the kind in "
    return [target(finding + "a text, instructions a byte, the worst", text, 2, form=".2f"),
            target(finding + "2 KB of dots, cut markers or 'B's, instructions a byte, the worst", dots, 6, form=".2f"),
            target(finding + "2 KB of nothing but `Bubble` or `.eBubble`, instructions a byte", tails, 6, form=".2f")]


def targets(counts, allocations, bulk):
    rows = decode_targets(counts, allocations)
    rows.append(target("the tool in bulk, instructions a name", bulk, 32000, 27000, ",d"))
    rows += finding_targets(counts)
    rows.append(target("a log statement that is off, instructions", counts["log/off"], 240))
    return table(["what", "measured", "firm", "reached for", ""], rows)


def peers(counts):
    ways = [("decode", "the whole decode"), ("bare-parse", "the bare JsonCpp parse"),
            ("reference", "the reference decoder"), ("library-job", "parse + keys, this library"),
            ("simdjson-job", "parse + keys, simdjson on demand"), ("rapidjson-job", "parse + keys, RapidJSON"),
            ("nlohmann-job", "parse + keys, nlohmann::json"), ("jsoncpp-job", "parse + keys, JsonCpp")]
    rows = []
    for way, title in ways:
        row = [title]
        for name in PAYLOADS:
            count = counts[f"{way}/{name}"]
            row += [count, f"{count / counts[f'bare-parse/{name}']:.2f}"]
        rows.append(row)
    return table(["", "P1", "ratio", "P2", "ratio", "P3", "ratio"], rows)


def differences(path):
    """What each peer does with odd payloads otherwise than the library, from the answers of kavrix-peer-answers."""
    with open(path, encoding="utf-8") as file:
        header, *rows = [line.rstrip("\n").split("\t") for line in file]
    cells = []
    for column, peer in enumerate(header[2:], start=2):
        refuses, takes, other = [], [], []
        for what, library, answer in ((row[0], row[1], row[column]) for row in rows):
            if answer == library:
                continue
            if answer in ("refused", "throws"):
                refuses.append(what if library != "refused" else f"{what}, by an exception")
            else:
                (takes if library == "refused" else other).append(what)
        cells.append([peer, *(", ".join(names) for names in (refuses, takes, other))])
    return (f"Of {len(rows)} odd payloads, each peer takes these otherwise than the library:\n\n"
            + table(["", "refuses", "takes", "reads otherwise"], cells).replace(" ---: ", " --- "))


def stages(counts):
    p1 = {"finding the kind": counts["find/P1"], "envelope": counts["envelope/P1"],
          "payload into nodes": counts["parse/P1"], "descriptor and keys": counts["keys/P1"],
          "snapshot": counts["snapshot/names of 8 bytes"],
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
    rows = [["a statement, off", counts["log/off"], ""],
            ["a statement, on, the record dropped by its sink", counts["log/on"], ""]]
    rows += [[f"decode of {name}, logs on", count, BEFORE[f"decode-logs-on/{name}"]]
             for name, count in group(counts, "decode-logs-on").items()]
    return table(["", "instructions", "before"], rows)


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
    nothing, bulk = counts["nothing/nothing"], counts["bulk"]
    order = [line.rstrip("\n") for line in open(f"{build}/cases.txt", encoding="utf-8")]
    counts = {case: counts[case] - nothing for case in order}
    allocations = read(f"{build}/allocations.tsv")
    parts = {
        "Against the targets": targets(counts, allocations, bulk),
        "Against other ways": peers(counts) + "\n" + differences(f"{build}/answers.tsv"),
        "By stage": stages(counts), "Finding the kind": finding(counts), "Logging": logging(counts),
        "By kind": kinds(counts, allocations), "Long names": linear(counts),
    }
    text = machine("libjsoncpp-dev", "libc6", "libsimdjson-dev", "nlohmann-json3-dev", "rapidjson-dev",
                   "valgrind")
    for title, part in parts.items():
        text += f"\n### {title}\n\n{part}"
    rewrite_section(f"{docs}/performance.md", "instructions", text)
    draw(counts, docs)
    print(parts["Against the targets"])
    print(parts["Against other ways"])


main(*sys.argv[1:])
