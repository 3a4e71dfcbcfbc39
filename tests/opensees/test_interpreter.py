"""A Tcl interpreter takes the scripts, and what it then holds is the model.

interpreter.tcl has the argument rules of each command. KEPT names the forms that the target itself
refuses or overlooks and that files in the field have nevertheless.
"""

import json
import math
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["VYN_SOURCE_DIR"])
VYNX = os.environ.get("VYN_VYNX")
EXAMPLES = sorted((SOURCE / "examples").glob("*.json"))

KEPT = {
    "the flags of a fixity stand without blanks": r"NO EFFECT fix \d+",
    "fibre sections have no -GJ": r"REFUSED section Fiber \d+: no -GJ",
    "pinned links are rods": r"REFUSED rigidLink rod \d+: word rod",
    "planes in a model of three dimensions": r"REFUSED element quad \d+: in a model of three",
    "loads of beams repeat the pattern of the nodes": r"REFUSED pattern Plain \d+: .*already",
    "other constraints than planes have direction 0": r"REFUSED rigidDiaphragm 0 \d+: direction 0",
    "two values after -GABuck": r"REFUSED uniaxialMaterial ReinforcingSteel \d+: values after -GABuck",
}


def kept_model():
    """One of everything that is kept."""
    nodes = [[0, 0, 0], [4, 0, 0], [4, 3, 0], [0, 3, 0]]
    steel = {"number": 1, "e": [2e11, 0, 0], "nu": [0.3, 0, 0], "g": [8e10, 0, 0]}
    bars = {"number": 2, "model": "uniaxial_reinforcing_steel", "e": [2e11, 0, 0],
            "params": [5e8, 6e8, 2e11, 6e9, 0.01, 0.09],
            "groups": [{"name": "-GABuck", "values": [6, 1]}]}
    plastic = {"number": 3, "model": "uniaxial_steel01", "e": [2e11, 0, 0],
               "params": [5e8, 2e11, 0.01]}
    section = {"description": "STD%RHS%200%100%8%10", "material": {"analysis": 3}}
    load = {"load_case": 1, "direction": "z"}
    return {
        "version": 1,
        "nodes": [{"number": i + 1, "position": at} for i, at in enumerate(nodes)],
        "materials": [steel, bars, plastic],
        "sections": [{"number": 1, "components": [section]}],
        "properties_2d": [{"number": 1, "type": "plane_stress", "thickness": 0.1,
                           "material": {"analysis": 1}}],
        "link_properties": [{"number": 1, "link_type": 1911}],
        "elements": [
            {"number": 1, "type": "beam", "nodes": [1, 2], "property": 1},
            {"number": 2, "type": "quad4", "nodes": [1, 2, 3, 4], "property": 1},
            {"number": 3, "type": "link", "nodes": [2, 3], "property": 1},
        ],
        "node_loads": [{"number": 1, "entities": "2", "value": 5, **load}],
        "beam_loads": [{"number": 1, "entities": "1", "type": "uniform", "points": [{"value": 7}],
                        **load}],
    }


def numbers(text):
    """The numbers of a list such as "1 to 3 7"."""
    text = re.sub(r"(\d+) to (\d+)",
                  lambda m: " ".join(map(str, range(int(m[1]), int(m[2]) + 1))), text)
    return [int(word) for word in text.split()] if re.fullmatch(r"[\d ]+", text) else None


def cross(a, b):
    return [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]]


