"""The buildings of the coefficient recalculation by hard class."""
from random import Random

import coefficient_figures as fig
from coefficient_rules import CURVED, DUO, FLAT, HIPPED, MONO, PARAPET, WALLS
from numbers32 import around, f32, nudge

CASE = {"theta": 0, "L": 30, "W": 20, "H": 10, "gap": 0, "rise": 0, "mansard": 0, "radius": 0, "parapet": 0,
        "pitch": 0, "solidity": 0}
RIGHT_ANGLES = (0, 90, 180, 270)
MONO_ANGLES = (0, 89.9, 90, 180, 270, 270.1, f32(89.9), f32(270.1))
NAN = float("nan")


def case(name, kind, **values):
    c = {**CASE, **values}
    return name, {"type": kind, **{k: v if k == "theta" or isinstance(v, int) else f32(v) for k, v in c.items()}}


def walls(random):
    for ratio in (0.3, *around(1), 1.4486, 2.5, *around(4), 9):
        for theta in (0, 180):
            yield case("wall depth", WALLS, theta=theta, W=8 * ratio, H=8)
    for l, w, h in ((40, 10, 12), (30, 24, 5), (9, 13, 40)):
        b = min(w, 2 * h)
        for gap in [0, 0.1 * b, 0.375 * b, 0.75 * b, 3 * b] + [g for k in (0.25, 0.5, 1) for g in around(k * b)]:
            for theta in (90, 270):
                yield case("gap", WALLS, theta=theta, L=l, W=w, H=h, gap=gap)
    for _ in range(120):
        yield case("wall", WALLS, theta=random.choice(RIGHT_ANGLES), L=random.uniform(5, 80), W=random.uniform(5, 80),
                   H=random.uniform(3, 40), gap=random.uniform(0, 60))


def eaves(random):
    """Each eaves type at, just below and just above its rows; b and H by turns the greater."""
    for l, w, h in ((30, 20, 10), (50, 10, 40), (16, 100, 4), (7, 45, 11)):
        for theta in RIGHT_ANGLES:
            b = min(l if theta in (0, 180) else w, 2 * h)
            yield case("sharp eaves", FLAT, theta=theta, L=l, W=w, H=h)
            for ratio in (0.02, *around(0.05), 0.07, *around(0.1), 0.15, *around(0.2), 0.4):
                yield case("curved eaves", FLAT, theta=theta, L=l, W=w, H=h, radius=ratio * b)
                yield case("parapet ratio", FLAT, theta=theta, L=l, W=w, H=h, parapet=ratio * max(b, h))
        for angle in (10, *around(30), 38, *around(45), 55, *around(60), 75):
            yield case("mansard eaves", FLAT, theta=random.choice(RIGHT_ANGLES), L=l, W=w, H=h, mansard=angle)
    for two in ({"parapet": 1, "radius": 1}, {"parapet": 1, "mansard": 45}, {"radius": 1, "mansard": 45}):
        yield case("two eaves features", FLAT, **two)


def pitch_values(pitches):
    """Every pitch of the print, its neighbours, and points between that cross changes of sign."""
    between = [p + (q - p) * t for p, q in zip(pitches, pitches[1:]) if (p, q) != (-5, 5) for t in (0.25, 0.5, 0.8)]
    return [v for p in pitches for v in around(p)] + between


def pitched_roofs():
    for name, kind, pitches, angles in (("mono-pitched", MONO, fig.PITCHES, MONO_ANGLES),
                                        ("duo-pitched", DUO, fig.DUO_PITCHES, RIGHT_ANGLES),
                                        ("hipped", HIPPED, fig.PITCHES, (0, 90))):
        for pitch in pitch_values(pitches):
            for theta in angles:
                yield case(name, kind, theta=theta, pitch=pitch)
        for pitch in (0, 4.5, -4.5, 80, -50, NAN):
            yield case("pitch outside", kind, theta=0, pitch=pitch)
    yield case("hipped", HIPPED, theta=180, pitch=22)
    yield case("hipped", HIPPED, theta=270, pitch=22)


def curved_roofs():
    for ratio in (0.05, *around(0.2), 0.25, *around(0.3), 0.45, *around(0.6), 0.9):
        for springing, span in ((0, 10), (0.5, 7), (6, 13)):
            for theta in RIGHT_ANGLES:
                yield case("curved roof", CURVED, theta=theta, W=span, H=springing, rise=span * ratio)


def parapets():
    for h in (0.8, 1, 2.5):
        for w in (0, 0.3, *around(h), 12):
            for theta in (0, 180, 90):
                yield case("return corner", PARAPET, theta=theta, W=w, H=h, solidity=1)
    yield case("solidity", PARAPET, H=1, solidity=0)


def general(random):
    for _ in range(300):
        kind = random.choice((FLAT, MONO, DUO, HIPPED, CURVED))
        extra = {"pitch": random.uniform(5, 75)} if kind in (MONO, DUO, HIPPED) else \
            {"rise": random.uniform(0.5, 6)} if kind == CURVED else {"parapet": random.uniform(0, 3)}
        yield case("general", kind, theta=random.choice(MONO_ANGLES if kind == MONO else RIGHT_ANGLES),
                   L=random.uniform(10, 90), W=random.uniform(10, 60), H=random.uniform(3, 50), **extra)


def refusals():
    for kind in (WALLS, FLAT, MONO, DUO, HIPPED, PARAPET, CURVED):
        for theta in (45, 360, -90, 1, NAN):
            yield case("no such angle", kind, theta=theta, pitch=20, rise=2)
    for bad in ({"H": 0}, {"H": NAN}, {"W": NAN}):
        yield case("walls without a size", WALLS, **bad)
    yield case("gap unknown", WALLS, theta=90, gap=NAN)
    yield case("curved roof without a span", CURVED, W=0, rise=2)
    for key in ("mansard", "radius", "parapet"):
        yield case("eaves unknown", FLAT, **{key: NAN})


def cases():
    random = Random(1997)
    for makers in (walls, eaves):
        yield from makers(random)
    for makers in (pitched_roofs, curved_roofs, parapets):
        yield from makers()
    yield from general(random)
    yield from refusals()
