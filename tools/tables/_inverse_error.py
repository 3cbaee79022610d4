"""Piecewise polynomials of erfinv(x)/x over geometric intervals of w = 1 - x."""
import functools

from mpmath import erfc, exp, ldexp, log, mp, mpf, pi, sqrt

from _numbers import number, truncated


def inverse_erfc(w):
    """y with erfc(y) = w, 0 < w < 1: Newton's iteration from the asymptotic value."""
    y = sqrt(-log(w * (2 - w))) if w > mpf("0.1") else sqrt(-log(w * sqrt(pi * -log(w))))
    for _ in range(60):
        step = (erfc(y) - w) * exp(y * y) * sqrt(pi) / 2
        y += step
        if abs(step) < abs(y) * ldexp(1, -mp.prec // 2):
            return y + (erfc(y) - w) * exp(y * y) * sqrt(pi) / 2
    raise ArithmeticError(w)


@functools.cache
def series(centre, terms):
    """Taylor coefficients of erfinv(1 - w)/(1 - w) in w - centre, from y' = sqrt(pi)/2 e^(y^2)."""
    y, e, q = [inverse_erfc(centre)], [], []
    for n in range(terms):
        q.append(sum(y[i] * y[n - i] for i in range(n + 1)))
        e.append(exp(q[0]) if n == 0 else sum(k * q[k] * e[n - k] for k in range(1, n + 1)) / n)
        y.append(-sqrt(pi) / 2 * e[n] / (n + 1))
    f, x = [], 1 - centre
    for n in range(terms):  # f (x - t) = y
        f.append((y[n] + (f[n - 1] if n else 0)) / x)
    return f


chebyshev = [[1], [0, 1]]
while len(chebyshev) < 64:
    a, b = chebyshev[-1], chebyshev[-2]
    chebyshev.append([2 * (a[i - 1] if i else 0) - (b[i] if i < len(b) else 0) for i in range(len(a) + 1)])


def economized(taylor, half_width, degree):
    """The polynomial of `degree` in t in [-half_width, half_width] nearest to a longer one: its
    Chebyshev series cut off."""
    c = [a * half_width**n for n, a in enumerate(taylor)]
    for n in range(len(c) - 1, degree, -1):
        scale = c[n] / chebyshev[n][n]
        c = [a - scale * b for a, b in zip(c, chebyshev[n])][:n]
    return [a / half_width**n for n, a in enumerate(c)]


def rows(binades, parts, degree, terms, normalized=True, scale=1):
    """A row for each of `parts` equal intervals of each binade of w, from next to 1 downward:
    coefficients in t, which counts from the middle, w scaled to [1, 2) if `normalized`."""
    for i in range(binades * parts):
        unit = mpf(2)**(-1 - i // parts)
        middle = unit * (2 - (mpf(i % parts) + 0.5) / parts)
        c = economized(series(middle, terms), unit / (2 * parts), degree)
        yield [scale * a * (unit**n if normalized else 1) for n, a in enumerate(c)]


def split_row(c):
    """Literals of a row with c0 and c1 in two parts."""
    high = [truncated(a, 27, "d") for a in c[:2]]
    low = [number(a - h, "d") for a, h in zip(c, high)]
    return low + [number(a, "d") for a in c[2:]] + [number(h, "d") for h in high]
