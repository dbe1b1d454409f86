"""32-bit floats: rounding, neighbours and texts."""
from math import isfinite
from struct import pack, unpack


def f32(x):
    return unpack("<f", pack("<f", x))[0]


def nudge(x, steps):
    """The 32-bit float that lies some steps further from (or nearer to) zero."""
    return unpack("<f", pack("<i", unpack("<i", pack("<f", x))[0] + steps))[0]


def around(x):
    return [nudge(x, -1), f32(x), nudge(x, 1)]


def text32(x):
    """The shortest decimal that reads back as the same 32-bit float."""
    if not isfinite(x) or x == int(x) and abs(x) < 1e7:
        return f"{x:.0f}"
    return next(t for t in (f"{x:.{p}g}" for p in range(1, 10)) if f32(float(t)) == x)


def text(value):
    """An expected value to nine digits, or a mark."""
    return value if isinstance(value, str) else f"{value + 0.0:.9g}"


def ratio(a, b):
    """A quotient as its 32-bit decimal, so that 0.35 over 7 is 0.05 and lies on a table's edge, not beside it."""
    quotient = f32(a / b)
    return float(text32(quotient)) if isfinite(quotient) else quotient
