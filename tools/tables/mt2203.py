"""Parameters of the MT2203 generators.

A full search takes a quarter of an hour, so that only a sample of the rows that are checked in is
searched anew; without the file, or with rows missing, the rest is searched too.
"""
import subprocess

import _native

path = "rua/rua_sub_kernel/mt2203/mt2203_table.inc"
sample_step = 500


def program():
    return _native.program("mt2203/mt2203.cpp", "-mpclmul")


def generate():
    rows = _native.root / "build/tools/mt2203_rows.txt"
    tool = program()
    subprocess.run([tool, "sample", _native.root / path, str(sample_step), rows], check=True)
    subprocess.run([tool, "search", rows], check=True)
    return {path: subprocess.run([tool, "table", rows], check=True, text=True,
                                 stdout=subprocess.PIPE).stdout}


def verify():
    return subprocess.run([program(), "verify", _native.root / path]).returncode
