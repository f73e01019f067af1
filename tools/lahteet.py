# SPDX-License-Identifier: GPL-3.0-or-later
"""What the checks of tools/ share: the C++ files of the tree, and how a check ends."""
import pathlib
import sys

JUURI = pathlib.Path(__file__).resolve().parent.parent
EI_MEIDAN = {"build", ".git"}


def lahteet(*paatteet):
    """Files with the given suffixes (".cpp", ".h"), as paths relative to the root, in order of name."""
    polut = (p.relative_to(JUURI) for p in JUURI.rglob("*") if p.suffix in paatteet)
    return sorted(p for p in polut if p.parts[0] not in EI_MEIDAN)


def rivit(polku):
    return (JUURI / polku).read_text("utf-8").splitlines()


def lopeta(virheet):
    """Prints the faults, one a line, and ends the process: 0 when there is none."""
    for virhe in virheet:
        print(virhe)
    sys.exit(1 if virheet else 0)
