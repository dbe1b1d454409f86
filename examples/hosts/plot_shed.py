"""Plots q by sector and a plan of the roof's suctions of the shed: plot_shed.py FILE.png (needs matplotlib)."""
import sys

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt
from matplotlib.patches import Rectangle

import orve3_bs6399_2 as orve
from shed import describe

LENGTH, WIDTH = 24, 12


def plot_sectors(axes, site):
    angles = [sector * 30 * 3.14159265 / 180 for sector in orve.WindSectors]
    q = [site.DynamicPressure_q(orve.WindAreas.waRoof, sector) for sector in orve.WindSectors]
    axes.set_theta_zero_location("N")
    axes.set_theta_direction(-1)
    axes.bar(angles, q, width=0.45, color="tab:blue")
    axes.set_yticks([0.2, 0.4, 0.6, 0.8])
    axes.set_rlabel_position(15)
    axes.set_title("q by sector, kN/m²")


def zone_rectangles(loads, external, face):
    """The flat roof's zones for wind on a long face: A at both ends of the eaves, B between, C, and D behind."""
    area = orve.BuildingAreas.baRoof
    sizes = {}
    for zone in range(loads.ZoneIndexFrom(area, face), loads.ZoneIndexTo(area, face) + 1):
        size = external.Hybrid_ZoneDimensionsXY(area, face, zone, orve.ResultsScreens.Overall_Applied_Loads)
        suction = loads.Hybrid_OverallAppliedLoad_Suction(area, face, zone)
        sizes[loads.Hybrid_ZoneDescription(area, face, zone)] = (size.DimensionX, size.DimensionY, suction)
    a, c = sizes["A"], sizes["C"]
    edge, depth = a[0], a[1]
    yield "A", 0, 0, edge, depth, a[2]
    yield "A", LENGTH - edge, 0, edge, depth, a[2]
    yield "B", edge, 0, LENGTH - 2 * edge, depth, sizes["B"][2]
    yield "C", 0, depth, LENGTH, c[1], c[2]
    yield "D", 0, depth + c[1], LENGTH, WIDTH - depth - c[1], sizes["D"][2]


def plot_roof(axes, case, face):
    zones = list(zone_rectangles(case.OverallAppliedLoads, case.ExternalCoefficients, face))
    worst = min(zone[-1] for zone in zones)
    for name, x, y, width, height, suction in zones:
        axes.add_patch(Rectangle((x, y), width, height, edgecolor="black", facecolor=plt.cm.Blues(suction / worst)))
        color = "white" if suction / worst > 0.6 else "black"
        axes.text(x + width / 2, y + height / 2, name, ha="center", va="center", fontsize=8, color=color)
    loads = {name: suction for name, *_, suction in zones}
    axes.set(xlim=(0, LENGTH), ylim=(0, WIDTH), aspect="equal", title=f"Roof, wind on {face.text}, kN/m²")
    axes.set_xlabel(",  ".join(f"{name} {suction:+.3f}" for name, suction in loads.items()))


if __name__ == "__main__":
    orve.register_built_in_engines()
    case = orve.clsCurrentCase()
    case.Initialize_BreApps()
    describe(case)
    figure = plt.figure(figsize=(11, 4))
    plot_sectors(figure.add_subplot(1, 2, 1, projection="polar"), case.DynamicPressure)
    plot_roof(figure.add_subplot(1, 2, 2), case, orve.Faces.Face_1)
    figure.savefig(sys.argv[1], dpi=100)
