"""What `python3 -m orve3_bs6399_2` says."""
import orve3_bs6399_2 as orve
from orve3_bs6399_2._folders import system_directory

print(
    f"""orve3_bs6399_2 {orve.__version__}: wind loads on buildings to BS 6399-2, as a module for Python programs.

    import orve3_bs6399_2 as orve
    orve.register_built_in_engines()
    case = orve.clsCurrentCase()
    case.Initialize_BreApps()
    case.BuildingDimensions.Roof_Pitch = 6

help(orve3_bs6399_2) and help(orve3_bs6399_2.clsCurrentCase) show its objects.
Data folder of the engines: {system_directory() or 'none'}"""
)
