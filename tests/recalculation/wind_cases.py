"""The sites of the recalculation by hard class."""
from random import Random

import wind_figures as fig
from numbers32 import around, f32, nudge
from wind_rules import effective_slope, reach

SITE = {"H": 10, "A": 5, "Vb": 22.5, "altitude": 50, "Q": 0.02, "season": 0, "month": 0, "topog": 2}
SECTOR = {"Z": 0, "X": 0, "LU": 0, "LD": 0, "base": 0, "Ho": 0, "Xo": 0, "sea": 20, "town": 0}
NAN, INF = float("nan"), float("inf")


def rounded(template, values):
    return {k: v if isinstance(v, int) else f32(v) for k, v in {**template, **values}.items()}


def site(name, sectors, **values):
    """One site; its sector rows start at a sector that moves on from site to site."""
    rows = [rounded(SECTOR, s) for s in sectors]
    start = round(values.get("H", 10) * 7) % 12 if values.get("H", 10) < 1e6 else 0
    return name, rounded(SITE, values), [((start + i) % 12, s) for i, s in enumerate(rows)]


def table_corners():
    for he in fig.HEIGHTS:
        yield site("table corner", [{"sea": x} for x in fig.SEA], H=he)
        yield site("table corner", [{"sea": 100, "town": x} for x in fig.TOWN], H=he, altitude=0)


def axis_edges():
    sea = [0, 0.03, nudge(0.1, -1), nudge(0.1, 1), nudge(3, -1), nudge(3, 1), nudge(100, 1), 700]
    town = [0.001, nudge(0.1, -1), nudge(10, -1), nudge(30, 1)]
    sectors = [{"sea": x} for x in sea] + [{"sea": 250, "town": x} for x in town]
    for he in fig.HEIGHTS:
        for h in (nudge(he, -1), nudge(he, 1)):
            yield site("axis edge", sectors, H=h)
    for h in (0.2, 700):
        yield site("axis end", sectors, H=h)


def size_effect_key():
    sea = [1, nudge(2, -1), 2, nudge(10, -1), 10, nudge(100, -1), 100]
    sectors = [{"sea": x} for x in sea] + [{"sea": x, "town": 2} for x in sea[3:]] + [{"town": nudge(2, -1)}]
    for h in [edge * k for edge in fig.LINE_HEIGHTS for k in (0.9999, 1, 1.0001)] + [80]:
        yield site("size effect key", sectors, H=h, A=40)


def towns_beyond_the_sea():
    pairs = [(2, 1.9), (2, 0.2), (30, 10), (5, 2), (10, nudge(10, -1)), (10, nudge(10, 1)), (1.9, 1), (20, 0.05),
             (0.3, 0.2), (100, 40), (200, 150), (4, 3.5)]
    for h in (1, 4, 8, 12, 25, 60, 400):
        yield site("town nearer than sea", [{"town": t, "sea": s, "Ho": 3, "Xo": 9} for t, s in pairs], H=h, A=30)


def obstructions():
    spacings = [2 * 7.5, nudge(15, 1), 6 * 7.5, nudge(45, -1), 30, 0]
    sectors = [{"Ho": 7.5, "Xo": x, "town": 5} for x in spacings] + [
        {"Ho": 7.5, "Xo": 10}, {"Ho": -2, "Xo": 3, "town": 5}, {"Ho": 60, "Xo": 10, "town": 1},
        {"Ho": 6, "Xo": 12.5, "town": 0.05}, {"Ho": 0, "Xo": 0, "town": 3}]
    for h in (9.99, 10, 10.01, 4, 7.5, 12.5, 30):
        yield site("He at 0.4 Hr", sectors, H=h, A=20)


def positions(feature):
    """Crest distances at, just within and just beyond the feature's reach, and between."""
    up, down, le = f32(reach(feature, True)), f32(reach(feature, False)), effective_slope(feature)[0]
    return [-up, nudge(-up, -3), nudge(-up, 3), -up / 2, -0.1 * feature["LU"], 0, 0.05 * le, nudge(0.1 * le, 2),
            down / 2, down, nudge(down, -3), nudge(down, 3)]


