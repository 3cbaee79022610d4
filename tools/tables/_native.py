"""Search and verification programs: native 64-bit code, compiled where it is needed."""
import pathlib
import subprocess

root = pathlib.Path(__file__).resolve().parents[2]


def program(source, *flags):
    """Compiles tools/SOURCE into build/tools/ and returns the program's path."""
    binary = root / "build/tools" / pathlib.Path(source).stem
    binary.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["g++", "-std=gnu++20", "-O3", "-o", binary, root / "tools" / source, *flags],
                   check=True)
    return binary
