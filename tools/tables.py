#!/usr/bin/env python3
"""Generated files of the project: regenerate them, or compare them with what is checked in.

Every module tools/tables/NAME.py has generate(), which returns {path: text}. Optionally it has
verify(), a full check of a long search's result, run by --verify-NAME.

    ./dev tables              write all        ./dev tables NAME ...     write some
    ./dev tables --check      compare all      ./dev tables --verify-NAME
"""
import importlib.util
import pathlib
import sys

from mpmath import mp

root = pathlib.Path(__file__).resolve().parent.parent
modules = root / "tools" / "tables"
sys.path.insert(0, str(modules))


def load(name):
    found = importlib.util.spec_from_file_location(name, modules / f"{name}.py")
    module = importlib.util.module_from_spec(found)
    found.loader.exec_module(module)
    return module


def main(arguments):
    for argument in arguments:
        if argument.startswith("--verify-"):
            return load(argument[len("--verify-"):].replace("-", "_")).verify()
    check = "--check" in arguments
    names = [a for a in arguments if not a.startswith("--")]
    if not names:
        names = sorted(p.stem for p in modules.glob("*.py") if not p.stem.startswith("_"))
    different = 0
    for name in names:
        mp.prec = 200  # a module that wants another sets it
        for path, text in load(name).generate().items():
            file = root / path
            same = file.exists() and file.read_text() == text
            if not same and check:
                print(f"differs: {path} (tools/tables/{name}.py)")
                different += 1
            elif not same:
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(text)
                print(f"wrote {path}")
    return 1 if different else 0


sys.exit(main(sys.argv[1:]))
