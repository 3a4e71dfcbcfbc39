"""The page of the tour: what was written of each model, with drawings, notes and reports."""
import os
import re
from html import escape

STYLE = """
:root { --ink: #22303c; --soft: #5d6d7e; --line: #dde3e8; --tint: #f5f8fa; --link: #1f5fa8; }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 72rem; padding: 1.5rem 1rem 4rem; color: var(--ink);
  background: #fff; font: 16px/1.5 "Liberation Sans", "DejaVu Sans", Helvetica, Arial, sans-serif; }
h1 { margin: 0 0 .25rem; font-size: 1.7rem; }
h2 { margin: 3rem 0 .25rem; font-size: 1.3rem; padding-top: 1rem; border-top: 2px solid var(--line); }
h3 { margin: 1.5rem 0 .5rem; font-size: 1rem; }
p { margin: .25rem 0 .75rem; } .soft { color: var(--soft); }
a { color: var(--link); } nav { display: flex; flex-wrap: wrap; gap: .25rem 1.25rem; margin: 1rem 0; }
figure { margin: 1rem 0; border: 1px solid var(--line); border-radius: 6px; padding: .5rem; }
figure img { display: block; width: 100%; height: auto; max-height: 44rem; }
figcaption { display: flex; flex-wrap: wrap; gap: .25rem 1rem; padding: .5rem .5rem 0;
  font-size: .9rem; border-top: 1px solid var(--line); margin-top: .5rem; }
.wide { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; font-size: .9rem; }
th, td { text-align: left; vertical-align: top; padding: .35rem .75rem .35rem 0;
  border-bottom: 1px solid var(--line); }
th { color: var(--soft); font-weight: normal; } td.number, th.number { text-align: right;
  white-space: nowrap; font-variant-numeric: tabular-nums; }
tr.skipped td { color: var(--soft); }
ul.notes { margin: 0; padding-left: 1.1rem; } ul.notes li { overflow-wrap: anywhere; }
details { margin: .25rem 0; } summary { cursor: pointer; color: var(--link); }
pre { margin: .5rem 0; padding: .75rem; background: var(--tint); border-radius: 6px;
  overflow-x: auto; font-size: .8rem; line-height: 1.4; }
details table { width: auto; font-size: .85rem; } details td, details th { padding-right: 1.5rem; }
@media (max-width: 40rem) {
  .files thead { display: none; }
  .files tr { display: block; padding: .5rem 0; border-bottom: 1px solid var(--line); }
  .files td { display: block; border: 0; padding: .1rem 0; }
  .files td.number { text-align: left; display: inline-block; margin-right: 1rem; }
  .files td.number:empty { display: none; }
}
"""
# notes of one file that are shown at once; more stand behind a summary
FEW = 4
TABLE = re.compile(r"<table><tableheader>(.*?)</tableheader>\n(.*?)</table>", re.DOTALL)
HEADING = re.compile(r"<h\d>(.*?)</h\d>")


def size_text(size):
    """Bytes in the largest unit that leaves a figure of one and more."""
    for unit in ("B", "kB", "MB"):
        if size < 1000 or unit == "MB":
            return f"{size} B" if unit == "B" else f"{size:.1f} {unit}"
        size /= 1000
    return ""


def table_row(cells, tag):
    return "<tr>" + "".join(f"<{tag}>{escape(cell)}</{tag}>" for cell in cells) + "</tr>"


def report_html(report):
    """A report in the host's mark-up: headings, and tables with tabs between their cells."""
    out, at = [], 0
    for table in TABLE.finditer(report):
        out += [f"<h3>{escape(text)}</h3>" for text in HEADING.findall(report[at:table.start()])]
        rows = [table_row(line.split("\t"), "td") for line in table[2].splitlines()]
        head = table_row(table[1].split("\t"), "th")
        out.append(f'<div class="wide"><table>{head}{"".join(rows)}</table></div>')
        at = table.end()
    return "".join(out)


