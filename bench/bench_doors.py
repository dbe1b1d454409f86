"""What the Python door costs: processor time of one call, in nanoseconds. Needs the module on the path."""
import tempfile
import time
import timeit

import orve3_bs6399_2 as orve

STATEMENTS = {
    "property": "building.Roof_Pitch",
    "let of a property": "building.Roof_Pitch = 3.0",
    "enumeration": "building.RoofType",
    "indexed read, positions": "wind.DynamicPressure_q(0, 3)",
    "indexed read, keywords": "wind.DynamicPressure_q(WindArea=0, WindSector=3)",
    "text": "case.Description",
    "object": "case.BuildingDimensions",
}

if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as folder:
        orve.host.LibraryFolder = lambda: folder
        orve.register_built_in_engines()
        case = orve.clsCurrentCase()
        building, wind = case.BuildingDimensions, case.DynamicPressure
        wind.ManualResults = True
        for name, statement in STATEMENTS.items():
            runs = timeit.repeat(statement, globals=globals(), number=200000, repeat=5, timer=time.process_time)
            print(f"{name:26s} {min(runs) / 200000 * 1e9:6.0f} ns")
