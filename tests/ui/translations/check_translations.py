"""Fails when a text of the window has no finished translation in one of the
languages: runs lupdate over the sources into scratch copies of the .ts files, so
that a text added to the catalogue since the files were last updated counts as
missing, and leaves the source tree as it was. A translation must also keep the
source's placeholders (%1, %2, ...) and, where the source marks a mnemonic with
"&", mark one too.

    check_translations.py LUPDATE SOURCE_LIST TS_FILE...
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET


def placeholders(text):
    return sorted(re.findall(r"%\d", text))


def has_mnemonic(text):
    return re.search(r"&[^&\s]", text.replace("&&", "")) is not None


def problems_in(ts_file):
    root = ET.parse(ts_file).getroot()
    language = root.get("language")
    for context in root.iter("context"):
        for message in context.iter("message"):
            source = message.findtext("source")
            translation = message.find("translation")
            text = translation.text if translation is not None else None
            if translation is None or translation.get("type") in ("unfinished", "vanished",
                                                                   "obsolete") or not text:
                yield f"{language}: no translation of {source!r}"
            elif placeholders(text) != placeholders(source):
                yield f"{language}: {text!r} does not keep the placeholders of {source!r}"
            elif has_mnemonic(text) != has_mnemonic(source):
                yield f"{language}: {text!r} and {source!r} differ in their mnemonic"


def main(lupdate, source_list, ts_files):
    problems = []
    with tempfile.TemporaryDirectory() as scratch:
        copies = []
        for ts_file in map(pathlib.Path, ts_files):
            copy = pathlib.Path(scratch) / ts_file.name
            shutil.copyfile(ts_file, copy)
            copies.append(copy)
        subprocess.run([lupdate, "-silent", "-no-obsolete", "-locations", "none",
                        "@" + source_list, "-ts", *map(str, copies)], check=True)
        for copy in copies:
            problems.extend(problems_in(copy))
    if problems:
        sys.exit("FAILED:\n  " + "\n  ".join(problems))
    print(f"every text translated in {len(ts_files)} languages")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2], sys.argv[3:])
