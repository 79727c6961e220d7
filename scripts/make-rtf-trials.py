#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Makes HTML pages of many forms for scripts/rtf-trials, and compares the texts read back.

    make-rtf-trials.py FOLDER COUNT
    make-rtf-trials.py --compare FOLDER
"""
import base64
import pathlib
import random
import struct
import sys
import zlib

EDIT = "QXZEDITQXZ"
WORDS = "은혜 믿음 소망 사랑 기도 순종 감사 회개 부활 성령 grace faith \u05d3\u05d1\u05e8 λόγος 漢字 {괄호} \\back <b> & 😀 ①".split()
FONTS = ["굴림체", "바탕", "Noto Sans CJK KR", "DejaVu Serif", "Arial", "궁서"]


def escaped(text):
    return text.replace("&", "&amp;").replace("<", "&lt;")


def words(rng, most=14):
    return escaped(" ".join(rng.choice(WORDS) for _ in range(rng.randint(1, most))))


def run(rng):
    text = words(rng)
    for tag in ("b", "i", "u", "s", "sup", "sub"):
        if rng.random() < 0.15:
            text = f"<{tag}>{text}</{tag}>"
    if rng.random() < 0.5:
        style = (f"font-family:'{rng.choice(FONTS)}';font-size:{rng.choice([8, 10, 12, 18, 36])}pt;"
                 f"color:#{rng.randrange(1 << 24):06x}")
        if rng.random() < 0.2:
            style += f";background:#{rng.randrange(1 << 24):06x}"
        text = f'<span style="{style}">{text}</span>'
    return text


def paragraph(rng):
    style = f"text-align:{rng.choice(['left', 'right', 'center', 'justify'])}"
    if rng.random() < 0.3:
        style += f";margin-left:{rng.choice([0, 20, 60])}px;text-indent:{rng.choice([-20, 0, 20])}px"
    if rng.random() < 0.3:
        style += f";line-height:{rng.choice([100, 150, 200])}%;margin-top:{rng.choice([0, 12])}pt"
    parts = " ".join(run(rng) for _ in range(rng.randint(1, 4)))
    if rng.random() < 0.1:
        parts += "<br>" + run(rng)
    return f'<p style="{style}">{parts}</p>'


def table(rng):
    columns = rng.randint(1, 5)
    rows = []
    for _ in range(rng.randint(1, 5)):
        cells, left = [], columns
        while left:
            span = rng.randint(1, left) if rng.random() < 0.2 else 1
            inner = run(rng) if rng.random() < 0.8 else paragraph(rng) + paragraph(rng)
            cells.append(f'<td colspan="{span}">{inner}</td>')
            left -= span
        rows.append("<tr>" + "".join(cells) + "</tr>")
    return f'<table border="{rng.choice([0, 1])}" width="{rng.choice([40, 80, 100])}%">' + "".join(rows) + "</table>"


def items(rng):
    kind = rng.choice(["ul", "ol"])
    return f"<{kind}>" + "".join(f"<li>{run(rng)}</li>" for _ in range(rng.randint(1, 5))) + f"</{kind}>"


def picture(rng):
    width, height = rng.randint(1, 30), rng.randint(1, 30)
    raw = b"".join(b"\0" + bytes(rng.randrange(256) for _ in range(3 * width)) for _ in range(height))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    png = (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
           chunk(b"IDAT", zlib.compress(raw)) + chunk(b"IEND", b""))
    return f'<p>{words(rng, 3)} <img src="data:image/png;base64,{base64.b64encode(png).decode()}"> {words(rng, 3)}</p>'


def make(folder, count):
    for number in range(count):
        rng = random.Random(number)
        kinds = rng.choices([paragraph, table, items, picture], [6, 2, 2, 1], k=rng.randint(1, 12))
        body = "\n".join(kind(rng) for kind in kinds) + paragraph(rng)
        page = f'<html><head><meta charset="utf-8"></head><body>{body}</body></html>'
        (folder / f"trial{number:04d}.html").write_text(page, encoding="utf-8")


def lines(path):
    text = path.read_text(encoding="utf-8-sig")
    return [" ".join(line.split()) for line in text.replace(EDIT, "").splitlines() if line.strip()]


def compare(folder):
    wrong = edited = 0
    pages = sorted(folder.glob("*.html"))
    originals = [page.with_suffix(".txt") for page in pages]
    for original in originals:
        other = original.with_suffix("").with_suffix(".edited.txt")
        if not original.exists() or not other.exists():
            print(f"{original.name}: not read back")
            wrong += 1
            continue
        edited += other.read_text(encoding="utf-8-sig").count(EDIT) == 1
        before, after = lines(original), lines(other)
        if before != after:
            wrong += 1
            pair = next(((a, b) for a, b in zip(before, after) if a != b), (len(before), len(after)))
            print(f"{original.name}: {pair[0]!r} became {pair[1]!r}")
    print(f"{len(originals)} texts, {edited} edited, {wrong} differ elsewhere")
    return 1 if wrong or edited != len(originals) or not originals else 0


if __name__ == "__main__":
    if sys.argv[1] == "--compare":
        sys.exit(compare(pathlib.Path(sys.argv[2])))
    make(pathlib.Path(sys.argv[1]), int(sys.argv[2]))
