"""Parameters of the Wichmann-Hill generators: searched anew, 20 seconds."""
import subprocess

import _native

path = "rua/rua_sub_kernel/wh/wh_table.inc"


def program():
    return _native.program("wh/wh.cpp", "-lquadmath")


def generate():
    return {path: subprocess.run([program(), "search"], check=True, text=True,
                                 stdout=subprocess.PIPE).stdout}


def verify():
    return subprocess.run([program(), "verify", _native.root / path]).returncode
