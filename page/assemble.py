#!/usr/bin/env python3
"""Puts the page together: one HTML file with the style, the script, the compressed library, the samples and the
built-in configuration in it. Run by scripts/page, in the project's folder.

usage: page/assemble.py LIBRARY.js LIBRARY.wasm INDEX.html
"""

import base64
import glob
import gzip
import hashlib
import json
import sys

SCRIPTS = ("bytes", "library", "dom", "name_view", "members", "fields", "config", "list", "page")


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def inside_script(text):
    """A script element ends with the first "</script", and "<!--" may hide that, also where they are part of a text."""
    if "</" in text or "<!--" in text:
        sys.exit('assemble: "</" or "<!--" would end the script')
    return text


def source(text):
    return "'sha256-" + base64.b64encode(hashlib.sha256(text.encode()).digest()).decode() + "'"


def samples():
    paths = sorted(glob.glob("samples/*_bubble.txt")) + ["samples/marker_name.txt"]
    return [name for path in paths for name in read(path).splitlines()]


def main():
    glue, wasm_path, output = sys.argv[1:]
    with open(wasm_path, "rb") as file:
        wasm = gzip.compress(file.read(), 9, mtime=0)
    parts = ['"use strict";\n(() => {\n', *(read(f"page/{name}.js") for name in SCRIPTS), "})();\n"]
    script = inside_script("\n" + read(glue) + "".join(parts))
    style = "\n" + read("page/page.css")
    policy = (f"default-src 'none'; script-src {source(script)} 'wasm-unsafe-eval'; style-src {source(style)}; "
              "base-uri 'none'; form-action 'none'")
    values = {
        "POLICY": policy,
        "STYLE": style,
        "SAMPLES": inside_script(json.dumps(samples(), ensure_ascii=False)),
        "CONFIG": inside_script(read("samples/default_config.json")),
        "WASM": base64.b64encode(wasm).decode(),
        "SCRIPT": script,
    }
    page = read("page/index.html")
    for name, value in values.items():
        if page.count(f"@{name}@") != 1:
            sys.exit(f"assemble: @{name}@ must stand in page/index.html once")
        page = page.replace(f"@{name}@", value)
    with open(output, "w", encoding="utf-8") as file:
        file.write(page)
    size, packed = len(page.encode()), len(gzip.compress(page.encode(), 9))
    print(f"page: {output}, {size:,} bytes, {packed:,} gzipped")


main()
