"""Reads a JSON Schema and documents from standard input, separated by NUL. Writes a line for each document: a JSON string with
what the schema refuses in it first, empty when it takes it."""

import json
import sys

from jsonschema import Draft202012Validator

schema, *documents = map(json.loads, sys.stdin.buffer.read().split(b"\0"))
Draft202012Validator.check_schema(schema)
validator = Draft202012Validator(schema)
for document in documents:
    error = next(validator.iter_errors(document), None)
    print(json.dumps("" if error is None else f"{error.json_path}: {error.message}"))
