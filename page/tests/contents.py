"""What the page says is what the native tool says."""

import json
import re

from browser import run_over, run_tool
from names import broken_names, golden_names, sample_names


def without_exception(line):
    """The text of an exception is the standard library's own."""
    return re.sub(r'"exception":"[^"]*"}\n$', '"exception":"..."}\n', line)


def split(names):
    """By entry point: the option of the tool, and the names."""
    return [((["--marker"] if marker else []), [name for name, is_marker in names if is_marker == marker])
            for marker in (False, True)]


def same_as_tool(checks, browser):
    """Decode and explain, byte for byte. The page is told how to read the names, as the tool is."""
    for what, names in (("sample", sample_names()), ("golden name", golden_names()), ("broken name", broken_names(400))):
        for option, some in split(names):
            way = "marker" if option else "bubble"
            for command in ("decode", "explain"):
                native = run_over(some, command, "--format", "json", *option)
                page = browser.run(
                    "return arguments[1].map((name) => bubbles.library[arguments[0]](Uint8Array.from(name), arguments[2]))",
                    command, [list(name) for name in some], way)
                checks.same(f"{what}s, {command} {option}: lines", [len(page), len(native)], [len(some)] * 2)
                for name, line, expected in zip(some, page, native):
                    checks.same(f"{what} {name!r}, {command}", without_exception(line), without_exception(expected))


def same_failures(checks, browser):
    """The library tells the page which decodes fail, as it tells `survey`."""
    names = [name for name, is_marker in golden_names() + broken_names(400) if not is_marker]
    survey = json.loads(run_tool("survey", "--format", "json", given=b"".join(name + b"\n" for name in names)).stdout)
    failed = browser.run("return arguments[0].map((name) => bubbles.library.hasFailed(Uint8Array.from(name), 'bubble'))",
                         [list(name) for name in names])
    expected = sum(kind["failed"] for kind in survey["kinds"].values())
    checks.same("names that fail", sum(failed), expected)
    checks.true("names that fail and names that do not", 0 < sum(failed) < len(failed), f"{sum(failed)} of {len(failed)}")


def same_pictures(checks, browser):
    for name, is_marker in sample_names():
        native = run_tool("draw", *(["--marker"] if is_marker else []), given=name, statuses=(0,)).stdout.decode().rstrip("\n")
        checks.same(f"picture of {name!r}", browser.call("draw", name, "auto", "name"), native)


def shown_members(browser):
    return browser.run("""return Array.from(document.querySelectorAll('#members tr:not(.steer):not(.ignored)'),
                              (row) => Array.from(row.querySelectorAll('code'), (code) => code.textContent))""")


def shown_samples(checks, browser):
    """Every sample, chosen in the page: its rows are what the tool explains."""
    browser.open()
    samples = dict.fromkeys(name for name, _ in sample_names())
    kinds = browser.run("return Array.from(document.getElementById('kind').options, (option) => option.value)")
    native = run_tool("kinds", "--format", "json").stdout.splitlines()
    checks.same("kinds to choose", kinds, [json.loads(line)["kind"] for line in native])
    for kind in kinds:
        browser.run("const kind = document.getElementById('kind'); kind.value = arguments[0];"
                    "kind.dispatchEvent(new Event('change'))", kind)
        for _ in range(3):
            name = browser.name()
            samples.pop(name, None)
            option = ["--marker"] if kind == "marker" else []
            expected = json.loads(run_over([name], "explain", "--format", "json", *option, statuses=(0,))[0])["members"]
            rows = shown_members(browser)
            checks.same(f"members of {name!r}", [row[0] for row in rows], [member["member"] for member in expected])
            values = [json.loads(row[1].split(" (0x")[0]) if not row[1].startswith('"') else json.loads(row[1])
                      for row in rows]
            checks.same(f"values of {name!r}", values, [member["value"] for member in expected])
            checks.same(f"bytes of {name!r}", browser.text("bytes"), name.decode())
            browser.get("next-sample").click()
    checks.same("samples that cannot be chosen", list(samples), [])


def encodes_back(checks, browser):
    """The fields of every sample and golden name, encoded in the page and by the tool."""
    for option, names in split(sample_names() + golden_names()):
        fields = browser.run("""return arguments[0].map((bytes) => {
            const name = Uint8Array.from(bytes);
            try {
              const kind = bubbles.library.kind(name, arguments[1]);
              const fields = bubbles.library.fields(name, arguments[1]);
              if (!kind || !fields) return null;
              const encoded = bubbles.library.encode(kind, JSON.stringify(fields));
              return [kind, JSON.stringify(fields), Array.from(encoded)];
            } catch (error) { return [error.message]; }
          })""", [list(name) for name in names], "marker" if option else "bubble")
        found = [entry for entry in fields if entry is not None and len(entry) == 3]
        checks.true("names have fields", len(found) > len(names) // 2, f"{len(found)} of {len(names)}")
        lines = "".join(f'{{"kind":{json.dumps(kind)},"fields":{given}}}\n' for kind, given, _ in found)
        native = run_tool("encode", "--null", given=lines.encode(), statuses=(0,)).stdout.removesuffix(b"\0").split(b"\0")
        checks.same("names that the tool encodes", len(native), len(found))
        for (_, given, encoded), expected in zip(found, native):
            checks.same(f"encoded {given}", bytes(encoded), expected)
