"""The last section of docs/bench.md: the recorded runs of several processors side by side."""
import math
import pathlib

import _bench

root = pathlib.Path(__file__).resolve().parents[2]
HEADING = "## Side by side"


def mean(ratios):
    """Geometric mean and count, as text."""
    ratios = list(ratios)
    if not ratios:
        return "-"
    return f"{math.exp(sum(map(math.log, ratios)) / len(ratios)):.2f} ({len(ratios)})"


def behind(rows, peer, levels):
    """Kernels that are slower than the peer."""
    slow = [f"{r['name']} {r['level']} {r[peer] / r['cycles']:.2f}"
            for r in rows if peer in r and r["level"] in levels and r[peer] < r["cycles"]]
    return ", ".join(slow) or "none"


FIGURES = [
    ("cycles over cost figures", lambda rows: mean(r["cycles"] / r["cost"] for r in rows)),
    ("SLEEF 1.0 ulp over HA", lambda rows: mean(r["sleef 1.0"] / r["cycles"] for r in rows
                                                if r["level"] == "HA" and "sleef 1.0" in r)),
    ("SLEEF 3.5 ulp over LA and EP", lambda rows: mean(r["sleef 3.5"] / r["cycles"] for r in rows
                                                       if r["level"] != "HA" and "sleef 3.5" in r)),
    ("C library over HA", lambda rows: mean(r["c"] / r["cycles"] for r in rows if r["level"] == "HA" and "c" in r)),
    ("behind SLEEF 1.0 ulp (HA)", lambda rows: behind(rows, "sleef 1.0", ("HA",))),
    ("behind SLEEF 3.5 ulp (LA, EP)", lambda rows: behind(rows, "sleef 3.5", ("LA", "EP"))),
]


def generate():
    names = _bench.processors()
    table = lambda rows: "".join("| " + " | ".join(row) + " |\n" for row in rows)
    head = lambda first: [[first, *names], ["---"] * (len(names) + 1)]

    kernels = {n: _bench.kernels(p) for n in names
               if (p := _bench.results / n / "kernels.txt").exists()}
    speed = head("kernels: geometric means (kernels)")
    for label, figure in FIGURES:
        speed.append([label, *(figure(kernels[n]) if n in kernels else "-" for n in names)])

    programs = sorted({p.stem for p in _bench.results.glob("*/*.txt")})
    runs = head("date of the run, rows over their bound")
    for program in programs:
        cells = []
        for n in names:
            path = _bench.results / n / f"{program}.txt"
            if not path.exists():
                cells.append("-")
                continue
            over = sum(line.endswith("over") or "MISSED" in line for line in path.read_text().splitlines())
            cells.append(f"[{_bench.header(path)[1] or 'undated'}](../bench/results/{n}/{program}.txt), {over}")
        runs.append([program, *cells])

    path = root / "docs/bench.md"
    text = path.read_text().split(HEADING)[0].rstrip() + "\n\n"
    text += (f"{HEADING}\n\nFrom `bench/results/` by `./dev tables bench`. Folders are named for maker, family and model: "
             + "; ".join(f"`{n}` {name}" for n, name in names.items()) + ".\n\n"
             + table(speed) + "\n" + table(runs))
    return {"docs/bench.md": text}
