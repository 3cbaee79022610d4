"""Primitive polynomials and initial values of Sobol's sequence, from tests/data/.

The file holds published facts and names their source; here they are checked: every polynomial is primitive
and stands once, every initial value m_i is odd and below 2^i.
"""
import pathlib

source = "tests/data/sobol_40_dimensions.tsv"
columns = 8  # the highest degree


def times_x(value, polynomial, degree):
    value <<= 1
    return value ^ polynomial if value >> degree & 1 else value


def is_primitive(polynomial):
    """x has the order 2^degree - 1 modulo the polynomial."""
    degree = polynomial.bit_length() - 1
    value, order = times_x(1, polynomial, degree), 1
    while value != 1 and order < 1 << degree:
        value, order = times_x(value, polynomial, degree), order + 1
    return order == (1 << degree) - 1


def rows():
    found = []
    for line in (pathlib.Path(__file__).resolve().parents[2] / source).read_text().splitlines():
        if line.startswith("#"):
            continue
        dimension, polynomial, degree, values = line.split("\t")
        polynomial, values = int(polynomial), [int(m) for m in values.split(",")]
        assert int(dimension) == len(found) + 1
        assert int(degree) == len(values) == polynomial.bit_length() - 1
        assert is_primitive(polynomial), polynomial
        assert all(m & 1 and m < 2 << i for i, m in enumerate(values)), values
        found.append((polynomial, values))
    assert len(set(polynomial for polynomial, _ in found)) == len(found) == 39
    return found


def generate():
    head = ["// Sobol's sequence, components 1 to 39: the primitive polynomial, bit k the coefficient of x^k,",
            f"// and the initial values, as many as its degree. From {source}; made by ./dev tables sobol."]
    lines = [f"{{{polynomial}, {{{', '.join(map(str, values))}}}}}," for polynomial, values in rows()]
    return {"rua/rua_sub_kernel/sobol/sobol_rows.inc": "\n".join(head + lines) + "\n"}
