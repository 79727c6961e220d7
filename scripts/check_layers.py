#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Reads every #include below src/ and modules/ and tells those that point upwards.

A folder may include itself and what its row names, directly or through those rows. A row may also
name one file, without its suffix, that lies lower than the folder it stands in.
"""
import pathlib
import re
import sys

TEXT = ["text/rtf", "text/original"]
STORES = ["jet", "platform/registry", "platform/files"]
CONTROLS = ["platform/controls", "platform/dialogs", "platform/printing", "platform/mail"]
LAYERS = {
    "canon": [],
    "text": ["canon"],
    "text/rtf": ["text"],
    "text/original": ["text"],
    "platform": ["text"],
    "jet": ["jet/rows", "jet/import"],
    "jet/rows": ["jet/sql"],
    "jet/sql": ["jet/store"],
    "jet/import": ["jet/store"],
    "jet/store": ["jet/error", "platform", "text"],
    "jet/error": [],
    "platform/registry": ["platform/files"],
    "platform/files": ["platform", "text"],
    "data": STORES + TEXT,
    "platform/controls": ["data"],
    "platform/dialogs": ["platform/controls"],
    "platform/printing": ["platform/controls"],
    "platform/mail": ["platform/controls"],
    "forms": CONTROLS,
    "print": ["forms"],
    "panel": ["forms"],
    "palette": ["forms"],
    "records": ["print"],
    "search": ["panel", "print"],
    "tools": ["panel", "print"],
    "reader": ["palette", "panel", "print"],
    "app": ["reader", "search", "tools", "records"],
}
# The builder of data modules: folders below modules/.
BUILDER = {
    "check": ["canon", "jet"],
    "sources": ["check", "platform"],
    "reference": ["sources", "data"],
    "original": ["reference", "text/original"],
    "map": ["reference"],
    "recipes": ["original", "map"],
    "import": ["sources", "jet"],
    "cli": ["recipes", "import"],
}
LAYERS |= BUILDER
OUTSIDE = ("platform", "jet", *BUILDER)
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
# What only platform/ and the engine may name: the rest meets it through narrow interfaces.
GUARDED = re.compile(
    r"\b(QMessageBox|QFileDialog|QDialog::exec|QDateTime::currentDateTime|QDesktopServices|"
    r"QSettings|QProcess|QPrinterInfo|sqlite3_\w+)\b"
)


def reachable(folder):
    seen, todo = {folder}, [folder]
    while todo:
        for below in LAYERS[todo.pop()]:
            if below not in seen:
                seen.add(below)
                todo.append(below)
    return seen


def folder_of(path):
    parts = pathlib.PurePosixPath(path).with_suffix("").parts
    two = "/".join(parts[:2])
    return two if two in LAYERS else parts[0] if len(parts) > 1 else ""


def faults(root):
    allowed = {folder: reachable(folder) for folder in LAYERS}
    for file in sorted(root.rglob("*")):
        if file.suffix not in (".h", ".cpp"):
            continue
        name = file.relative_to(root).as_posix()
        own = folder_of(name)
        if own not in LAYERS:
            yield f"{name}: the folder is in no layer"
            continue
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            found = INCLUDE.match(line)
            if found and folder_of(found.group(1)) not in allowed[own]:
                yield f"{name}:{number}: includes {found.group(1)}, which lies above {own}"
            if not own.startswith(OUTSIDE) and GUARDED.search(line.split("//")[0]):
                yield f"{name}:{number}: names {GUARDED.search(line).group(1)} outside platform/ and jet/"


if __name__ == "__main__":
    top = pathlib.Path(__file__).resolve().parent.parent
    found = [*faults(top / "src"), *faults(top / "modules")]
    print("\n".join(found) if found else "layers: in order")
    sys.exit(1 if found else 0)
