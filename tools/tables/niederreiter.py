"""The irreducible polynomials over GF(2), ascending, for Niederreiter's sequence in base 2."""

count = 318


def remainder(a, b):
    while a.bit_length() >= b.bit_length():
        a ^= b << a.bit_length() - b.bit_length()
    return a


def generate():
    found, candidate = [], 2
    while len(found) < count:  # a sieve by trial division
        if all(remainder(candidate, p) for p in found if 2 * (p.bit_length() - 1) < candidate.bit_length()):
            found.append(candidate)
        candidate += 1
    # As many of each degree as there are: (1/n) sum over d | n of mu(d) 2^(n/d).
    by_degree = [sum(p.bit_length() - 1 == n for p in found) for n in range(1, 11)]
    assert by_degree == [2, 1, 2, 3, 6, 9, 18, 30, 56, 99], by_degree
    lines = ["// The first 318 irreducible polynomials over GF(2), ascending, bit k the coefficient of x^k.",
             "// Made by ./dev tables niederreiter."]
    lines += [", ".join(map(str, found[i:i + 16])) + "," for i in range(0, count, 16)]
    return {"rua/rua_sub_kernel/niederreiter/niederreiter_polynomials.inc": "\n".join(lines) + "\n"}
