"""Drawings read by an XML parser: every example from every side, and names of every kind."""

import json
import os
import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as xml

VYNX = os.environ.get("VYN_VYNX")
EXAMPLES = pathlib.Path(os.environ.get("VYN_SOURCE_DIR", os.getcwd())) / "examples"
SVG = "{http://www.w3.org/2000/svg}"
PATH = re.compile(r"M(-?[\d.]+ -?[\d.]+L)*-?[\d.]+ -?[\d.]+Z?$")
NAMES = ['a & b < c > "d"', "tab\tline\nend", "Stra\u00dfe \u6a4b \U0001f332", "]]>", "\x01\x1b",
         "\ufffe", "x" * 500]


def draw(source, *options):
    words = [VYNX, "draw", source, "-o", "-", *options]
    done = subprocess.run(words, check=True, stdout=subprocess.PIPE)
    return xml.fromstring(done.stdout)


def texts(root):
    return [element.text or "" for element in root.iter(SVG + "text")]


@unittest.skipUnless(VYNX, "vynx is not built")
class Drawings(unittest.TestCase):
    def check(self, root):
        width, height = float(root.get("width")), float(root.get("height"))
        self.assertEqual(width, 1000)
        for path in root.iter(SVG + "path"):
            self.assertRegex(path.get("d"), PATH)
            figures = [float(n) for n in re.findall(r"-?[\d.]+", path.get("d"))]
            for x, y in zip(figures[::2], figures[1::2]):
                self.assertTrue(0 <= x <= width and 0 <= y <= height, path.get("d"))
        for text in root.iter(SVG + "text"):
            self.assertTrue(0 <= float(text.get("x")) <= width, text.text)
            self.assertTrue(0 <= float(text.get("y")) <= height, text.text)

    def test_examples(self):
        sources = [path for path in sorted(EXAMPLES.iterdir())
                   if path.suffix in (".json", ".key", ".vyb")]
        self.assertGreater(len(sources), 7)
        for source in sources:
            views = ("iso", "plan", "xz", "yz") if source.stem in ("plate", "frame6") else ("iso",)
            for view in views:
                with self.subTest(source=source.name, view=view):
                    root = draw(source, "--view", view)
                    self.check(root)
                    self.assertIn(source.name, texts(root)[1])

    def test_names(self):
        nodes = [{"number": n, "position": [n, 0, 0]} for n in (1, 2)]
        sections = [{"number": n, "name": name, "components": [{"description": "STD%R%100%50"}]}
                    for n, name in enumerate(NAMES, 1)]
        elements = [{"number": n, "type": "beam", "nodes": [1, 2], "property": n}
                    for n in range(1, len(NAMES) + 1)]
        for name in NAMES:
            model = {"version": 1, "titles": {"job_title": name}, "nodes": nodes,
                     "sections": sections, "elements": elements}
            with tempfile.TemporaryDirectory() as folder:
                source = pathlib.Path(folder) / "model.json"
                source.write_text(json.dumps(model), encoding="utf-8")
                root = draw(source)
            self.check(root)
            shown = texts(root)
            if len(name) < 80 and name.isprintable():
                self.assertEqual(shown[0], name)
            self.assertLessEqual(len(shown[0]), 80)
            self.assertIn('a & b < c > "d"', shown)


if __name__ == "__main__":
    unittest.main()
