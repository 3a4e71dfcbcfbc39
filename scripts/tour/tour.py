"""Writes models in every format that vynx has and draws them: a line per file on standard output,
and index.html in the folder that all of it goes to."""
import argparse
import pathlib
import re
import subprocess
import sys
import time

import page

VIEWS = ("iso", "plan", "xz", "yz")
# a row of `vynx formats`, and an option of the format above it
FORMAT = re.compile(r"  (\S+)\s+(.*), (read and written|read|written), (\.\S+)")
OPTION = re.compile(r"      --(\S+)")
LACK = re.compile(r"vynx: .*: can't be written as \S+: (.*)")


def formats(vynx):
    """The formats that vynx writes: id, title, first extension, whether it makes a report."""
    listing = subprocess.run([vynx, "formats"], check=True, capture_output=True, text=True).stdout
    out = []
    for line in listing.partition("Formats of vynx")[2].splitlines():
        if found := FORMAT.match(line):
            name, title, direction, extension = found.groups()
            out.append({"id": name, "title": title, "extension": extension, "report": False})
            out[-1]["written"] = "written" in direction
        elif (found := OPTION.match(line)) and found[1] == "report":
            out[-1]["report"] = True
    return [row for row in out if row["written"]]


def run(words):
    """Runs vynx: status, lines of standard output, lines of standard error, seconds."""
    start = time.perf_counter()
    done = subprocess.run(words, check=False, capture_output=True, encoding="utf-8",
                          errors="replace")
    seconds = time.perf_counter() - start
    return done.returncode, done.stdout.splitlines(), done.stderr.splitlines(), seconds


def size_of(path):
    """Bytes of a file, or of all files of a folder."""
    files = [file for file in path.rglob("*") if file.is_file()] if path.is_dir() else [path]
    return sum(file.stat().st_size for file in files), len(files)


def entry(model, name, path, seconds, notes):
    """What was written, told on a line."""
    size, count = size_of(path)
    files = f"{path}/ ({count} files)" if path.is_dir() else str(path)
    print(f"{model:<12}{name:<12}{page.size_text(size):>10}{seconds:>9.2f} s  {files}", flush=True)
    return {"name": name, "path": path, "size": size, "seconds": seconds, "notes": notes}


def export(vynx, source, folder, row, known):
    """Writes a model in one format; what came of it. Notes that are `known` are left out."""
    target = folder / (source.stem + row["extension"])
    report = folder / f"{source.stem}.{row['id']}.report"
    words = [vynx, "export", source, "--to", row["id"], "-o", target]
    status, _, errors, seconds = run(words + (["--report", report] if row["report"] else []))
    notes = [line for line in errors if line.strip() and line not in known]
    lack = next((found[1] for line in errors if (found := LACK.match(line))), None)
    if status != 0:
        what = f"skipped, {lack}" if lack else "FAILED"
        print(f"{source.stem:<12}{row['id']:<12}{what:>10}", flush=True)
        return {"name": row["id"], "skipped": lack, "notes": notes}
    written = target if target.exists() else target.with_suffix("")
    out = entry(source.stem, row["id"], written, seconds, notes)
    if report.exists():
        out["report"] = report.read_text(encoding="utf-8")
    return out


def draw(vynx, source, folder, known):
    """Draws a model from all sides."""
    out = []
    for view in VIEWS:
        target = folder / f"{source.stem}-{view}.svg"
        status, _, errors, seconds = run([vynx, "draw", source, "--view", view, "-o", target])
        if status == 0:
            notes = [line for line in errors if line.strip() and line not in known]
            out.append(entry(source.stem, f"draw {view}", target, seconds, notes))
        else:
            print(f"{source.stem:<12}{'draw ' + view:<12}{'FAILED':>10}", flush=True)
            out.append({"name": f"draw {view}", "skipped": None, "notes": errors})
    return out


def visit(vynx, source, out, rows):
    """One model: what it holds, its files and its drawings."""
    folder = out / source.stem
    folder.mkdir(parents=True, exist_ok=True)
    status, info, errors, _ = run([vynx, "info", source])
    return {
        "name": source.stem,
        "source": str(source),
        "info": info if status == 0 else errors,
        "reading": errors,
        "files": [export(vynx, source, folder, row, errors) for row in rows],
        "drawings": draw(vynx, source, folder, errors),
    }


def failed(model):
    return [
        f"{model['name']}: {file['name']}"
        for file in model["files"] + model["drawings"]
        if "path" not in file and not file["skipped"]
    ]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--vynx", required=True)
    parser.add_argument("--out", required=True, type=pathlib.Path)
    parser.add_argument("models", nargs="+", type=pathlib.Path)
    given = parser.parse_args()
    rows = formats(given.vynx)
    print(f"{'model':<12}{'format':<12}{'size':>10}{'time':>11}  file")
    models = [visit(given.vynx, source, given.out, rows) for source in given.models]
    index = given.out / "index.html"
    index.write_text(page.page(models, rows, given.out), encoding="utf-8")
    print(f"\nAll of it on one page: {index}")
    failures = [text for model in models for text in failed(model)]
    if failures:
        sys.exit("not written: " + ", ".join(failures))


if __name__ == "__main__":
    main()
