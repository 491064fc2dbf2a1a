#!/usr/bin/env python3
"""Prints the inputs in a folder as JSON strings, one a line, each character a byte, the shortest first.

After a long run, keeps what reached new code:

    build/asan/nodes_fuzzer -merge=1 -max_len=512 build/fuzz/minimised build/fuzz/corpus/nodes build/fuzz/seeds/nodes
    fuzz/pack_corpus.py build/fuzz/minimised >fuzz/corpus/nodes.jsonl
"""

import json
import pathlib
import sys

inputs = {path.read_bytes() for path in pathlib.Path(sys.argv[1]).iterdir()}
for data in sorted(inputs, key=lambda data: (len(data), data)):
    print(json.dumps(data.decode("latin-1")))
