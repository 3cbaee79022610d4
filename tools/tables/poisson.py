"""Rows of the normal transforms of Poisson numbers. They are frozen; a fit takes some minutes, so that
here their distances from the Poisson law are measured, and --verify-poisson fits them again."""
import subprocess

import _native

paths = {form: f"rua/rua_kernel/discrete/poisson_rows_{form}.inc" for form in "cv"}


def run(verb, form, **options):
    return subprocess.run([_native.program("poisson/poisson.cpp"), verb, form, _native.root / paths[form]], **options)


def generate():
    return {path: run("table", form, check=True, text=True, stdout=subprocess.PIPE).stdout
            for form, path in paths.items()}


def verify():
    return max([run("verify", form).returncode for form in paths])
