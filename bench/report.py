"""What the two reports share: Markdown tables, the machine, and the sections of a document that they rewrite."""

import datetime
import os
import re
import subprocess
import textwrap


def table(header, rows):
    lines = ["| " + " | ".join(header) + " |", "| --- |" + " ---: |" * (len(header) - 1)]
    lines += ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows]
    return "\n".join(lines) + "\n"


def output(*command):
    try:
        return subprocess.run(command, capture_output=True, text=True, check=False).stdout
    except OSError:
        return ""


def package(name):
    version = output("dpkg-query", "-W", "-f", "${Version}\n", name).splitlines()
    return version[0] if version else "not a package"


def machine(*packages):
    model = re.search(r"Model name:\s*(.*)", output("lscpu"))
    compiler = output("g++", "--version").splitlines()[0]
    versions = ", ".join(f"{name} {package(name)}" for name in packages)
    text = (
        f"Measured on {datetime.date.today().isoformat()}: {model.group(1) if model else 'a processor without a name'}, "
        f"{os.cpu_count()} processors; {compiler}; Release build; {versions}."
    )
    return textwrap.fill(text, 120, break_on_hyphens=False) + "\n"


def rewrite_section(path, name, text):
    """Puts `text` between the two comments that mark the section `name`."""
    begin, end = f"<!-- {name}: begin -->", f"<!-- {name}: end -->"
    with open(path, encoding="utf-8") as file:
        document = file.read()
    head, rest = document.split(begin)
    tail = rest.split(end)[1]
    with open(path, "w", encoding="utf-8") as file:
        file.write(f"{head}{begin}\n\n{text.strip()}\n\n{end}{tail}")


def group(costs, name):
    """The cases of one group, without its name, in their order."""
    return {case[len(name) + 1 :]: cost for case, cost in costs.items() if case.startswith(name + "/")}
