"""The recorded runs of ./dev bench: bench/results/PROCESSOR/PROGRAM.txt."""
import pathlib
import re

root = pathlib.Path(__file__).resolve().parents[2]
results = root / "bench/results"

PEERS = ("hand", "sleef 1.0", "sleef 3.5", "c")  # columns of kernels.txt behind the cost


def header(path):
    """Processor and date of a run; the oldest files have none."""
    first = path.read_text().split("\n", 1)[0].lstrip("# ")
    date = re.search(r"\d{4}-\d\d-\d\d", first)
    return first.split(", g++")[0], date[0] if date else ""


def processors():
    """Folders with their processors' names."""
    return {p.name: header(next(iter(sorted(p.glob("*.txt")))))[0] for p in sorted(results.iterdir())}


def newest(program):
    files = sorted(results.glob(f"*/{program}.txt"), key=lambda p: (header(p)[1], p))
    return files[-1]


def kernels(path):
    """[{"name", "level", "cycles", "cost", peer: cycles}] of a kernels.txt."""
    rows = []
    for line in path.read_text().splitlines():
        match = re.match(r"([ds]\w+)_\w\w(LA|HA|EP) ", line)
        if not match:
            continue
        least, _, cost = (float(x) for x in line[18:45].split())
        row = {"name": match[1], "level": match[2], "cycles": least, "cost": cost}
        for i, peer in enumerate(PEERS):
            text = line[45 + 14 * i:59 + 14 * i].split("(")[0].strip()
            if text not in ("", "-"):
                row[peer] = float(text)
        rows.append(row)
    return rows
