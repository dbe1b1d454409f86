"""Zones and external pressure coefficients of BS 6399-2: per zone its letters and (suction, pressure)."""
from bisect import bisect_right
from math import isfinite

import coefficient_figures as fig
from numbers32 import ratio
from wind_rules import REFUSED, interpolate

WALLS, FLAT, MONO, DUO, HIPPED, PARAPET, CURVED = 0, 2, 3, 4, 5, 8, 11
ACROSS, ALONG = (0, 180), (90, 270)


def near(theta, angle):
    return abs(theta - angle) < 0.05


def lower_corner(theta):
    return near(theta, 89.9) or near(theta, 270.1)


def geometry(c):
    """Crosswind breadth B, inwind depth D and scaling length b."""
    breadth, depth = (c["L"], c["W"]) if c["theta"] in ACROSS else (c["W"], c["L"])
    height = c["H"] + (c["rise"] if c["type"] == CURVED else 0)
    return breadth, depth, min(breadth, 2 * height)


def letters(c):
    """The zones in scan order; a wall's one zone at 0 or 180 bears no letter of the standard."""
    kind, across, along = c["type"], c["theta"] in ACROSS, c["theta"] in ALONG
    if kind == MONO:
        return ["A", "B", "C"] if across else ["AU"] if along else \
            ["AL", "B", "C", "D"] if lower_corner(c["theta"]) else []
    if kind == PARAPET or not (across or along):
        return list("ABCD") if kind == PARAPET and across else []
    if kind == WALLS:
        return ["*"] if across else list("ABC")
    if kind == DUO:
        return list("ABCEFG" if across else "ABCD")
    return list({FLAT: "ABCD", HIPPED: "ABCEFGHIJ", CURVED: "ABCDEF"}[kind])


def both(value):
    return value, value


def wall(zone, c):
    breadth, depth, b = geometry(c)
    if zone == "*":
        across = depth / c["H"]
        return both(interpolate(*fig.WINDWARD, across) if c["theta"] == 0 else fig.LEEWARD)
    isolated, funnel = fig.SIDE[zone]
    return both(isolated + interpolate(*fig.FUNNEL, c["gap"] / b) * (funnel - isolated))


def eaves_row(c):
    """Table 8: the figures of zones A to C, or REFUSED."""
    if sum(c[k] != 0 for k in ("parapet", "radius", "mansard")) > 1:
        return REFUSED
    b = geometry(c)[2]
    if c["parapet"]:
        table, x = fig.PARAPET, ratio(c["parapet"], max(c["H"], b))
        sharp, refused = x < 0.05, False
    elif c["radius"]:
        table, x = fig.CURVED_EAVES, ratio(c["radius"], b)
        sharp, refused = x < 0.05, x > 0.2
    elif c["mansard"]:
        table, x = fig.MANSARD, c["mansard"]
        sharp, refused = x > 60, x < 30
    else:
        return fig.SHARP
    return REFUSED if refused else fig.SHARP if sharp else [interpolate(table[0], column, x) for column in table[1]]


def flat(zone, c):
    row = eaves_row(c)
    if row == REFUSED:
        return both(REFUSED)
    return (-fig.FLAT_D, fig.FLAT_D) if zone == "D" else both(row["ABC".index(zone)])


def series(pitches, row, pitch):
    """One case of a zone: None where it has no value; beside a figure a blank counts as 0."""
    if pitch in pitches:
        return row[pitches.index(pitch)]
    i = bisect_right(pitches, pitch) - 1
    low, high = row[i], row[i + 1]
    if low is None and high is None:
        return None
    return interpolate(pitches[i:i + 2], (low or 0, high or 0), pitch)


def pitched(table, pitches, zone, pitch):
    if not pitches[0] <= pitch <= pitches[-1] or -5 < pitch < 5:
        return both(REFUSED)
    suction, pressure = (series(pitches, table[k][zone], pitch) if zone in table.get(k, {}) else None
                         for k in ("suction", "pressure"))
    return pressure if suction is None else suction, suction if pressure is None else pressure


def roof(zone, c):
    across = c["theta"] in ACROSS
    if c["type"] == MONO:
        table = fig.MONO_LOW if c["theta"] == 0 else fig.MONO_HIGH if across else fig.MONO_ALONG
        return pitched(table, fig.PITCHES, zone, c["pitch"])
    if c["type"] == DUO:
        return pitched(fig.DUO_ACROSS if across else fig.DUO_ALONG, fig.DUO_PITCHES, zone, c["pitch"])
    return pitched(fig.HIPPED, fig.PITCHES, zone, c["pitch"])


def windward_quarter(r, elevated):
    """Arch figures: suction and pressure, None where there is none."""
    if not elevated:
        return None, 1.4 * r
    if r < 0.2:
        return -0.9, None
    return (6 * r - 2.1, 1.5 * r - 0.3) if r < 0.3 else (None, 2.75 * r - 0.7)


def curved(zone, c):
    r = ratio(c["rise"], c["W"]) if c["W"] > 0 else 1.0
    if r > 0.6:
        return both(REFUSED)
    sharp = dict(zip("ABC", fig.SHARP))
    if c["theta"] in ALONG:
        return {**{k: both(v) for k, v in sharp.items()}, "D": (sharp["C"], fig.FLAT_D),
                "E": (sharp["C"], fig.FLAT_D), "F": (-fig.FLAT_D, fig.FLAT_D)}[zone]
    (suction, pressure), centre = windward_quarter(r, c["H"] > 0), -0.7 - r
    if zone in "AB":
        worst = min(suction or 0, sharp["B"] if zone == "A" else centre)
        return worst, worst if pressure is None else pressure
    return both(min(-0.5, sharp["C"]) if zone == "F" else min(centre, -0.5))


def parapet(zone, c):
    """Table 21: net across the wall, positive at both angles."""
    if c["solidity"] < 1:
        return both(REFUSED)
    return both((fig.RETURN if c["W"] >= c["H"] else fig.NO_RETURN)[zone])


RULES = {WALLS: wall, FLAT: flat, MONO: roof, DUO: roof, HIPPED: roof, PARAPET: parapet, CURVED: curved}


def coefficients(c):
    """All zones of a case; what can't be worked out from the case's numbers is refused."""
    used = [c[k] for k in ("L", "W", "H", "gap", "rise", "mansard", "radius", "parapet", "pitch")]
    usable = all(map(isfinite, used)) and (c["H"] > 0 or c["type"] == CURVED) and c["L"] > 0
    return [(z, RULES[c["type"]](z, c) if usable else both(REFUSED)) for z in letters(c)]
