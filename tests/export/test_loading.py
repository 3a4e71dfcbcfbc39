"""The commands of docs/sql.md load an export into SQLite."""

import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["VYN_SOURCE_DIR"])
VYNX = os.environ.get("VYN_VYNX")


def commands():
    """The blocks of shell commands of the page, in order."""
    page = (SOURCE / "docs" / "sql.md").read_text(encoding="utf-8")
    return re.findall(r"\n```sh\n(.*?)```", page, re.DOTALL)


@unittest.skipUnless(VYNX, "vynx is not built")
class Loading(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def export(self, *options):
        subprocess.run(
            [VYNX, "export", SOURCE / "examples" / "portal.json", "--to", "sql", "-o",
             "out/bridge.sql", *options],
            cwd=self.folder, check=True, stdout=subprocess.DEVNULL)

    def shell(self, script):
        return subprocess.run(["sh", "-eu", "-c", script], cwd=self.folder, check=True,
                              capture_output=True, text=True)

    @unittest.skipUnless(shutil.which("sqlite3"), "no sqlite3")
    def test_sqlite(self):
        self.export()
        result = self.shell(commands()[0])
        self.assertEqual(result.stderr, "")
        database = sqlite3.connect(self.folder / "out" / "bridge.db")
        self.addCleanup(database.close)
        files = {path.stem for path in (self.folder / "out" / "bridge").glob("*/*.sql")}
        tables = {row[0] for row in database.execute("SELECT name FROM sqlite_schema")
                  if not row[0].startswith("sqlite_")}
        self.assertEqual(tables, files)
        for table in files:
            text = (self.folder / "out" / "bridge" / table / f"{table}.sql").read_text()
            count = database.execute(f'SELECT count(*) FROM "{table}"').fetchone()[0]
            self.assertEqual(count, text.count(f"\nINSERT INTO {table} "), table)

    def test_postgresql(self):
        """What the database takes can't be tried here; what the edits leave can be looked at."""
        self.export("--single-file")
        script = commands()[1].replace("$table/$table.sql", "out/bridge/bridge.sql")
        edited = self.shell(script).stdout
        self.assertNotRegex(edited, r"CREATE TABLE '|INSERT INTO case| REAL|VARCHAR")
        self.assertIn('CREATE TABLE "case"\n', edited)
        self.assertIn('  "user" TEXT,\n', edited)
        self.assertIn('CREATE TABLE "permutation"\n(\n  case_id TEXT NOT NULL,\n', edited)
        self.assertIn("  acc_zz_perm INTEGER\n, row_number SERIAL);\n", edited)
        self.assertEqual(edited.count("SERIAL"), 4)
        self.assertEqual(edited.count("\n"), (self.folder / "out/bridge/bridge.sql")
                         .read_text().count("\n"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