def topography_zones():
    features = [(6, 100, 120), (20, 100, 100), (30, 100, 150), (30.01, 100, 150), (20, 50, 50), (25, 40, 80),
                (90, 50, 60), (10, 100, 200), (10, 100, 199), (10, 100, 0), (10, 100, -5), (40, 100, 1000), (18, 60, 360)]
    for i, numbers in enumerate(features):
        feature = dict(zip(("Z", "LU", "LD"), map(f32, numbers)))
        le = effective_slope(feature)[0]
        sectors = [{**feature, "X": x, "base": 11, "town": 4 * (k % 2)} for k, x in enumerate(positions(feature))]
        for ratio in ((0.04, 0.7, nudge(2, -4)), (0.1, 0.3, nudge(2, 4)))[i % 2]:
            yield site("topography zone", sectors, H=ratio * le, altitude=60, topog=0, A=15)
        yield site("topography unused", sectors[3:6], H=9, altitude=60, topog=2)


def shallow_and_steep_slopes():
    slopes = [(5, 100), (5.001, 100), (nudge(30, -1), 100), (30, 100), (nudge(30, 1), 100), (200, 100)]
    none = [{"Z": z, "LU": lu} for z, lu in ((0, 100), (10, 0), (-5, 100), (10, -100))]
    for x in (-20, 0, 30):
        sectors = [{"Z": z, "LU": lu, "LD": 110} for z, lu in slopes] + none
        yield site("slope limit", [{**s, "X": x, "base": 30} for s in sectors], H=12, altitude=110, topog=0)


def seasons():
    for season in range(6):
        for month in range(12):
            yield site("season", [{}], season=season, month=month, H=5 + month)


def risks():
    for q in (0.632, 0.227, 0.02, 0.0083, 0.00057, 0.0001, 1e-7, 0.5, 0.99, 0.999999):
        yield site("risk", [{}, {"town": 3}], Q=q)


def diagonals():
    sectors = [{"sea": 0.5}, {"sea": 80}, {"sea": 80, "town": 6}, {"sea": 1.5, "town": 6}, {"Z": 40, "LU": 150, "LD": 150}]
    for a in [0.5, *around(5), 6, 10, 22, 100, *around(1000), 5000, 17000, 60000]:
        for vb, h in ((12, 3), (26, 18)):
            yield site("diagonal", sectors, A=a, Vb=vb, H=h, topog=0)


def general(random):
    for _ in range(30):
        sectors = [{"sea": 10 ** random.uniform(-1.3, 2.3), "town": random.choice((0, 10 ** random.uniform(-1.2, 1.6))),
                    "Ho": random.uniform(0, 15), "Xo": random.uniform(0, 60), "Z": random.uniform(0, 60),
                    "X": random.uniform(-60, 60), "LU": random.uniform(50, 400), "LD": random.uniform(0, 100),
                    "base": random.uniform(0, 150)} for _ in range(12)]
        yield site("general", sectors, H=random.uniform(2, 60), A=random.uniform(3, 120), Vb=random.uniform(18, 30),
                   altitude=random.uniform(0, 250), Q=random.uniform(0.001, 0.3), season=random.randrange(6),
                   month=random.randrange(12), topog=random.choice((0, 2)))


def refusals():
    wrong = [("H", 0), ("H", -3), ("H", NAN), ("H", INF), ("Vb", 0), ("Vb", -20), ("Vb", NAN), ("Vb", INF), ("Q", 0),
             ("Q", 1), ("Q", -0.1), ("Q", NAN), ("season", 6), ("season", -1), ("altitude", NAN), ("A", NAN), ("A", INF)]
    for key, value in wrong:
        yield site("refusal", [{}], **{key: value})
    yield site("refusal", [{}], season=5, month=12)
    yield site("refusal", [{"sea": NAN}, {}, {"town": NAN}, {"town": 3}])


def sites():
    for makers in (table_corners, axis_edges, size_effect_key, towns_beyond_the_sea, obstructions, topography_zones,
                   shallow_and_steep_slopes, seasons, risks, diagonals):
        yield from makers()
    yield from general(Random(6399))
    yield from refusals()
