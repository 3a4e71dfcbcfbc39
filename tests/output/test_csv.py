"""Output views read by the csv module."""

import csv
import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

VYNX = os.environ.get("VYN_VYNX")
TITLE_ROWS = 11
NAMES = ['plain', 'a, b; "c"', 'two\nlines', 'tab\there', "Stra\u00dfe \u6a4b \U0001f332", '"']


@unittest.skipUnless(VYNX, "vynx is not built")
class Views(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        nodes = [{"number": 2 * k + 1, "name": name, "position": [k, -k / 3, 1e9]}
                 for k, name in enumerate(NAMES)]
        view = {"number": 1, "name": "Nodes, all", "data": ["nodes"]}
        model = {"version": 1, "nodes": nodes, "views": [view]}
        (self.folder / "model.json").write_text(json.dumps(model), encoding="utf-8")

    def rows(self, name, delimiter):
        subprocess.run([VYNX, "export", "model.json", "--to", "view", "-o", name],
                       cwd=self.folder, check=True, env={**os.environ, "LC_ALL": "C"})
        raw = (self.folder / name).read_bytes()
        self.assertTrue(raw.startswith(b"\xef\xbb\xbf"))
        self.assertNotIn(b"\r", raw)
        with open(self.folder / name, encoding="utf-8-sig", newline="") as file:
            return list(csv.reader(file, delimiter=delimiter, strict=True))

    def test_cells(self):
        for name, delimiter in (("t.csv", ","), ("t.TXT", "\t")):
            rows = self.rows(name, delimiter)
            self.assertEqual(rows[0], ["Nodes, all : Nodes"])
            self.assertEqual(rows[TITLE_ROWS + 1][:2], ["Node", "Name"])
            body = rows[TITLE_ROWS + 3:-1]
            self.assertEqual([row[1] for row in body], NAMES)
            self.assertEqual([int(row[0]) for row in body], [1, 3, 5, 7, 9, 11])
            for k, row in enumerate(body):
                self.assertAlmostEqual(float(row[3]), -k / 3, places=5)
                self.assertEqual(float(row[4]), 1e9)


if __name__ == "__main__":
    unittest.main()
