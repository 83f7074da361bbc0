#!/usr/bin/env python3
"""Puts the figures of the last ./run bench into the tables of the documentation.

bench_tables.py ROOT: reads build/bench, and renews what stands between "<!-- NAME -->" and
"<!-- end -->" in docs/kernel-speed.md and docs/dialogs-speed.md. Measurements that were not
made keep the table that is there.
"""

import json
import re
import sys
from pathlib import Path

# What a row of the layer is compared with.
BESIDE = {
    "message": "window procedure with a switch",
    "message nobody wants": "`DefWindowProc`",
    "command of": "switch",
    "reflected": "switch",
    "colour": "switch",
    "string copied and trimmed": "`std::wstring`, `find_*_not_of`, `erase`",
    "string copied in capitals": "`std::wstring`, `CharUpperBuff`",
    "strings compared": "`_wcsicmp`",
    "strings joined": "`std::wstring`",
    "text formatted": "`_snwprintf`, `assign`",
    "integer formatted": "the same",
    "number formatted": "the same",
    "array of": "`std::vector`",
    "map walked": "`std::unordered_map`",
    "archive: integers written": "`fwrite`",
    "archive: integers read": "`fread`",
    "archive: strings written": "`fwrite`",
    "archive: strings read": "`fread`",
    "history": "`std::list` with a compare",
    "history shown": "redraw off, `CB_INITSTORAGE`, `CB_ADDSTRING`, redraw on",
    "members": "`LB_GETTEXT`, `LB_GETITEMDATA` into a list",
    "lines written one by one": "`WideCharToMultiByte`, two calls of `WriteFile`",
    "lines written": "`WideCharToMultiByte`, `fwrite`",
    "lines read": "`fgets`, `MultiByteToWideChar`",
    "dialog of 10": "`DialogBoxIndirect`; both from start to first drawing, a process for each",
    "points: list": "owner-data list view with the same texts, `std::sort`",
    "points: point": "the same, `erase` or assignment in a vector",
    "points: part": "half a second",
    "points: plan": "a frame of 100 ms",
    "points: changes repeated": "as many lines of a points file, read as plainly",
    "points: lines read": "whole file, `MultiByteToWideChar`, `wcstod`, `std::map` of names",
    "list of": "enumeration, insertion and one drawing of a list view",
    "tree of": "enumeration, insertion and one drawing of a tree view",
    "100000 lines": "the same one-byte reads, each a call of the system",
}


def table(head, rows):
    lines = [head, ["---"] * len(head), *rows]
    return "".join("| " + " | ".join(line) + " |\n" for line in lines)


def kernel(data):
    rows = []
    for work in data["workloads"]:
        forms = {form["kind"]: form for form in work["forms"] if form["kind"] != "peer"}
        peers = [form for form in work["forms"] if form["kind"] == "peer"]
        best = min(peers, key=lambda form: form["ratio"]["median"], default=None)
        own = forms["kernel"]["ratio"]
        ahead = best is None or best["ratio"]["median"] >= own["median"]
        rows.append([
            work["name"],
            f'{forms["floor"]["nanoseconds"]["median"]:.1f}',
            f'{forms["plain"]["ratio"]["median"]:.2f}',
            f'**{own["median"]:.2f}** ({own["low"]:.2f}..{own["high"]:.2f})',
            "yes" if forms["kernel"]["bit_identical"] else "**no**",
            f'{best["ratio"]["median"]:.2f} {best["name"]}' if best else "none has it",
            f'{work["goal"]:.1f}',
            ("met" if own["median"] <= work["goal"] else "missed") + ("" if ahead else ", behind"),
        ])
    return table(["workload", "floor ns", "plain", "Fieldkit (quartiles)", "same bits", "best other library",
                  "goal", ""], rows)


def span(values):
    low, high = f"{min(values):.2f}", f"{max(values):.2f}"
    return low if low == high else f"{low}..{high}"