def notes_html(notes):
    items = "".join(f"<li>{escape(note)}</li>" for note in notes)
    if not notes:
        return ""
    html = f'<ul class="notes">{items}</ul>'
    if len(notes) <= FEW:
        return html
    return f"<details><summary>{len(notes)} lines</summary>{html}</details>"


def link(path, text, out):
    # a path of the system, with slashes and escapes of a URL
    url = "/".join(map(quoted, os.path.relpath(path, out).split(os.sep)))
    return f'<a href="{escape(url)}">{escape(text)}</a>'


def quoted(part):
    return "".join(c if c.isalnum() or c in "-._~" else f"%{ord(c):02X}" for c in part)


def file_row(file, titles, out):
    title = escape(titles.get(file["name"], ""))
    name = f"<td><b>{escape(file['name'])}</b><br><span class=\"soft\">{title}</span></td>"
    if "path" not in file:
        why = f"skipped: {file['skipped']}" if file["skipped"] else "not written"
        notes = "" if file["skipped"] else notes_html(file["notes"])
        empty = '<td class="number"></td>' * 2
        return f'<tr class="skipped">{name}<td>{escape(why)}</td>{empty}<td>{notes}</td></tr>'
    path = file["path"]
    text = path.name + "/" if path.is_dir() else path.name
    report = file.get("report", "")
    more = f"<details><summary>Report</summary>{report_html(report)}</details>" if report else ""
    return (
        f"<tr>{name}<td>{link(path, text, out)}</td>"
        f'<td class="number">{size_text(file["size"])}</td>'
        f'<td class="number">{file["seconds"]:.2f} s</td>'
        f"<td>{notes_html(file['notes'])}{more}</td></tr>"
    )


def figure(model, out):
    drawn = [drawing for drawing in model["drawings"] if "path" in drawing]
    if not drawn:
        return ""
    url = os.path.relpath(drawn[0]["path"], out)
    links = "".join(link(d["path"], d["name"].split()[1], out) for d in drawn)
    return (
        f'<figure><img src="{escape(url)}" alt="Drawing of {escape(model["name"])}">'
        f'<figcaption><span class="soft">Views</span>{links}</figcaption></figure>'
    )


def section(model, titles, out):
    rows = "".join(file_row(file, titles, out) for file in model["files"])
    info = escape("\n".join(model["info"]))
    name = escape(model["name"])
    return (
        f'<h2 id="{name}">{name}</h2><p class="soft">{escape(model["source"])}</p>'
        f"{figure(model, out)}{notes_html(model['reading'])}"
        f"<details><summary>What it holds</summary><pre>{info}</pre></details>"
        '<div class="wide"><table class="files"><thead><tr><th>Format</th><th>File</th>'
        '<th class="number">Size</th><th class="number">Time</th><th>Notes and warnings</th></tr>'
        f"</thead><tbody>{rows}</tbody></table></div>"
    )


def page(models, formats, out):
    """The whole page; `out` is the folder that it stands in."""
    titles = {row["id"]: row["title"] for row in formats}
    contents = "".join(f'<a href="#{escape(m["name"])}">{escape(m["name"])}</a>' for m in models)
    written = sum("path" in file for model in models for file in model["files"])
    return (
        '<!DOCTYPE html>\n<html lang="en"><head><meta charset="utf-8">'
        '<meta name="viewport" content="width=device-width, initial-scale=1">'
        f"<title>Vyn Interchange: the examples</title><style>{STYLE}</style></head><body>"
        "<h1>Vyn Interchange: the examples</h1>"
        f'<p class="soft">{len(models)} models in {len(formats)} formats, {written} exports. Times '
        "are those of a whole run of vynx, reading the model included.</p>"
        f"<nav>{contents}</nav>{''.join(section(model, titles, out) for model in models)}"
        "</body></html>\n"
    )
