"""Site wind factors, dynamic pressure and size effect factor of BS 6399-2, one sector at a time."""
from bisect import bisect_left, bisect_right
from math import exp, isfinite, log, log10, sqrt

import wind_figures as fig

REFUSED = "!"  # a read that has no value: the engine raises


def interpolate(axis, values, x):
    """Linear along a rising axis, the end values beyond it."""
    if x <= axis[0]:
        return values[0]
    if x >= axis[-1]:
        return values[-1]
    i = bisect_right(axis, x) - 1
    return values[i] + (values[i + 1] - values[i]) * (x - axis[i]) / (axis[i + 1] - axis[i])


def table(grid, columns, he, km):
    return interpolate(fig.HEIGHTS, [interpolate(columns, row, km) for row in grid], he)


def polynomial(coefficients, x):
    return sum(c * x**i for i, c in enumerate(coefficients))


def seasonal_factor(season, month):
    if season in fig.SS:
        return fig.SS[season][month] if 0 <= month < 12 else REFUSED
    return {0: fig.SS_ALL_YEAR, 1: fig.SS_WINTER, 2: fig.SS_SUMMER}.get(season, REFUSED)


def probability_factor(risk):
    if not 0 < risk < 1:
        return REFUSED
    return sqrt((5 - log(-log(1 - risk))) / (5 - log(-log(0.98))))


def displacement_height(s):
    """1.7.3: sheltering counts in towns only."""
    if min(s["town"], s["sea"]) < fig.TOWN[0] or s["Ho"] <= 0:
        return 0.0
    return min(max(1.2 * s["Ho"] - 0.2 * s["Xo"], 0.0), 0.8 * s["Ho"])


def location_factor(s, height, le):
    """Figures 9 and 10: s at height above ground; of a hill with a downwind slope over twice as long the smaller of the two."""
    r, x = height / le, s["X"]
    if r > 2:
        return 0.0
    if x <= 0:
        kinds = [slope_factor(r, fig.UPWIND_B, x / s["LU"], 1.5)]
    else:
        kinds = [slope_factor(r, fig.HILL_B, x / s["LD"], 2)] if is_hill(s) else []
        if not kinds or s["LD"] > 2 * s["LU"]:
            kinds.append(cliff_factor(x / le, r))
    return max(min(kinds), 0.0)


def slope_factor(r, power, x, limit):
    return polynomial(fig.CREST_A, r) * exp(polynomial(power, r) * x) if abs(x) <= limit else 0.0


def cliff_factor(x, r):
    """Linear from the crest up to 0.1, then the fit, which holds from r = 0.1 on."""
    if x > 3.5:
        return 0.0
    k, lr = log10(max(x, 0.1)), log10(max(r, 0.1))
    a, b, c = (polynomial(p, lr) for p in (fig.CLIFF_A, fig.CLIFF_B, fig.CLIFF_C))
    crest, value = polynomial(fig.CREST_A, r), a * k * k + b * k + c
    return value if x >= 0.1 else crest + (value - crest) * x / 0.1


def is_hill(s):
    return s["LD"] > 0 and s["Z"] / s["LD"] > 0.05


def effective_slope(s):
    """Table 25: the length Le and whether the slope is steep."""
    steep = s["Z"] / s["LU"] > 0.3
    return (s["Z"] / 0.3 if steep else s["LU"]), steep


def reach(s, upwind):
    """Figures 7 and 8: how far from the crest the feature matters."""
    steep = effective_slope(s)[1]
    if upwind or is_hill(s):
        return 1.6 * s["Z"] if steep else 0.5 * s["LU" if upwind else "LD"]
    return 5 * s["Z"] if steep else 1.5 * s["LU"]


def topography(s, height):
    """Table 25: whether the feature is significant, and its increment Sh."""
    if not (s["Z"] > 0 and s["LU"] > 0) or s["Z"] / s["LU"] <= 0.05 or abs(s["X"]) > reach(s, s["X"] < 0):
        return False, 0.0
    le = effective_slope(s)[0]
    return True, 2.0 * min(s["Z"] / s["LU"], 0.3) * location_factor(s, height, le)


def size_effect_factor(s, he, a):
    """Figure 4; a town counts from 2 km inside its edge."""
    row = bisect_left(fig.LINE_HEIGHTS, he)
    if s["town"] >= 2:
        line = fig.TOWN_LINES[row][bisect_right(fig.TOWN_FROM, s["sea"])]
    else:
        line = fig.COUNTRY_LINES[row][bisect_right(fig.COUNTRY_FROM, s["sea"])]
    turbulence, size = fig.LINE_S[line], min(max(a, 5), 1000)
    return ((1 + (3.44 - 0.42 * log(size / 5)) * turbulence) / (1 + 3.44 * turbulence)) ** 2


def gust_peak_factor(a, v0):
    return max(3.44 - 0.42 * log(max(1, a / 5 * min(1, 22.5 / v0))), 0.0)


def building_factor(r, gt):
    return r["Sc"] * r["Tc"] * (1 + gt * r["St"] * r["Tt"] + r["Sh"])


def altitude_and_topography(site, s):
    significant, increment = topography(s, site["H"]) if site["topog"] == 0 else (False, 0.0)
    return 1 + 0.001 * (s["base"] if significant else site["altitude"]), increment


def terrain(r, s):
    sea, town = s["sea"], min(s["town"], s["sea"])
    r["Sc"], r["St"] = (table(grid, fig.SEA, r["He"], sea) for grid in (fig.SC, fig.ST))
    r["Tc"], r["Tt"] = (table(grid, fig.TOWN, r["He"], town) for grid in (fig.TC, fig.TT)) if town >= fig.TOWN[0] else (1, 1)


def refuses(site, s):
    """Inputs without which no dynamic pressure has a meaning."""
    numbers = [site[k] for k in ("H", "Vb", "altitude", "Q")] + [s["sea"], s["town"]]
    factors = (seasonal_factor(site["season"], site["month"]), probability_factor(site["Q"]))
    return not all(map(isfinite, numbers)) or site["H"] <= 0 or site["Vb"] <= 0 or REFUSED in factors


def sector(site, number, s):
    """All results of one sector."""
    if refuses(site, s):
        return {"q": REFUSED}
    r = {"Sd": fig.SD[number], "Hd": displacement_height(s)}
    r["Sa"], r["Sh"] = altitude_and_topography(site, s)
    r["He"] = max(site["H"] - r["Hd"], 0.4 * site["H"])
    terrain(r, s)
    ss, sp = seasonal_factor(site["season"], site["month"]), probability_factor(site["Q"])
    vs = site["Vb"] * r["Sa"] * r["Sd"] * ss * sp
    r["q"] = 0.613 * (vs * building_factor(r, 3.44)) ** 2
    if not isfinite(site["A"]):
        return {**r, "gt": REFUSED, "Sb": REFUSED, "Ca": REFUSED}
    r["gt"] = gust_peak_factor(site["A"], vs * r["Sc"] * r["Tc"] * (1 + r["Sh"]))
    r["Sb"] = building_factor(r, r["gt"])
    r["Ca"] = size_effect_factor(s, r["He"], site["A"])
    return r
