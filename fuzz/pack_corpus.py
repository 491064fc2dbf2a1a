#!/usr/bin/env python3
"""Prints the inputs in folders as JSON strings, one a line, each character a byte, the shortest first: all of the first
folder, and of the others the shortest, as long as the whole has at most 100,000 bytes.

After a long run, keeps what reaches all code, and some of what runs it another number of times, here of the fuzzer NAME:

    cd build/fuzz
    rm -rf code counts && mkdir code counts
    ../asan/NAME_fuzzer -set_cover_merge=1 -max_len=2048 -use_counters=0 code corpus/NAME seeds/NAME
    ../asan/NAME_fuzzer -set_cover_merge=1 -max_len=256 counts corpus/NAME seeds/NAME
    ../../fuzz/pack_corpus.py code counts >../../fuzz/corpus/NAME.jsonl

The fuzzer explain is slow: the first folder is enough for it. What broke something goes into fuzz/found/NAME.jsonl:
{"was": "what was wrong", "input": "the bytes as above"}, one a line.
"""

import json
import pathlib
import sys

LIMIT = 100_000


def lines_of(folder):
    inputs = sorted((path.read_bytes() for path in pathlib.Path(folder).iterdir()), key=lambda data: (len(data), data))
    return [json.dumps(data.decode("latin-1")) for data in inputs]


kept = lines_of(sys.argv[1])
size = sum(len(line) + 1 for line in kept)
for folder in sys.argv[2:]:
    for line in lines_of(folder):
        if line not in kept and size + len(line) + 1 <= LIMIT:
            kept.append(line)
            size += len(line) + 1
for line in sorted(kept, key=lambda line: (len(json.loads(line)), line)):
    print(line)
