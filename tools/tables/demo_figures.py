"""The demo's figures for the shipped table, recomputed from their definitions: what its test expects.

Sums are rounded once (fsum). The resamples come from the plain recurrence x <- 13^13 x mod 2^59 of
MCG59: number t of worker w is number 4 t + w of the sequence, and scaled by n it names a quarter.
"""
import math
import pathlib
from math import fsum

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
HEAD = """# Figures of the demo's report on examples/data/us_macro.csv: id of the <data> element, value.
# Plain recomputation; ./dev tables demo_figures
"""


def columns():
    lines = [line.split(",") for line in (ROOT / "examples/data/us_macro.csv").read_text().split("\n")
             if line and not line.startswith("#")]
    return {name: [float(row[i]) for row in lines[1:]] for i, name in enumerate(lines[0])}


def correlation(x, y):
    mx, my = fsum(x) / len(x), fsum(y) / len(y)
    xx = fsum((a - mx) ** 2 for a in x)
    yy = fsum((b - my) ** 2 for b in y)
    return fsum((a - mx) * (b - my) for a, b in zip(x, y)) / math.sqrt(xx * yy)


def quantile(x, order):
    x, place = sorted(x), order * (len(x) - 1)
    below = min(int(place), len(x) - 2)
    return x[below] + (place - below) * (x[below + 1] - x[below])


def resampled(x, y):
    workers, each, n, state = 4, 5000, len(x), 1959
    index = [[] for _ in range(workers)]
    for k in range(workers * each * n):
        index[k % workers].append(state * n >> 59)
        state = state * 13 ** 13 % 2 ** 59
    return [correlation([x[i] for i in mine[s:s + n]], [y[i] for i in mine[s:s + n]])
            for mine in index for s in range(0, len(mine), n)]


class Spline:
    """Natural and cubic, by its second derivatives m: 0 at the ends, a tridiagonal system between."""

    def __init__(self, x, y):
        n = len(x)
        diagonal, right, upper = [1.0] * n, [0.0] * n, [0.0] * n
        for i in range(1, n - 1):
            a, b = x[i] - x[i - 1], x[i + 1] - x[i]
            factor = a / diagonal[i - 1] if i > 1 else 0
            diagonal[i] = 2 * (a + b) - factor * upper[i - 1]
            upper[i] = b
            right[i] = 6 * ((y[i + 1] - y[i]) / b - (y[i] - y[i - 1]) / a) - factor * right[i - 1]
        self.x, self.y, self.m = x, y, [0.0] * n
        for i in range(n - 2, 0, -1):
            self.m[i] = (right[i] - upper[i] * self.m[i + 1]) / diagonal[i]

    def __call__(self, t):
        x, y, m = self.x, self.y, self.m
        i = max([k for k in range(len(x) - 1) if t >= x[k]], default=0)
        h = x[i + 1] - x[i]
        a = (x[i + 1] - t) / h
        b = 1 - a
        return a * y[i] + b * y[i + 1] + ((a ** 3 - a) * m[i] + (b ** 3 - b) * m[i + 1]) * h * h / 6

    def mean(self, start, end):  # Simpson's rule is exact on each piece
        cuts = [start] + [t for t in self.x if start < t < end] + [end]
        return fsum((b - a) / 6 * (self(a) + 4 * self((a + b) / 2) + self(b))
                    for a, b in zip(cuts, cuts[1:])) / (end - start)


def figures():
    c = columns()

    def growth(name):
        return [400 * math.log(now / before) for before, now in zip(c[name], c[name][1:])]

    unemployment = c["unemp"]
    change = [now - before for before, now in zip(unemployment, unemployment[1:])]
    series = {"gdp": growth("realgdp"), "cons": growth("realcons"), "inv": growth("realinv"),
              "infl": growth("cpi"), "bill": c["tbilrate"][1:], "unemp": change}
    deviation = {}
    for key, x in series.items():
        n, mean = len(x), fsum(x) / len(x)
        m2, m3, m4 = (fsum((v - mean) ** k for v in x) for k in (2, 3, 4))
        variance = m2 / (n - 1)
        deviation[key] = math.sqrt(variance)
        yield "mean-" + key, mean
        yield "deviation-" + key, deviation[key]
        yield "skewness-" + key, m3 / n / variance ** 1.5
        yield "kurtosis-" + key, m4 / n / variance ** 2 - 3
        for k, order in enumerate((0, 0.05, 0.25, 0.5, 0.75, 0.95, 1)):
            yield f"q{k}-{key}", quantile(x, order)
        for other, y in series.items():
            if other != key:
                yield f"cor-{key}-{other}", correlation(x, y)
    observed = correlation(series["gdp"], change)
    yield "observed", observed
    yield "slope", abs(observed * deviation["unemp"] / deviation["gdp"])

    draws = resampled(series["gdp"], change)
    mean = fsum(draws) / len(draws)
    yield "boot-low", quantile(draws, 0.025)
    yield "boot-high", quantile(draws, 0.975)
    yield "boot-deviation", math.sqrt(fsum((r - mean) ** 2 for r in draws) / (len(draws) - 1))

    time = [year + (quarter - 0.5) / 4 for year, quarter in zip(c["year"], c["quarter"])]
    years = [[(t, u) for t, u in zip(time, unemployment) if int(t) == year]
             for year in sorted({int(t) for t in time})]
    spline = Spline([fsum(t for t, _ in year) / len(year) for year in years],
                    [fsum(u for _, u in year) / len(year) for year in years])
    yield "rms", math.sqrt(fsum((u - spline(t)) ** 2 for t, u in zip(time, unemployment))
                           / len(time))
    for i, (start, end) in enumerate(((1960, 1970), (1970, 1980), (1980, 1990), (1990, 2000),
                                      (2000, 2009.75))):
        inside = [u for t, u in zip(time, unemployment) if start < t < end]
        yield f"span-curve-{i}", spline.mean(start, end)
        yield f"span-quarters-{i}", fsum(inside) / len(inside)


def generate():
    rows = "".join(f"{name}\t{value!r}\n" for name, value in figures())
    return {"tests/project/demo_figures.tsv": HEAD + rows}