@unittest.skipUnless(VYNX, "vynx is not built")
@unittest.skipUnless(shutil.which("tclsh"), "no tclsh")
class Interpreter(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def run_script(self, model, case):
        """What the interpreter says of a model, line by line; nothing for a case with loads that
        can't be exported."""
        script = self.folder / "model.tcl"
        export = subprocess.run(
            [VYNX, "export", model, "--to", "opensees", "--case", str(case), "-o", script],
            check=False, capture_output=True, text=True)
        if export.returncode != 0:
            self.assertIn("varies along its elements", export.stderr)
            return None
        run = subprocess.run(["tclsh", SOURCE / "tests/opensees/interpreter.tcl", script],
                             check=True, capture_output=True, text=True)
        self.assertEqual(run.stderr, "")
        return run.stdout.splitlines()

    def check_refusals(self, lines):
        met = set()
        for line in lines:
            if not line.startswith(("REFUSED", "NO EFFECT")):
                continue
            names = [name for name, form in KEPT.items() if re.match(form, line)]
            self.assertTrue(names, line)
            met.update(names)
        return met

    def check_structure(self, model, lines):
        held = [line.split() for line in lines]
        nodes = {int(w[1]): [float(x) for x in w[2:]] for w in held if w[0] == "node"}
        self.assertEqual(set(nodes), {node["number"] for node in model["nodes"]})
        for node in model["nodes"]:
            for a, b in zip(nodes[node["number"]], node["position"]):
                self.assertTrue(math.isclose(a, b, rel_tol=1e-5, abs_tol=1e-12), node)
        elements = {int(w[2]): w for w in held if w[0] == "element"}
        wanted = [e for e in model.get("elements", [])
                  if e["type"] in ("beam", "bar", "rod", "tie", "strut")]
        for element in wanted:
            words = elements[element["number"]]
            self.assertEqual([int(w) for w in words[3:5]], element["nodes"])
            if element["type"] == "beam":
                self.check_transformation(nodes, element, held)
        joints = [[int(j["node_1"]), int(j["node_2"])] for j in model.get("joints", [])]
        self.assertEqual([[int(w[1]), int(w[2])] for w in held if w[0] == "equalDOF"], joints)
        planes = [[r["primary_node"], *numbers(r["nodes"])]
                  for r in model.get("rigid_constraints", [])
                  if r["link_type"] == 2101 and numbers(r["nodes"])]
        held_planes = [[int(x) for x in w[2:]] for w in held if w[0] == "rigidDiaphragm"]
        for plane in planes:
            self.assertIn(plane, held_planes)

    def check_transformation(self, nodes, element, held):
        vector = [float(x) for w in held
                  if w[0] == "geomTransf" and w[2] == str(element["number"]) for x in w[3:]]
        first, second = (nodes[n] for n in element["nodes"])
        along = [b - a for a, b in zip(first, second)]
        self.assertGreater(math.hypot(*cross(along, vector)), 0.99 * math.hypot(*along))

    def check_loads(self, model, case, lines):
        """Loads in global directions, from the local components of each element."""
        held = [line.split() for line in lines]
        nodes = {w[1]: [float(x) for x in w[2:]] for w in held if w[0] == "node"}
        ends = {w[2]: w[3:5] for w in held if w[0] == "element"}
        vectors = {w[2]: [float(x) for x in w[3:]] for w in held if w[0] == "geomTransf"}
        wanted = []
        for load in model.get("beam_loads", []):
            d = {"x": 0, "y": 1, "z": 2}.get(load.get("direction", "z"))
            for element in numbers(load["entities"]) or []:
                if load["load_case"] == case and load.get("axis", 0) == 0 and d is not None:
                    wanted.append((str(element), d, load))
        count = 0
        for element, d, load in wanted:
            if load.get("projected") or element not in vectors:
                continue
            first, second = (nodes[n] for n in ends[element])
            along = [b - a for a, b in zip(first, second)]
            x = [c / math.hypot(*along) for c in along]
            z = vectors[element]
            y = cross(z, x)
            value = load["points"][0]["value"]
            expected = [value * ((1 if k == d else 0) - x[d] * x[k]) for k in range(3)]
            found = False
            for w in held:
                if w[0] == "eleLoad" and w[2] == element:
                    wy, wz = float(w[5]), float(w[6])
                    force = [wy * y[k] + wz * z[k] for k in range(3)]
                    found = found or math.dist(force, expected) < 1e-4 * abs(value)
            self.assertTrue(found, (element, load))
            count += 1
        return count

    def test_examples(self):
        met = set()
        loads = 0
        for path in EXAMPLES:
            model = json.loads(path.read_text(encoding="utf-8"))
            for case in [0] + [c["number"] for c in model.get("load_cases", [])]:
                with self.subTest(model=path.name, case=case):
                    lines = self.run_script(path, case)
                    if lines is not None:
                        met |= self.check_refusals(lines)
                        self.check_structure(model, lines)
                        loads += self.check_loads(model, case, lines)
                        self.assertEqual(lines[-1], "analyze 2")
        self.assertGreater(loads, 50)
        self.assertIn("the flags of a fixity stand without blanks", met)

    def test_every_kept_form_is_met(self):
        path = self.folder / "kept.json"
        path.write_text(json.dumps(kept_model()), encoding="utf-8")
        met = self.check_refusals(self.run_script(path, 1))
        met |= self.check_refusals(self.run_script(SOURCE / "examples" / "isolated.json", 1))
        self.assertEqual(set(KEPT) - met, set())


if __name__ == "__main__":
    unittest.main()
