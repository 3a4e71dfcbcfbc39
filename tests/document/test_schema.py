"""Holds the JSON Schema of model documents against documents: the examples are valid, and what the
reader refuses for its form is not."""
import copy
import json
import os
import sys

import jsonschema

ROOT = os.environ.get("VYN_SOURCE_DIR", os.getcwd())
MINIMAL = {
    "version": 1,
    "nodes": [{"number": 1, "position": [0, 0, 0]}],
    "members": [{"number": 1, "type": "beam", "topology": [1, 2]}],
    "results": [{"case": 1, "node_displacement": [[1, 0, 0, 0, 0, 0, None]]}],
}
# What is changed in the minimal document, and whether it is still valid.
CASES = [
    ((), None, True),
    (("version",), 2, False),
    (("knots",), [], False),
    (("nodes", 0, "number"), 0, False),
    (("nodes", 0, "number"), 1.5, False),
    (("nodes", 0, "position"), [0, 0], False),
    (("nodes", 0, "position"), [0, None, 0], False),
    (("nodes", 0, "restraint"), ["x", "zz"], True),
    (("nodes", 0, "restraint"), ["w"], False),
    (("nodes", 0, "mas"), 1, False),
    (("nodes", 0, "colour"), "#ff8000", True),
    (("nodes", 0, "colour"), "red", False),
    (("members", 0, "type"), "beams", False),
    (("members", 0, "topology"), 5, False),
    (("members", 0, "topology"), "1 2", True),
    (("members", 0, "release_1"), {"released": ["yy"]}, True),
    (("members", 0, "release_1"), {"released": "yy"}, False),
    (("results", 0, "node_jump"), [], False),
    (("results", 0, "node_displacement", 0, 2), "a", False),
]


def changed(path, value):
    document = copy.deepcopy(MINIMAL)
    place = document
    for step in path[:-1]:
        place = place[step]
    if path:
        place[path[-1]] = value
    return document


def main():
    with open(os.path.join(ROOT, "docs/model.schema.json"), encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft7Validator.check_schema(schema)
    validator = jsonschema.Draft7Validator(schema)
    failures = 0
    for path, value, valid in CASES:
        if validator.is_valid(changed(path, value)) != valid:
            print(f"expected {'valid' if valid else 'invalid'}: {path} = {value!r}")
            failures += 1
    examples = os.path.join(ROOT, "examples")
    for name in sorted(os.listdir(examples)):
        if name.endswith(".json"):
            with open(os.path.join(examples, name), encoding="utf-8") as file:
                for error in validator.iter_errors(json.load(file)):
                    print(f"{name}: {list(error.path)}: {error.message}")
                    failures += 1
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
