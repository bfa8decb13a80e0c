# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

"""Checks JSON values against a definition of a schema: check-schema.py SCHEMA DEFINITION FILE.

FILE holds one value a line. Prints the number of the first line that does not fit, and why, and exits with 1. Exits with
0 if all fit, and with 2 if the schema itself is wrong.
"""
import json
import sys

import jsonschema

schema_file, definition, values_file = sys.argv[1:]
with open(schema_file, encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft202012Validator.check_schema(schema)
if definition not in schema["$defs"]:
    print(f"{schema_file} has no definition {definition}")
    sys.exit(2)
validator = jsonschema.Draft202012Validator({"$ref": f"#/$defs/{definition}", "$defs": schema["$defs"]})
with open(values_file, encoding="utf-8") as values:
    for number, line in enumerate(values, start=1):
        problem = jsonschema.exceptions.best_match(validator.iter_errors(json.loads(line)))
        if problem is not None:
            print(f"line {number}: {problem.message}: {line}")
            sys.exit(1)
