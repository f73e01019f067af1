#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""rakenna_luettelo.py FOLDER RESULT NAME...: lists the SHA-256 sums of files as "sum  name" lines."""
import hashlib
import pathlib
import sys

kansio, tulos, nimet = pathlib.Path(sys.argv[1]), sys.argv[2], sys.argv[3:]
rivit = [f"{hashlib.sha256((kansio / nimi).read_bytes()).hexdigest()}  {nimi}\n" for nimi in nimet]
(kansio / tulos).write_text("".join(rivit), encoding="utf-8")
