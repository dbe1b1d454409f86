#!/usr/bin/env python3
"""Works out wind factors and coefficients of BS 6399-2 anew and writes the cases that the engines are tested with.

    recalculate.py           writes wind.csv and coefficients.csv beside this script
    recalculate.py --check   compares them with what it would write; ends with 1 if they differ

Inputs are exact 32-bit floats, results are worked out in 64 bits from tables of this folder alone. In an expected
value "!" means that the read is refused; an empty one isn't compared.
"""
import sys
from math import isfinite
from pathlib import Path

import coefficient_cases
import wind_cases
from coefficient_rules import PARAPET, coefficients, geometry
from numbers32 import text, text32
from wind_rules import probability_factor, seasonal_factor, sector

FOLDER = Path(__file__).resolve().parent
SECTOR_RESULTS = ("Sd", "Sa", "Hd", "He", "Sh", "Sc", "St", "Tc", "Tt", "gt", "Sb", "q", "Ca")


def wind_lines():
    yield "# site,class," + ",".join(wind_cases.SITE) + ",Sp,Ss"
    yield "# sector," + ",".join(wind_cases.SECTOR) + "," + ",".join(SECTOR_RESULTS)
    for name, site, sectors in wind_cases.sites():
        factors = probability_factor(site["Q"]), seasonal_factor(site["season"], site["month"])
        yield ",".join(["site", name, *map(text32, site.values()), *map(text, factors)])
        for number, s in sectors:
            results = sector(site, number, s)
            yield ",".join([str(number), *map(text32, s.values()), *(text(results.get(k, "")) for k in SECTOR_RESULTS)])


def zone_text(zone, values):
    suction, pressure = map(text, values)
    return f"{zone}:{suction}" if suction == pressure else f"{zone}:{suction}/{pressure}"


def coefficient_lines():
    yield "# class,type," + ",".join(coefficient_cases.CASE) + ",B,D,b,zone:suction/pressure (one figure: both)"
    for name, c in coefficient_cases.cases():
        zones = coefficients(c)
        known = zones and c["type"] != PARAPET and all(map(isfinite, c.values()))
        sizes = map(text, geometry(c)) if known else ("", "", "")
        numbers = [repr(v) if k == "theta" else text32(v) for k, v in c.items()]
        yield ",".join([name, *numbers, *sizes, " ".join(zone_text(*z) for z in zones)])


def main():
    faults = 0
    for name, lines in (("wind.csv", wind_lines()), ("coefficients.csv", coefficient_lines())):
        fresh, path = ("\n".join(lines) + "\n").encode(), FOLDER / name
        if "--check" not in sys.argv:
            path.write_bytes(fresh)
        elif path.read_bytes() != fresh:
            print(f"{name} isn't what recalculate.py writes", file=sys.stderr)
            faults += 1
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