def contexts(text):
    """A row for each context and mixture: the ranges over the kinds of coordinates."""
    cells, columns, worst = {}, [], {}
    for line in text.splitlines():
        if line.startswith("context"):
            columns = line.split()[4:]
        elif match := re.match(r"(\w+) +(.+?)  +(?:site|grid, mm|unit) +([\d. ]+)$", line):
            figures = [float(v) for v in match[3].split()][1:]
            cell = cells.setdefault((match[1], match[2]), {})
            table_of = "segments" if "deciding" not in columns else "lines"
            for name, figure in zip(columns, figures):
                cell.setdefault((table_of, name), []).append(figure)
                worst[table_of, name] = max(worst.get((table_of, name), 0), figure)
    peers = ["Eigen", "Boost"]
    head = ["times over the floor", "segments: plain", "Fieldkit", "best other", "infinite lines: plain", "Fieldkit",
            "deciding", "best other"]
    rows = []
    for (context, mix), cell in cells.items():
        best = {of: min((cell[of, peer] for peer in peers if (of, peer) in cell), key=max) for of in
                ("segments", "lines")}
        rows.append([f"{context}: {mix}", span(cell["segments", "plain"]),
                     f'**{span(cell["segments", "Fieldkit"])}**', span(best["segments"]),
                     span(cell["lines", "plain"]), f'**{span(cell["lines", "Fieldkit"])}**',
                     span(cell["lines", "deciding"]), span(best["lines"])])
    rows.append(["worst", f'{worst["segments", "plain"]:.2f}', f'**{worst["segments", "Fieldkit"]:.2f}**', "",
                 f'{worst["lines", "plain"]:.2f}', f'**{worst["lines", "Fieldkit"]:.2f}**',
                 f'{worst["lines", "deciding"]:.2f}', ""])
    return table(head, rows)


DIALOGS = ("list of", "tree of", "100000 lines")


def layer(data, dialogs):
    """A row for each work, with all its sizes: those of the dialogs, or all others."""
    works = {}
    for row in data:
        if row["kind"] != "ratio" or row["name"].startswith(DIALOGS) != dialogs:
            continue
        work, _, size = row["name"].rpartition(", ")
        if not size.isdigit():  # the number at the end of another name is no size
            work, size = row["name"], ""
        works.setdefault(work, []).append((size, row))
    rows = []
    for work, sizes in works.items():
        beside = max((key for key in BESIDE if work.startswith(key)), key=len, default="")
        rows.append([
            work, BESIDE.get(beside, ""), "; ".join(f"{int(size):,}" for size, _ in sizes if size),
            "; ".join(f'{row["result"]:.2f} ({row["quartiles"][0]:.2f}..{row["quartiles"][1]:.2f})'
                      for _, row in sizes),
            f'{sizes[0][1]["goal"]:g}', "met" if all(row["met"] for _, row in sizes) else "**missed**",
        ])
    return table(["work", "beside", "sizes", "ratio (quartiles)", "goal", ""], rows)


def renew(document, name, content):
    text = document.read_text(encoding="utf-8")
    begin, end = f"<!-- {name} -->\n", "<!-- end -->\n"
    before, rest = text.split(begin, 1)
    document.write_text(before + begin + content + end + rest.split(end, 1)[1], encoding="utf-8")


def main():
    root = Path(sys.argv[1])
    bench = root / "build/bench"
    for table_name, document, make in (
        ("kernel.json", "kernel-speed.md", lambda text: kernel(json.loads(text))),
        ("contexts.txt", "kernel-speed.md", contexts),
        ("layer.json", "dialogs-speed.md", lambda text: layer(json.loads(text), False)),
        ("layer.json, dialogs", "dialogs-speed.md", lambda text: layer(json.loads(text), True)),
    ):
        source = bench / table_name.split(",")[0]
        if source.exists():
            renew(root / "docs" / document, table_name, make(source.read_text(encoding="utf-8")))


main()
