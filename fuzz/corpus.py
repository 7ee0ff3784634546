#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The tonefret developers
# SPDX-License-Identifier: MIT
"""Packs a folder of inputs into one file, an input a line, and takes it apart again.

    corpus.py pack FOLDER FILE
    corpus.py unpack FILE FOLDER

A backslash is written twice; any byte but printable ASCII as a backslash and two hexadecimal digits.
"""
import hashlib
import pathlib
import re
import sys


def packed(data):
    return re.sub(rb"[^ -~]|\\", lambda m: b"\\\\" if m[0] == b"\\" else b"\\%02x" % m[0][0], data)


def unpacked(line):
    return re.sub(rb"\\(\\|[0-9a-f]{2})", lambda m: m[1] if m[1] == b"\\" else bytes([int(m[1], 16)]), line)


def main():
    act, source, target = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    if act == "pack":
        lines = sorted(packed(file.read_bytes()) for file in source.iterdir())
        target.write_bytes(b"".join(line + b"\n" for line in lines))
    else:
        target.mkdir(parents=True, exist_ok=True)
        for line in source.read_bytes().splitlines():
            data = unpacked(line)
            (target / hashlib.sha1(data).hexdigest()).write_bytes(data)


main()
