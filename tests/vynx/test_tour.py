"""The tour of the examples: its lines, and a page whose links lead somewhere."""

import html.parser
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import urllib.parse

VYNX = os.environ.get("VYN_VYNX")
ROOT = pathlib.Path(os.environ.get("VYN_SOURCE_DIR", os.getcwd()))
MODELS = ("solidbar.json", "foundation.key")
VOID = {"meta", "img", "br"}


class Page(html.parser.HTMLParser):
    """Where a page leads to, and whether its tags close one another."""

    def __init__(self):
        super().__init__()
        self.open, self.targets, self.names = [], [], set()

    def handle_starttag(self, tag, attrs):
        given = dict(attrs)
        self.targets += [given[key] for key in ("href", "src") if key in given]
        self.names |= {"#" + given["id"]} if "id" in given else set()
        if tag not in VOID:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if self.open.pop() != tag:
            raise AssertionError(f"</{tag}> at {self.getpos()}")


@unittest.skipUnless(VYNX, "vynx is not built")
class Tour(unittest.TestCase):
    def setUp(self):
        self.out = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.out)

    def tour(self, *models):
        words = [sys.executable, "-B", ROOT / "scripts/tour/tour.py", "--vynx", VYNX,
                 "--out", self.out, *models]
        return subprocess.run(words, check=False, capture_output=True, text=True, cwd=ROOT)

    def test_page_and_lines(self):
        done = self.tour(*(ROOT / "examples" / name for name in MODELS))
        self.assertEqual(done.returncode, 0, done.stderr)
        rows = [line.split() for line in done.stdout.splitlines()[1:-2]]
        listing = subprocess.run([VYNX, "formats"], check=True, capture_output=True, text=True)
        for name in ("nastran", "sap2000", "sql", "document", "damping"):
            self.assertIn(name, listing.stdout)
            for model in ("solidbar", "foundation"):
                self.assertEqual(sum(row[:2] == [model, name] for row in rows), 1, done.stdout)
        self.assertIn("skipped, the model has no soil data", done.stdout)

        text = (self.out / "index.html").read_text(encoding="utf-8")
        page = Page()
        page.feed(text)
        self.assertEqual(page.open, [])
        self.assertIn("solidbar/solidbar-plan.svg", page.targets)
        for target in page.targets:
            path = self.out / urllib.parse.unquote(target)
            self.assertTrue(target in page.names or path.exists(), target)
        self.assertIn("<th>VYN Material</th>", text)
        self.assertIn("skipped: the model has no soil data", text)

    def test_failure(self):
        broken = self.out / "broken & <co>.json"
        broken.write_text("{", encoding="utf-8")
        done = self.tour(broken)
        self.assertEqual(done.returncode, 1)
        self.assertIn("not written: broken", done.stderr)
        text = (self.out / "index.html").read_text(encoding="utf-8")
        self.assertNotIn("<co>", text)


if __name__ == "__main__":
    unittest.main()
