"""docs/glance.svg: accuracy and speed of the double kernels at a glance.

Drawn from the newest bench/results/*/kernels.txt (./dev bench --record) and docs/accuracy.md (./dev accuracy):
every function that the C library and SLEEF have, too, but for square root and the rounding family.
"""
import math
import pathlib
import re

import _bench

root = pathlib.Path(__file__).resolve().parent.parent.parent

# Layout in pixels.
WIDTH, TOP, ROW, BOTTOM = 760, 96, 19, 46
SPEED = (84, 486)  # panel of cycles, logarithmic
ERROR = (528, 736)  # panel of ulp
LEFT_OUT = {"Sqrt", "Ceil", "Floor", "Trunc", "Round", "Rint", "NearbyInt"}
C_NAMES = {"Ln": "log", "TGamma": "tgamma", "LGamma": "lgamma"}

STYLE = """
  .paper { fill: #fdfdfb; } text { font: 12.5px system-ui, -apple-system, "Segoe UI", Roboto, sans-serif; fill: #5d666e; }
  .head, .row { fill: #22252a; } .head { font-weight: 600; } path { stroke: #e6e7e5; } .limit { stroke: #98a1a9; stroke-dasharray: 2 3; }
  .ha { fill: #1f5f99; } .la { fill: #5fa3d6; } .ep { fill: #8fb98b; } .sleef { fill: #8d7bb5; } .c { fill: #b5522b; }
  @media (prefers-color-scheme: dark) {
    .paper { fill: #17191c; } text { fill: #98a1a9; } .head, .row { fill: #e2e4e6; } path { stroke: #2b2e33; } .limit { stroke: #667079; }
    .ha { fill: #77b3ea; } .la { fill: #4b85b8; } .ep { fill: #7fae7a; } .sleef { fill: #a999d0; } .c { fill: #e8946a; }
  }
"""


def speeds():
    """{function: {"LA" | "HA" | "EP" | "sleef" | "c": cycles}} and the processor."""
    path = _bench.newest("kernels")
    table = {}
    for kernel in _bench.kernels(path):
        if not kernel["name"].startswith("d"):
            continue
        row = table.setdefault(kernel["name"][1:], {})
        row[kernel["level"]] = kernel["cycles"]
        for name, peer in (("sleef", "sleef 1.0"), ("c", "c")):
            if peer in kernel:
                row[name] = kernel[peer]
    return table, _bench.header(path)[0]


def errors():
    """{function: {"LA" | "HA": worst ulp}} of the sampled arguments."""
    table = {}
    text = (root / "docs/accuracy.md").read_text().split("## Sampled arguments")[1].split("\n## ")[0]
    for function, level, worst in re.findall(r"^\| d(\w+)_\w\w(LA|HA) \| ([\d.]+) \|", text, re.M):
        table.setdefault(function, {})[level] = float(worst)
    return table


def generate():
    cycles, processor = speeds()
    ulps = errors()
    names = [f for f in cycles
             if {"sleef", "c", "HA"} <= set(cycles[f]) and f in ulps and f not in LEFT_OUT]
    names.sort(key=lambda f: cycles[f]["c"] / cycles[f]["HA"], reverse=True)
    height = TOP + ROW * len(names) + BOTTOM
    floor = TOP + ROW * len(names)
    shown = [c for f in names for c in cycles[f].values()]
    low, high = math.log10(min(shown) * 0.9), math.log10(max(shown) * 1.1)
    most = max(4, math.ceil(max(u for f in names for u in ulps[f].values())))
    x_cycles = lambda c: SPEED[0] + (math.log10(c) - low) / (high - low) * (SPEED[1] - SPEED[0])
    x_ulp = lambda u: ERROR[0] + u / most * (ERROR[1] - ERROR[0])

    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" width="{WIDTH}" role="img" '
           'aria-label="Cycles per element and worst errors of the double kernels">',
           f"<style>{STYLE}</style>", f'<rect class="paper" width="{WIDTH}" height="{height}" rx="6"/>']
    text = lambda x, y, s, style="", anchor="start": out.append(
        f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}"' + (f' class="{style}"' if style else "") + f">{s}</text>")
    line = lambda x0, y0, x1, y1, style="": out.append(
        f'<path d="M{x0:.1f} {y0:.1f}L{x1:.1f} {y1:.1f}"' + (f' class="{style}"' if style else "") + "/>")
    dot = lambda x, y, style, tip: out.append(
        f'<circle cx="{x:.1f}" cy="{y:.1f}" r="4.2" class="{style}"><title>{tip}</title></circle>')

    text(SPEED[0], 26, "Cycles per element, double precision", "head")
    text(ERROR[0], 26, "Worst error, ulp", "head")
    at = SPEED[0]
    for style, label in (("ep", "EP"), ("la", "LA"), ("ha", "HA"), ("sleef", "SLEEF 1.0 ulp, SSE2"), ("c", "C library")):
        dot(at + 4, 50, style, label)
        text(at + 13, 54, label)
        at += 30 + 7 * len(label)
    for style, label, at in (("ha", "HA", ERROR[0]), ("la", "LA", ERROR[0] + 44)):
        dot(at + 4, 50, style, label)
        text(at + 13, 54, label)

    for decade in range(-1, 6):
        for step in (1, 2, 5):
            value = step * 10.0 ** decade
            if low <= math.log10(value) <= high:
                line(x_cycles(value), TOP - 16, x_cycles(value), floor)
                text(x_cycles(value), floor + 16, f"{value:g}", anchor="middle")
    for value in range(most + 1):
        line(x_ulp(value), TOP - 16, x_ulp(value), floor)
        text(x_ulp(value), floor + 16, str(value), anchor="middle")
    line(x_ulp(0.5), TOP - 16, x_ulp(0.5), floor, "limit")
    for i, f in enumerate(names):
        y = TOP + ROW * i
        name = C_NAMES.get(f, f.lower())
        text(SPEED[0] - 12, y + 4, name, "row", "end")
        for key, what in (("c", "C library"), ("sleef", "SLEEF"), ("HA", "HA"), ("LA", "LA"), ("EP", "EP")):
            if key in cycles[f]:
                dot(x_cycles(cycles[f][key]), y, key.lower(), f"{name}, {what}: {cycles[f][key]:g} cycles")
        for key in ("LA", "HA"):
            if key in ulps[f]:
                dot(x_ulp(ulps[f][key]), y, key.lower(), f"{name}, {key}: {ulps[f][key]:g} ulp")
    text(SPEED[0], height - 9, processor.replace("&", "&amp;") + "; time-stamp cycles")
    text(ERROR[0], height - 9, "dotted: correct rounding")
    out.append("</svg>")
    return {"docs/glance.svg": "\n".join(out) + "\n"}
