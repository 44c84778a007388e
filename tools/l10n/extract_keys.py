#!/usr/bin/env python3
"""List the localisation keys quoted in a text file.

A key is a double-quoted text that holds Hangul, or that starts with a model
prefix such as "Q260 : ". Inside a key, the escapes \\r, \\n and \\t stand for
the control characters themselves, as they do in the tables.

    extract_keys.py FILE                 one key per line, escapes kept visible
    extract_keys.py FILE --check TS...   keys of FILE missing from the TS files
                                         (exit status 1 when any is missing)
"""

import argparse
import re
import sys
import xml.etree.ElementTree as ET

HANGUL = re.compile("[\uac00-\ud7a3\u1100-\u11ff\u3130-\u318f]")
MODEL_PREFIX = re.compile(r"^[A-Z]+[0-9]+[A-Z]* : ")
QUOTED = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
ESCAPES = {"r": "\r", "n": "\n", "t": "\t", '"': '"', "\\": "\\"}


def unescape(text):
    return re.sub(r"\\(.)", lambda m: ESCAPES.get(m.group(1), m.group(0)), text)


def visible(key):
    return key.replace("\\", "\\\\").replace("\r", "\\r").replace("\n", "\\n").replace("\t", "\\t")


def keys_in(text):
    seen = []
    for match in QUOTED.finditer(text):
        raw = match.group(1)
        if HANGUL.search(raw) or MODEL_PREFIX.match(raw):
            key = unescape(raw)
            if key not in seen:
                seen.append(key)
    return seen


def sources_in(ts_path):
    return {node.text or "" for node in ET.parse(ts_path).getroot().iter("source")}


def main(argv):
    parser = argparse.ArgumentParser(description="List quoted localisation keys.")
    parser.add_argument("file")
    parser.add_argument("--check", nargs="+", metavar="TS")
    args = parser.parse_args(argv)
    with open(args.file, encoding="utf-8") as handle:
        keys = keys_in(handle.read())
    if not args.check:
        for key in keys:
            print(visible(key))
        return 0
    missing = 0
    for ts_path in args.check:
        sources = sources_in(ts_path)
        for key in keys:
            if key not in sources:
                print(f"{ts_path}: missing {visible(key)}")
                missing += 1
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
