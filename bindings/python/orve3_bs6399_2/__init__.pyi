# Written by orve_generate from the description of the object model; don't edit it by hand.
from collections.abc import Callable
from dataclasses import dataclass
from datetime import datetime
from enum import IntEnum
from os import PathLike
from typing import Any, Generic
from typing_extensions import ParamSpec, Self

_P = ParamSpec("_P")

class Error(RuntimeError):
    """An error of the library, with its number and text."""
    number: int
    def __init__(self, number: int, text: str) -> None: ...
    def __reduce__(self) -> tuple[Any, ...]: ...

class Connection:
    """Keeps a handler connected until it is disconnected or goes."""
    def __init__(self, source: Object, event: str, handler: Callable[..., Any]) -> None: ...
    def disconnect(self) -> None:
        """Ends the connection; a second time does nothing."""
    def __enter__(self) -> Self: ...
    def __exit__(self, *exception: Any) -> None: ...

class Event(Generic[_P]):
    """An event; handlers run inside the call that raises it.

    In a `with` statement it gives a list, to which each raising adds the tuple of its arguments.
    """
    def __init__(self, source: Object, name: str) -> None: ...
    def connect(self, handler: Callable[_P, Any]) -> Connection:
        """Connects a callable and returns the connection; keep it, for the handler goes with it."""
    def __enter__(self) -> list[tuple[Any, ...]]: ...
    def __exit__(self, *exception: Any) -> None: ...

class _ObjectType(type): ...

class Object(metaclass=_ObjectType):
    """A counted reference to an object of the library; two are equal if they stand for the same object."""
    def __init__(self, *arguments: Any) -> None: ...
    def invoke(self, member: str, *arguments: Any, **named: Any) -> Any:
        """Reads a property or calls a method by its name."""
    def assign(self, member: str, *arguments_and_value: Any, **named: Any) -> None:
        """Lets or sets a property by its name; the value comes last."""
    def __eq__(self, other: object) -> bool: ...
    def __hash__(self) -> int: ...
    def __copy__(self) -> Self: ...
    def __deepcopy__(self, memo: dict[int, Any]) -> Self: ...

class FileDialog(metaclass=_ObjectType):
    """Settings of a file dialog; a host sets FileName to the name chosen."""
    def __init__(self, *args: Any, **kwargs: Any) -> None: ...
    CancelError: bool
    DefaultExt: str
    DialogTitle: str
    Filter: str
    Flags: int
    InitDir: str
    @property
    def FileName(self) -> str: ...
    @FileName.setter
    def FileName(self, name: str | PathLike[str]) -> None: ...

class HostServices:
    """Callables of the host; None brings the headless default back."""
    MsgBox: Callable[[str, int, str], int] | None
    OpenFileDialog: Callable[[FileDialog], bool] | None
    SaveFileDialog: Callable[[FileDialog], bool] | None
    MousePointer: Callable[[], int] | None
    SetMousePointer: Callable[[int], None] | None
    DoEvents: Callable[[], None] | None
    LibraryFolder: Callable[[], str | PathLike[str]] | None
    SystemDirectory: Callable[[], str | PathLike[str]] | None
    Now: Callable[[], float | datetime] | None
    SiteBrowse: Callable[[], str | None] | None
    SiteSelect: Callable[[], str | None] | None
    SiteEdit: Callable[[], bool] | None

host: HostServices
__version__: str

def register_built_in_engines() -> None:
    """Makes the built-in engines the components; call it before clsCurrentCase()."""

def native_path(path: str | PathLike[str]) -> str:
    """A stored path as the machine's own."""

def resolve_file_name(name: str | PathLike[str]) -> str:
    """The file that opening and saving a name use, as a full path. Errors: 75 for an empty name."""

def case_file_exists(name: str | PathLike[str]) -> bool:
    """True if opening that name would find a file, and saving to it would write over one."""

def case_file_changed() -> bool:
    """True if the file of the open case isn't as the last opening or save of it here left it; ask before saving."""

def copy_put_aside(name: str | PathLike[str]) -> str:
    """The path of the copy that an interrupted save left of a file, if the file isn't the same; empty if there is none."""

def single_text(value: float) -> str:
    """Shortest decimal text of a 32-bit value, as most members give it: 0.1 and not 0.10000000149011612."""

def double_text(value: float) -> str:
    """Shortest decimal text of a 64-bit value."""

class PublishedEnum(IntEnum):
    """An enumeration of the library. A member prints by its name and is found by its published text."""
    @property
    def text(self) -> str:
        """The published text of the member."""
    @classmethod
    def from_text(cls, text: str) -> Self:
        """The member with a published text; letter case and outer blanks don't count. Errors: 5 if there is none."""
    def __format__(self, form: str) -> str: ...

class BuildingAreas(PublishedEnum):
    """The part of the building that a zone lies on."""
    baRoof = 0
    baWalls = 1
    baParapet = 2

class Faces(PublishedEnum):
    """A face of the building."""
    Face_1 = 0
    Face_2 = 1
    Face_3 = 2
    Face_4 = 3

class ResultsScreens(PublishedEnum):
    """The screen on whose behalf zones are asked for."""
    External_Coefficient = 0
    Overall_Applied_Loads = 1

class ParentTypes(PublishedEnum):
    """The kind of design in the host."""
    None_ = 0
    Purlin_Single = 1
    Purlin_Double = 2
    Siderail_Single = 3
    Siderail_Double = 4
    Purlin_Continuous_Single = 5
    Purlin_Continuous_Double = 6
    Eavesbeam_Design = 7
    Cantilever_Design_Single = 8
    Cantilever_Design_Double = 10
    ptParapetDesign = 9

class WindSectors(PublishedEnum):
    """The twelve wind sectors; a sector's angle is its value times 30 degrees (Table 3)."""
    Degrees_0 = 0
    Degrees_30 = 1
    Degrees_60 = 2
    Degrees_90 = 3
    Degrees_120 = 4
    Degrees_150 = 5
    Degrees_180 = 6
    Degrees_210 = 7
    Degrees_240 = 8
    Degrees_270 = 9
    Degrees_300 = 10
    Degrees_330 = 11

class RoofTypes(PublishedEnum):
    """Roof form."""
    Flat_roof_with_sharp_eaves = 0
    Flat_roof_with_parapets = 1
    Flat_roof_with_curved_eaves = 2
    Flat_roof_with_mansard_eaves = 3
    Mono_pitched_roof = 4
    Duo_pitched_roof = 5
    Hipped_roof = 6
    Curved_roof = 7

class FrameTypes(PublishedEnum):
    """How many frames the building has (Table 12)."""
    Frames_1 = 0
    Frames_2 = 1
    Frames_3_or_more = 2

class GableFaces(PublishedEnum):
    """Which pair of faces are the gables."""
    Faces_1_and_3 = 0
    Faces_2_and_4 = 1

class LifeTime(PublishedEnum):
    """Permanent or temporary structure."""
    Permanent = 0
    Temporary = 1

class Durations(PublishedEnum):
    """The part of the year for which the building is exposed (annex D)."""
    All_year = 0
    Winter = 1
    Summer = 2
    Months_4 = 3
    Months_2 = 4
    Months_1 = 5

class Methods(PublishedEnum):
    """The calculation method."""
    Directional = 0
    Hybrid = 1

class SaBasedOnTypes(PublishedEnum):
    """What the altitude factor rests on (2.2.2.2)."""
    Altitude = 0
    Topography = 1

class Months(PublishedEnum):
    """Months, counted from 0."""
    January = 0
    February = 1
    March = 2
    April = 3
    May = 4
    June = 5
    July = 6
    August = 7
    September = 8
    October = 9
    November = 10
    December = 11

class WindAreas(PublishedEnum):
    """The area of the building for which a dynamic pressure is worked out."""
    waRoof = 0
    waSidewall = 1
    waGable = 2
    waInternal = 3
    waSidewallParapet = 4
    waGableParapet = 5

class Bays(PublishedEnum):
    """The bay of a multi-span roof (Table 12)."""
    End_Bay = 0
    Second_Bay = 1
    All_Remaining_Bays = 2

class WallZones(PublishedEnum):
    """The wall zone selected for a dominant opening."""
    Windward = 0
    Leeward = 1
    A_face_1 = 2
    B_face_1 = 3
    C_face_1 = 4
    A_face_2 = 5
    B_face_2 = 6
    C_face_2 = 7
    A_face_3 = 8
    B_face_3 = 9
    C_face_3 = 10
    A_face_4 = 11
    B_face_4 = 12
    C_face_4 = 13

class StructureTypes(PublishedEnum):
    """Enclosed, with a dominant opening, or open sided (2.6)."""
    Enclosed_building = 0
    Dominant_opening = 1
    Open_sided_building = 2

class WindPressureTypes(PublishedEnum):
    """The wind area that the internal wind area follows."""
    wptSidewall = 0
    wptGable = 1
    wptRoof = 2

class SelectedLoadTypes(PublishedEnum):
    """The load type picked for a building area and face."""
    Stepped_Wind_Load = 0
    Windward = 1
    Leeward = 2
    A_face_1 = 3
    B_face_1 = 4
    C_face_1 = 5
    A_face_2 = 6
    B_face_2 = 7
    C_face_2 = 8
    A_face_3 = 9
    B_face_3 = 10
    C_face_3 = 11
    A_face_4 = 12
    B_face_4 = 13
    C_face_4 = 14
    AU = 15
    AL = 16
    A = 17
    B = 18
    C = 19
    D = 20
    E = 21
    F = 22
    G = 23
    H = 24
    i = 25
    J = 26

@dataclass
class ZoneDimensionsXY:
    """The two lengths of a zone, in metres."""
    DimensionX: float = ...
    DimensionY: float = ...

@dataclass
class CantileverZones:
    """One row of the cantilever zone table."""
    Cantilever_ZoneDescription: str = ...
    Cantilever_ZoneDimensions: str = ...
    Cantilever_ExternalAppliedLoads: str = ...
    Cantilever_InternalAppliedLoads: str = ...
    Cantilever_OverallAppliedLoads: str = ...

@dataclass
class CantileverResults:
    """One row of the cantilever result table."""
    Cantilever_Face: str = ...
    Cantilever_Zone: str = ...
    Cantilever_WindPressure: str = ...
    Cantilever_WindUplift: str = ...

@dataclass
class CantileverZone:
    """Dimensions and external pressure of one wall zone, as texts."""
    Zone_Dimensions: str = ...
    Zone_ExternalPressures: str = ...

@dataclass
class ExternalPressure:
    """Pressures of the roof zones and of the wall zones under the cantilevers."""
    Roof1_A_Face: str = ...
    Roof1_B_Face: str = ...
    Roof2_A_Face: str = ...
    Roof2_B_Face: str = ...
    Roof2_C_Face: str = ...
    Wall2_Windward: CantileverZone = ...
    Wall2_Leeward: CantileverZone = ...
    Wall2_A_Face_1: CantileverZone = ...
    Wall2_B_Face_1: CantileverZone = ...
    Wall2_C_Face_1: CantileverZone = ...
    Wall2_A_Face_3: CantileverZone = ...
    Wall2_B_Face_3: CantileverZone = ...
    Wall2_C_Face_3: CantileverZone = ...
    Wall4_Windward: CantileverZone = ...
    Wall4_Leeward: CantileverZone = ...
    Wall4_A_Face_1: CantileverZone = ...
    Wall4_B_Face_1: CantileverZone = ...
    Wall4_C_Face_1: CantileverZone = ...
    Wall4_A_Face_3: CantileverZone = ...
    Wall4_B_Face_3: CantileverZone = ...
    Wall4_C_Face_3: CantileverZone = ...

class clsCurrentCase(Object):
    """The one wind load case that is open."""
    def __init__(self) -> None: ...
    @property
    def BreCp_Dirty(self) -> bool:
        """The coefficient component has to be told the method anew.

        Range: True or False.
        """
    @BreCp_Dirty.setter
    def BreCp_Dirty(self, value: bool) -> None: ...
    @property
    def BreOSDatabase(self) -> bool:
        """Switch for the wind-speed component's database.

        Range: True or False.
        """
    @BreOSDatabase.setter
    def BreOSDatabase(self, value: bool) -> None: ...
    @property
    def BreVe_Dirty(self) -> bool:
        """Inputs of the wind-speed component have changed.

        Range: True or False.
        """
    @BreVe_Dirty.setter
    def BreVe_Dirty(self, value: bool) -> None: ...
    @property
    def Parent_Type(self) -> ParentTypes:
        """Kind of design in the host; let it last of the Parent values.

        Range: None to ptParapetDesign.
        Errors: 6 for a value that doesn't fit; the old one stays.
        """
    @Parent_Type.setter
    def Parent_Type(self, value: ParentTypes | int) -> None: ...
    @property
    def Parent_Span(self) -> float:
        """Span of the host's member, m.

        Range: any finite number; 0 where there is none.
        Errors: 6 for a value that doesn't fit; the old one stays.
        """
    @Parent_Span.setter
    def Parent_Span(self, value: float) -> None: ...
    @property
    def Parent_Centres(self) -> float:
        """Spacing of the host's members, m.

        Range: any finite number; 0 where there is none.
        Errors: 6 for a value that doesn't fit; the old one stays.
        """
    @Parent_Centres.setter
    def Parent_Centres(self, value: float) -> None: ...
    @property
    def Parent_RoofPitch(self) -> int:
        """Roof pitch in the host, whole degrees, degrees.

        Range: -32768 to 32767.
        """
    @Parent_RoofPitch.setter
    def Parent_RoofPitch(self, value: int) -> None: ...
    @property
    def Parent_HeightOfPost_m(self) -> float:
        """Height of the parapet post, m.

        Range: any finite number; 0 where there is none.
        Errors: 6 for a value that doesn't fit; the old one stays.
        """
    @Parent_HeightOfPost_m.setter
    def Parent_HeightOfPost_m(self, value: float) -> None: ...
    @property
    def Parent_HeightToTopOfPostFromFFL_m(self) -> float:
        """Height of the top of the post above finished floor level, m.

        Range: any finite number; 0 where there is none.
        Errors: 6 for a value that doesn't fit; the old one stays.
        """
    @Parent_HeightToTopOfPostFromFFL_m.setter
    def Parent_HeightToTopOfPostFromFFL_m(self, value: float) -> None: ...
    @property
    def Parent_BaySize_m(self) -> float:
        """Bay size, m.

        Range: any finite number; 0 where there is none.
        Errors: 6 for a value that doesn't fit; the old one stays.
        """
    @Parent_BaySize_m.setter
    def Parent_BaySize_m(self, value: float) -> None: ...
    @property
    def PathToHelp(self) -> str:
        """Plain storage for the host.

        Range: any text.
        """
    @PathToHelp.setter
    def PathToHelp(self, value: str | PathLike[str]) -> None: ...
    @property
    def PathToWindLoadCases(self) -> str:
        """Folder of the wind load cases.

        Range: any text.
        Errors: 70, 75, 76 if the settings file can't be written.
        """
    @PathToWindLoadCases.setter
    def PathToWindLoadCases(self, value: str | PathLike[str]) -> None: ...
    @property
    def IsDirty(self) -> bool:
        """The case has unsaved changes; every let raises DirtyUpdated.

        Range: True or False.
        Errors: those of a handler.
        """
    @IsDirty.setter
    def IsDirty(self, value: bool) -> None: ...
    @property
    def Location(self) -> str:
        """Full path of the case's file, empty for a new one.

        Range: any text.
        Errors: those of a handler.
        """
    @Location.setter
    def Location(self, value: str | PathLike[str]) -> None: ...
    @property
    def LocationCorrect(self) -> bool:
        """True if a file of that name is there.

        Range: True or False.
        """
    @property
    def Description(self) -> str:
        """Free text of the case.

        Range: any text.
        """
    @Description.setter
    def Description(self, value: str) -> None: ...
    @property
    def Created(self) -> datetime | None:
        """Date of the first save, 0 if there was none.

        Range: 0 for none.
        """
    @property
    def Modified(self) -> datetime | None:
        """Date of the last save, 0 if there was none.

        Range: 0 for none.
        """
    @property
    def breDataPath(self) -> str:
        """Data folder of the wind-speed component.

        Range: any text.
        Errors: 91 without a component.
        """
    @breDataPath.setter
    def breDataPath(self, value: str | PathLike[str]) -> None: ...
    @property
    def BuildingDimensions(self) -> clsBuildingDimensions:
        """Geometry of the building.

        Range: an object of the class, or nothing.
        """
    @BuildingDimensions.setter
    def BuildingDimensions(self, value: clsBuildingDimensions | None) -> None: ...
    @property
    def DynamicPressure(self) -> clsDynamicPressure:
        """Site and dynamic pressures.

        Range: an object of the class, or nothing.
        """
    @DynamicPressure.setter
    def DynamicPressure(self, value: clsDynamicPressure | None) -> None: ...
    @property
    def ExternalCoefficients(self) -> clsExternalCoefficients:
        """Zones and external pressure coefficients.

        Range: an object of the class, or nothing.
        """
    @ExternalCoefficients.setter
    def ExternalCoefficients(self, value: clsExternalCoefficients | None) -> None: ...
    @property
    def InternalCoefficients(self) -> clsInternalCoefficients:
        """Internal pressure coefficients.

        Range: an object of the class, or nothing.
        """
    @InternalCoefficients.setter
    def InternalCoefficients(self, value: clsInternalCoefficients | None) -> None: ...
    @property
    def OverallAppliedLoads(self) -> clsOverallAppliedLoads:
        """Loads.

        Range: an object of the class, or nothing.
        """
    @OverallAppliedLoads.setter
    def OverallAppliedLoads(self, value: clsOverallAppliedLoads | None) -> None: ...
    @property
    def WindCaseList(self) -> clsWindCaseList:
        """The recent wind load cases.

        Range: an object of the class, or nothing.
        """
    @WindCaseList.setter
    def WindCaseList(self, value: clsWindCaseList | None) -> None: ...
    @property
    def CantileverWindloads(self) -> clsCantileverWindLoads:
        """Wall pressures under the cantilevers.

        Range: an object of the class, or nothing.
        """
    @CantileverWindloads.setter
    def CantileverWindloads(self, value: clsCantileverWindLoads | None) -> None: ...
    def Initialize_BreApps(self) -> None:
        """Presets the components; call it once after construction.

        Errors: 91 without a component.
        """
    def Clear(self) -> None:
        """Starts a new, blank case without a question.

        Errors: those of a handler.
        """
    def Browse(self) -> bool:
        """Asks the user for a file and opens it; True if a case was opened.

        Range: False after Cancel.
        Errors: those of reading: 5 for a file over 16 MB, 6 and 13 for a value, 53 to 76 of the file system.
        """
    def OpenExisting(self, FileNameToOpen: str | PathLike[str]) -> bool:
        """Opens a file; True if a case was opened.

        Range: False if there is no such file, or after No to the question about unsaved changes.
        Arguments: FileNameToOpen any text.
        Errors: those of reading: 5 for a file over 16 MB, 6 and 13 for a value, 53 to 76 of the file system.
        """
    def Save(self) -> None:
        """Saves under the present location; with none, asks for a name.

        Errors: those of writing: 53 to 76 of the file system.
        """
    def SaveAs(self) -> None:
        """Asks for a name and saves.

        Errors: those of writing: 53 to 76 of the file system.
        """
    @property
    def OldBreVeVersion(self) -> bool:
        """The type name of the wind-speed component is BVe2X.

        Range: True or False.
        Errors: 91 without a component.
        """
    @property
    def OldBreCpVersion(self) -> bool:
        """The type name of the coefficient component is BreCpX.

        Range: True or False.
        Errors: 91 without a component.
        """
    @property
    def DirtyUpdated(self) -> Event[[bool]]:
        """At every assignment to IsDirty."""
    @property
    def LocationUpdated(self) -> Event[[str]]:
        """At every assignment to Location."""
    @property
    def WindCaseListUpdated(self) -> Event[[]]:
        """At the end of the reading or writing of a case."""
    @property
    def WindCaseOpened(self) -> Event[[str]]:
        """After a case has been read; Location is still empty."""
    @property
    def WindCaseSaved(self) -> Event[[str]]:
        """After the file has been written; Location still holds the former name."""

class clsBuildingDimensions(Object):
    """Geometry of the building."""
    @property
    def OrientationUnknown(self) -> bool:
        """The orientation isn't known and isn't used.

        Range: True or False.
        """
    @OrientationUnknown.setter
    def OrientationUnknown(self, value: bool) -> None: ...
    @property
    def Orientation(self) -> int:
        """Angle of the normal to Face 2, whole degrees, degrees.

        Range: 0 to 359; any 16-bit number is stored.
        """
    @Orientation.setter
    def Orientation(self, value: int) -> None: ...
    @property
    def RoofType(self) -> RoofTypes:
        """Roof form; selects which shape property is read.

        Range: 0 to 7, a member of RoofTypes.
        Errors: 6 outside 16 bits.
        """
    @RoofType.setter
    def RoofType(self, value: RoofTypes | int) -> None: ...
    @property
    def Face1And3_Length(self) -> float:
        """Plan length along Faces 1 and 3, m.

        Range: 0 or more; any number is stored.
        """
    @Face1And3_Length.setter
    def Face1And3_Length(self, value: float) -> None: ...
    @property
    def Face2And4_Width(self) -> float:
        """Plan length along Faces 2 and 4, m.

        Range: 0 or more; any number is stored.
        """
    @Face2And4_Width.setter
    def Face2And4_Width(self, value: float) -> None: ...
    @property
    def ConsiderRoof(self) -> bool:
        """The design in hand concerns the roof.

        Range: True or False.
        """
    @ConsiderRoof.setter
    def ConsiderRoof(self, value: bool) -> None: ...
    @property
    def ConsiderWalls(self) -> bool:
        """The design in hand concerns the walls.

        Range: True or False.
        """
    @ConsiderWalls.setter
    def ConsiderWalls(self, value: bool) -> None: ...
    @property
    def ConsiderCantilever(self) -> bool:
        """The building has cantilevers.

        Range: True or False.
        """
    @ConsiderCantilever.setter
    def ConsiderCantilever(self, value: bool) -> None: ...
    @property
    def ConsiderParapet(self) -> bool:
        """The design in hand concerns the parapet.

        Range: True or False.
        """
    @ConsiderParapet.setter
    def ConsiderParapet(self, value: bool) -> None: ...
    @property
    def Roof_Height(self) -> float:
        """Height of the roof, m.

        Range: 0 or more; any number is stored.
        """
    @Roof_Height.setter
    def Roof_Height(self, value: float) -> None: ...
    @property
    def Roof_Diagonal(self) -> float:
        """Diagonal dimension for the roof, m.

        Range: 0 or more; any number is stored.
        BS 6399-2: Figure 5.
        """
    @Roof_Diagonal.setter
    def Roof_Diagonal(self, value: float) -> None: ...
    @property
    def Roof_Diagonal_Default(self) -> float:
        """Default of Roof_Diagonal from the parent design, m.

        Range: 0 or more.
        Errors: 6 if it doesn't fit.
        """
    @property
    def Roof_ParapetHeight(self) -> float:
        """Parapet height of a flat roof with parapets, m.

        Range: 0 or more; any number is stored.
        """
    @Roof_ParapetHeight.setter
    def Roof_ParapetHeight(self, value: float) -> None: ...
    @property
    def Roof_EavesRadius(self) -> float:
        """Eaves radius of a flat roof with curved eaves, m.

        Range: 0 or more; any number is stored.
        """
    @Roof_EavesRadius.setter
    def Roof_EavesRadius(self, value: float) -> None: ...
    @property
    def Roof_MansardSlope(self) -> float:
        """Eaves slope of a flat roof with mansard eaves, degrees.

        Range: any number is stored; what the tables don't have raises 5 at the read of a coefficient.
        """
    @Roof_MansardSlope.setter
    def Roof_MansardSlope(self, value: float) -> None: ...
    @property
    def Roof_Pitch(self) -> float:
        """Pitch of mono-pitched, duo-pitched and hipped roofs, degrees.

        Range: any number is stored; what the tables don't have raises 5 at the read of a coefficient.
        """
    @Roof_Pitch.setter
    def Roof_Pitch(self, value: float) -> None: ...
    @property
    def Roof_RiseHeight(self) -> float:
        """Rise of a curved roof, m.

        Range: 0 or more; any number is stored.
        """
    @Roof_RiseHeight.setter
    def Roof_RiseHeight(self, value: float) -> None: ...
    @property
    def Roof_FrameType(self) -> FrameTypes:
        """How many frames the building has.

        Range: 0 to 2, a member of FrameTypes.
        Errors: 6 outside 16 bits.
        BS 6399-2: Table 12.
        """
    @Roof_FrameType.setter
    def Roof_FrameType(self, value: FrameTypes | int) -> None: ...
    @property
    def Wall_SideHeight(self) -> float:
        """Height of the side walls, m.

        Range: 0 or more; any number is stored.
        """
    @Wall_SideHeight.setter
    def Wall_SideHeight(self, value: float) -> None: ...
    @property
    def Wall_SideDiagonal(self) -> float:
        """Diagonal dimension for the side walls, m.

        Range: 0 or more; any number is stored.
        """
    @Wall_SideDiagonal.setter
    def Wall_SideDiagonal(self, value: float) -> None: ...
    @property
    def Wall_SideDiagonal_Default(self) -> float:
        """Default of Wall_SideDiagonal from the parent design, m.

        Range: 0 or more.
        Errors: 6 if it doesn't fit.
        """
    @property
    def Wall_GableHeight(self) -> float:
        """Height of the gable walls, m.

        Range: 0 or more; any number is stored.
        """
    @Wall_GableHeight.setter
    def Wall_GableHeight(self, value: float) -> None: ...
    @property
    def Wall_GableDiagonal(self) -> float:
        """Diagonal dimension for the gable walls, m.

        Range: 0 or more; any number is stored.
        """
    @Wall_GableDiagonal.setter
    def Wall_GableDiagonal(self, value: float) -> None: ...
    @property
    def Wall_GableDiagonal_Default(self) -> float:
        """Default of Wall_GableDiagonal from the parent design, m.

        Range: 0 or more.
        Errors: 6 if it doesn't fit.
        """
    @property
    def Wall_GableFaces(self) -> GableFaces:
        """Which pair of faces are the gables.

        Range: 0 to 1, a member of GableFaces.
        Errors: 6 outside 16 bits.
        """
    @Wall_GableFaces.setter
    def Wall_GableFaces(self, value: GableFaces | int) -> None: ...
    @property
    def Wall_GapFace1(self) -> float:
        """Gap beside Face 1, m.

        Range: 0 or more; any number is stored.
        BS 6399-2: 2.4.1.4.
        """
    @Wall_GapFace1.setter
    def Wall_GapFace1(self, value: float) -> None: ...
    @property
    def Wall_GapFace2(self) -> float:
        """Gap beside Face 2, m.

        Range: 0 or more; any number is stored.
        BS 6399-2: 2.4.1.4.
        """
    @Wall_GapFace2.setter
    def Wall_GapFace2(self, value: float) -> None: ...
    @property
    def Wall_GapFace3(self) -> float:
        """Gap beside Face 3, m.

        Range: 0 or more; any number is stored.
        BS 6399-2: 2.4.1.4.
        """
    @Wall_GapFace3.setter
    def Wall_GapFace3(self, value: float) -> None: ...
    @property
    def Wall_GapFace4(self) -> float:
        """Gap beside Face 4, m.

        Range: 0 or more; any number is stored.
        BS 6399-2: 2.4.1.4.
        """
    @Wall_GapFace4.setter
    def Wall_GapFace4(self, value: float) -> None: ...
    @property
    def CantileverFace1Or2_Length(self) -> float:
        """Length of the cantilever on Face 1 or Face 2, m.

        Range: 0 or more; any number is stored.
        """
    @CantileverFace1Or2_Length.setter
    def CantileverFace1Or2_Length(self, value: float) -> None: ...
    @property
    def CantileverFace3Or4_Length(self) -> float:
        """Length of the cantilever on Face 3 or Face 4, m.

        Range: 0 or more; any number is stored.
        """
    @CantileverFace3Or4_Length.setter
    def CantileverFace3Or4_Length(self, value: float) -> None: ...
    @property
    def Parapet_Height(self) -> float:
        """Height of the parapet itself, m.

        Range: 0 or more; any number is stored.
        """
    @Parapet_Height.setter
    def Parapet_Height(self, value: float) -> None: ...
    @property
    def Parapet_HeightFromFFL_m(self) -> float:
        """Height of the top of the parapet above finished floor level, m.

        Range: 0 or more; any number is stored.
        """
    @Parapet_HeightFromFFL_m.setter
    def Parapet_HeightFromFFL_m(self, value: float) -> None: ...
    @property
    def Parapet_SideDiagonal(self) -> float:
        """Diagonal dimension for the side parapet, m.

        Range: 0 or more; any number is stored.
        """
    @Parapet_SideDiagonal.setter
    def Parapet_SideDiagonal(self, value: float) -> None: ...
    @property
    def Parapet_SideDiagonal_Default(self) -> float:
        """Default of Parapet_SideDiagonal from the parent design, m.

        Range: 0 or more.
        Errors: 6 if it doesn't fit.
        """
    @property
    def Parapet_GableDiagonal(self) -> float:
        """Diagonal dimension for the gable parapet, m.

        Range: 0 or more; any number is stored.
        """
    @Parapet_GableDiagonal.setter
    def Parapet_GableDiagonal(self, value: float) -> None: ...
    @property
    def Parapet_GableDiagonal_Default(self) -> float:
        """Default of Parapet_GableDiagonal from the parent design, m.

        Range: 0 or more.
        Errors: 6 if it doesn't fit.
        """
    @property
    def Parapet_SideReturnCorner(self) -> bool:
        """The side parapet has a return corner.

        Range: True or False.
        BS 6399-2: Table 21.
        """
    @Parapet_SideReturnCorner.setter
    def Parapet_SideReturnCorner(self, value: bool) -> None: ...
    @property
    def Parapet_GableReturnCorner(self) -> bool:
        """The gable parapet has a return corner.

        Range: True or False.
        BS 6399-2: Table 21.
        """
    @Parapet_GableReturnCorner.setter
    def Parapet_GableReturnCorner(self, value: bool) -> None: ...

class clsDynamicPressure(Object):
    """The site, and dynamic pressure and its factors by wind area and sector."""
    @property
    def WindArea(self) -> WindAreas:
        """Wind area taken where an argument is -1.

        Range: 0 to 5, a member of WindAreas.
        Errors: 6 outside 16 bits.
        """
    @WindArea.setter
    def WindArea(self, value: WindAreas | int) -> None: ...
    @property
    def WindSector(self) -> WindSectors:
        """Wind sector taken where an argument is -1.

        Range: 0 to 11, a member of WindSectors.
        Errors: 6 outside 16 bits.
        """
    @WindSector.setter
    def WindSector(self, value: WindSectors | int) -> None: ...
    @property
    def SiteDirty(self) -> bool:
        """The site is still to be loaded into the component.

        Range: True or False.
        """
    @SiteDirty.setter
    def SiteDirty(self, value: bool) -> None: ...
    @property
    def SiteSelected(self) -> bool:
        """A site reference has been assigned.

        Range: True or False.
        """
    @SiteSelected.setter
    def SiteSelected(self, value: bool) -> None: ...
    @property
    def SiteEdited(self) -> bool:
        """The site differs from what its reference alone gives.

        Range: True or False.
        """
    @SiteEdited.setter
    def SiteEdited(self, value: bool) -> None: ...
    @property
    def Method(self) -> Methods:
        """The method of BS 6399-2.

        Range: 0 to 1, a member of Methods.
        Errors: 6 outside 16 bits.
        """
    @Method.setter
    def Method(self, value: Methods | int) -> None: ...
    @property
    def ManualResults(self) -> bool:
        """q and Ca come from the hand-entered tables.

        Range: True or False.
        """
    @ManualResults.setter
    def ManualResults(self, value: bool) -> None: ...
    @property
    def GridReference(self) -> str:
        """Site reference of the component; empty: none.

        Range: any text; the built-in engine looks for a site file of that name.
        """
    @GridReference.setter
    def GridReference(self, value: str) -> None: ...
    @property
    def SaBasedOn(self) -> SaBasedOnTypes:
        """What the altitude factor rests on.

        Range: 0 to 1, a member of SaBasedOnTypes.
        Errors: 6 outside 16 bits.
        BS 6399-2: 2.2.2.2.
        """
    @SaBasedOn.setter
    def SaBasedOn(self, value: SaBasedOnTypes | int) -> None: ...
    @property
    def SiteAltitude(self) -> float:
        """Altitude of the site, m.

        Range: any number is stored.
        """
    @SiteAltitude.setter
    def SiteAltitude(self, value: float) -> None: ...
    @property
    def BasicWindSpeed(self) -> float:
        """Basic wind speed Vb, m/s.

        Range: above 0; any number is stored.
        BS 6399-2: Figure 6.
        """
    @BasicWindSpeed.setter
    def BasicWindSpeed(self, value: float) -> None: ...
    @property
    def AnnualRisk(self) -> float:
        """Annual risk of exceedance Q.

        Range: above 0 and below 1; any number is stored.
        BS 6399-2: annex D.
        """
    @AnnualRisk.setter
    def AnnualRisk(self, value: float) -> None: ...
    @property
    def LifeTime(self) -> LifeTime:
        """Permanent or temporary structure.

        Range: 0 to 1, a member of LifeTime.
        Errors: 6 outside 16 bits.
        """
    @LifeTime.setter
    def LifeTime(self, value: LifeTime | int) -> None: ...
    @property
    def Duration(self) -> Durations:
        """Part of the year of the exposure.

        Range: 0 to 5, a member of Durations.
        Errors: 6 outside 16 bits.
        BS 6399-2: annex D.
        """
    @Duration.setter
    def Duration(self, value: Durations | int) -> None: ...
    @property
    def StartMonth(self) -> Months:
        """First month of the exposure.

        Range: 0 to 11, a member of Months.
        Errors: 6 outside 16 bits.
        BS 6399-2: annex D.
        """
    @StartMonth.setter
    def StartMonth(self, value: Months | int) -> None: ...
    def CrestHeight_Z(self, WindSector: WindSectors | int | None = -1) -> float:
        """Crest height Z of the topographic feature, m.

        Range: 0 or more; any number is stored.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: Figure 7.
        """
    def set_CrestHeight_Z(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def SiteLocation_X(self, WindSector: WindSectors | int | None = -1) -> float:
        """Distance X of the site from the crest, negative upwind, m.

        Range: any number.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: Figure 7.
        """
    def set_SiteLocation_X(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def UpwindLength_LU(self, WindSector: WindSectors | int | None = -1) -> float:
        """Upwind slope length LU, m.

        Range: 0 or more; any number is stored.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: Figure 7.
        """
    def set_UpwindLength_LU(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def DownwindLength_LD(self, WindSector: WindSectors | int | None = -1) -> float:
        """Downwind slope length LD, m.

        Range: 0 or more; any number is stored.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: Figure 7.
        """
    def set_DownwindLength_LD(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def BaseAltitude(self, WindSector: WindSectors | int | None = -1) -> float:
        """Altitude of the base of the feature, m.

        Range: any number.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        """
    def set_BaseAltitude(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def ObstructionHeight_Ho(self, WindSector: WindSectors | int | None = -1) -> float:
        """Height Ho of the obstructions, m.

        Range: 0 or more; any number is stored.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: 1.7.3.
        """
    def set_ObstructionHeight_Ho(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def ObstructionSpacing_Xo(self, WindSector: WindSectors | int | None = -1) -> float:
        """Upwind spacing Xo of the obstructions, m.

        Range: 0 or more; any number is stored.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: 1.7.3.
        """
    def set_ObstructionSpacing_Xo(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def FetchesToSea(self, WindSector: WindSectors | int | None = -1) -> float:
        """Distance to the sea, km.

        Range: 0 or more; any number is stored.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: Table 22.
        """
    def set_FetchesToSea(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def FetchesInTown(self, WindSector: WindSectors | int | None = -1) -> float:
        """Distance in the town from its upwind edge, km.

        Range: 0 or more; any number is stored.
        Arguments: WindSector 0 to 11; -1 or left out: the object's own.
        Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
        BS 6399-2: Table 23.
        """
    def set_FetchesInTown(self, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    @property
    def ProbabilityFactor_Sp(self) -> float:
        """Probability factor Sp.

        Range: 0 or more.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: annex D.
        """
    @property
    def SeasonalFactor_Ss(self) -> float:
        """Seasonal factor Ss.

        Range: 0 or more.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: annex D.
        """
    def DirectionFactor_Sd(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Direction factor Sd.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: Table 3.
        """
    def AltitudeFactor_Sa(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Altitude factor Sa.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: 2.2.2.2.
        """
    def DisplacementHeight_Hd(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Displacement height Hd, m.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: 1.7.3.
        """
    def EffectiveHeight_He(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Effective height He, m.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: 1.7.3.
        """
    def TopographicIncrement_Sh(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Topographic increment Sh.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: Table 25.
        """
    def FetchFactor_Sc(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Fetch factor Sc.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: Table 22.
        """
    def TurbulenceFactor_St(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Turbulence factor St.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: Table 22.
        """
    def FetchAdjustmentFactor_Tc(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Fetch adjustment factor Tc.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: Table 23.
        """
    def TurbulenceAdjustmentFactor_Tt(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Turbulence adjustment factor Tt.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: Table 23.
        """
    def GustPeakFactor_gt(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Gust peak factor gt.

        Range: 3.44 under Hybrid, whatever the arguments.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        BS 6399-2: Table 24.
        """
    def TerrainAndBuildingFactor_Sb(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Terrain and building factor Sb.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        """
    def EffectiveWindSpeed_Ve(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Effective wind speed Ve, m/s.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        """
    def DynamicPressure_q(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Dynamic pressure q; a let counts while ManualResults is True, kN/m².

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component; with ManualResults 9 for an area or sector that isn't there.
        """
    def set_DynamicPressure_q(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def SizeEffectFactor_Ca(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Size effect factor Ca; a let counts while ManualResults is True.

        Range: 0 for a diagonal of 0 or less.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component; with ManualResults 9 for an area or sector that isn't there.
        BS 6399-2: Figure 4.
        """
    def set_SizeEffectFactor_Ca(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1, value: float = ...) -> None: ...
    def SiteWindSpeed_Vs(self, WindArea: WindAreas | int | None = -1, WindSector: WindSectors | int | None = -1) -> float:
        """Site wind speed Vs, m/s.

        Range: 0 or more.
        Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
        Errors: 91 without a component; 5 and others of the component.
        """
    def SelectSite(self) -> bool:
        """Site dialog that picks a site; True if the user accepted.

        Range: False after Cancel.
        Errors: 91 without a component; 5 and others of the component.
        """
    def EnterSite(self) -> bool:
        """Site dialog that enters a site; True if the user accepted.

        Range: False after Cancel.
        Errors: 91 without a component; 5 and others of the component.
        """
    def EditSite(self) -> bool:
        """Site dialog that edits the present site; True if the user accepted.

        Range: False after Cancel.
        Errors: 91 without a component; 5 and others of the component.
        """

class clsExternalCoefficients(Object):
    """Zones of roof, walls and parapets, their coefficients and external loads."""
    @property
    def BuildingArea(self) -> BuildingAreas:
        """Building area taken where an argument is -1.

        Range: 0 to 2, a member of BuildingAreas.
        Errors: 6 outside 16 bits.
        """
    @BuildingArea.setter
    def BuildingArea(self, value: BuildingAreas | int) -> None: ...
    @property
    def Face(self) -> Faces:
        """Face taken where an argument is -1.

        Range: 0 to 3, a member of Faces.
        Errors: 6 outside 16 bits.
        """
    @Face.setter
    def Face(self, value: Faces | int) -> None: ...
    @property
    def ZoneIndex(self) -> int:
        """Zone taken where an argument is -1.

        Range: -32768 to 32767.
        """
    @ZoneIndex.setter
    def ZoneIndex(self, value: int) -> None: ...
    def ZoneIndexFrom(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> int:
        """First zone of a face: 0.

        Range: 0.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """
    def ZoneIndexTo(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ResultsScreen: ResultsScreens | int | None = -1) -> int:
        """Last zone of a face; -1 if there are none.

        Range: -1 or more.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ResultsScreen 0 to 1; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """
    @property
    def ManualResults(self) -> bool:
        """Coefficients come from the hand-entered tables.

        Range: True or False.
        """
    @ManualResults.setter
    def ManualResults(self, value: bool) -> None: ...
    @property
    def Bay(self) -> Bays:
        """Bay of a multi-span roof.

        Range: 0 to 2, a member of Bays.
        Errors: 6 outside 16 bits.
        BS 6399-2: Table 12.
        """
    @Bay.setter
    def Bay(self, value: Bays | int) -> None: ...
    def GableFace(self, Face: Faces | int | None = -1) -> bool:
        """Whether the face is a gable wall.

        Range: True or False.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        """
    def Hybrid_WindFromFace(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> int:
        """The face whose normal wind gives the zone its coefficients.

        Range: 0 to 3, a value of Faces.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_AngleNormalToFace(self, Face: Faces | int | None = -1) -> float:
        """Wind angle normal to the face; -1 if the orientation is unknown, degrees.

        Range: 0 to 359, or -1.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        """
    def Hybrid_WorstCase_DynamicPressure_q(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """q of the worst wind for the zone, kN/m².

        Range: 0 or more.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_WorstCase_SizeEffectFactor_Ca(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """Ca of the worst wind for the zone.

        Range: 0 or more.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ZoneDescription(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """The zone's name.

        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ZoneDimensionsXY(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1, ResultsScreen: ResultsScreens | int | None = -1) -> ZoneDimensionsXY:
        """The zone's two lengths; 0 where it shows none, m.

        Range: 0 or more.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ZoneDimensionX(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1, ResultsScreen: ResultsScreens | int | None = -1) -> float:
        """The zone's first length, m.

        Range: 0 or more.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ZoneDimensionY(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1, ResultsScreen: ResultsScreens | int | None = -1) -> float:
        """The zone's second length, m.

        Range: 0 or more.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ZoneDimensions(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1, ResultsScreen: ResultsScreens | int | None = -1) -> str:
        """The zone's lengths as text.

        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ExternalCoefficientFactor_Cpe_Pressure(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """External pressure coefficient; a let counts while ManualResults is True.

        Range: 0 or more; leeward zones of a parapet keep the component's sign.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there, by hand zones 0 to 27; 91 without a component; 5 and others of the components.
        """
    def set_Hybrid_ExternalCoefficientFactor_Cpe_Pressure(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1, value: float = ...) -> None: ...
    def Hybrid_ExternalCoefficientFactor_Cpe_Suction(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """External suction coefficient, a magnitude; a let counts while ManualResults is True.

        Range: 0 or more; leeward zones of a parapet keep the component's sign.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there, by hand zones 0 to 27; 91 without a component; 5 and others of the components.
        """
    def set_Hybrid_ExternalCoefficientFactor_Cpe_Suction(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1, value: float = ...) -> None: ...
    def Hybrid_ExternalAppliedLoad_Pressure(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """External pressure Ca q Cpe, kN/m².

        Range: 0 or more; leeward zones of a parapet keep the component's sign.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ExternalAppliedLoad_Suction(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """External suction Ca q Cpe, a magnitude, kN/m².

        Range: 0 or more; leeward zones of a parapet keep the component's sign.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ExternalAppliedLoads(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """Both external loads as text.

        Range: as "+0.512, -0.300 kN/m²"; a side without a load is left out.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components.
        """

class clsInternalCoefficients(Object):
    """Internal pressure coefficients by face and internal loads."""
    @property
    def Face(self) -> Faces:
        """Face taken where an argument is -1.

        Range: 0 to 3, a member of Faces.
        Errors: 6 outside 16 bits.
        """
    @Face.setter
    def Face(self, value: Faces | int) -> None: ...
    @property
    def StructureType(self) -> StructureTypes:
        """Enclosed, with a dominant opening, or open sided.

        Range: 0 to 2, a member of StructureTypes.
        Errors: 6 outside 16 bits.
        BS 6399-2: 2.6.
        """
    @StructureType.setter
    def StructureType(self, value: StructureTypes | int) -> None: ...
    @property
    def DiagonalDimension_a(self) -> float:
        """Diagonal of a dominant opening, m.

        Range: 0 or more; any number is stored.
        BS 6399-2: 2.6.2.
        """
    @DiagonalDimension_a.setter
    def DiagonalDimension_a(self, value: float) -> None: ...
    @property
    def InternalVolume(self) -> float:
        """Internal volume of the storey, m³.

        Range: 0 or more; any number is stored.
        BS 6399-2: 2.6.1.
        """
    @InternalVolume.setter
    def InternalVolume(self, value: float) -> None: ...
    @property
    def WindPressureType(self) -> WindPressureTypes:
        """The wind area that the internal wind area follows.

        Range: 0 to 2, a member of WindPressureTypes.
        Errors: 6 outside 16 bits.
        """
    @WindPressureType.setter
    def WindPressureType(self, value: WindPressureTypes | int) -> None: ...
    @property
    def EnclosedBuilding_GeneralCase(self) -> bool:
        """Rule: Cpi +0.2 or -0.3.

        Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
        BS 6399-2: Table 16.
        """
    @EnclosedBuilding_GeneralCase.setter
    def EnclosedBuilding_GeneralCase(self, value: bool) -> None: ...
    @property
    def EnclosedBuilding_NoPositiveInternalPressure(self) -> bool:
        """Rule: Cpi 0 and -0.3.

        Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
        BS 6399-2: Table 16.
        """
    @EnclosedBuilding_NoPositiveInternalPressure.setter
    def EnclosedBuilding_NoPositiveInternalPressure(self, value: bool) -> None: ...
    @property
    def EnclosedBuilding_WindNormalToPermeableFace(self) -> bool:
        """Rule: Cpi +0.2.

        Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
        BS 6399-2: Table 16.
        """
    @EnclosedBuilding_WindNormalToPermeableFace.setter
    def EnclosedBuilding_WindNormalToPermeableFace(self, value: bool) -> None: ...
    @property
    def EnclosedBuilding_WindNormalToImpermeableFace(self) -> bool:
        """Rule: Cpi -0.3.

        Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
        BS 6399-2: Table 16.
        """
    @EnclosedBuilding_WindNormalToImpermeableFace.setter
    def EnclosedBuilding_WindNormalToImpermeableFace(self, value: bool) -> None: ...
    @property
    def EnclosedBuilding_FourWallsEquallyPermeable(self) -> bool:
        """Rule: Cpi -0.3.

        Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
        BS 6399-2: Table 16.
        """
    @EnclosedBuilding_FourWallsEquallyPermeable.setter
    def EnclosedBuilding_FourWallsEquallyPermeable(self, value: bool) -> None: ...
    @property
    def DominantOpening_ZoneIndex(self) -> int:
        """Zone taken for DominantOpening_ZoneDescription.

        Range: -32768 to 32767.
        """
    @DominantOpening_ZoneIndex.setter
    def DominantOpening_ZoneIndex(self, value: int) -> None: ...
    def DominantOpening_ZoneIndexFrom(self, Face: Faces | int | None = -1) -> int:
        """First wall zone of a face.

        Range: 0.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """
    def DominantOpening_ZoneIndexTo(self, Face: Faces | int | None = -1) -> int:
        """Last wall zone of a face.

        Range: -1 or more.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """
    def DominantOpening_ZoneDescription(self, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """Name of a wall zone.

        Arguments: Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the component.
        """
    def DominantOpening_SelectedZoneIndex(self, Face: Faces | int | None = -1) -> WallZones:
        """The wall zone in which the face's dominant opening lies.

        Range: 0 to 13, a member of WallZones.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 6 outside 16 bits.
        """
    def set_DominantOpening_SelectedZoneIndex(self, Face: Faces | int | None = -1, value: WallZones | int = ...) -> None: ...
    def DominantOpening_SelectedZoneCpe_Pressure(self, Face: Faces | int | None = -1) -> float:
        """External pressure coefficient of that zone.

        Range: 0 or more; 0 if the face has no such zone.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
        """
    def DominantOpening_SelectedZoneCpe_Suction(self, Face: Faces | int | None = -1) -> float:
        """External suction coefficient of that zone.

        Range: 0 or more; 0 if the face has no such zone.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
        """
    def DominantOpening_Ratio2(self, Face: Faces | int | None = -1) -> bool:
        """Rule: Cpi = 0.75 Cpe.

        Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
        BS 6399-2: Table 17.
        """
    def set_DominantOpening_Ratio2(self, Face: Faces | int | None = -1, value: bool = ...) -> None: ...
    def DominantOpening_Ratio3(self, Face: Faces | int | None = -1) -> bool:
        """Rule: Cpi = 0.9 Cpe.

        Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
        BS 6399-2: Table 17.
        """
    def set_DominantOpening_Ratio3(self, Face: Faces | int | None = -1, value: bool = ...) -> None: ...
    def InternalCoefficientFactor_Cpi_Pressure(self, Face: Faces | int | None = -1) -> float:
        """Internal pressure coefficient.

        Range: 0 or more; any number is stored.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there.
        """
    def set_InternalCoefficientFactor_Cpi_Pressure(self, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def InternalCoefficientFactor_Cpi_Suction(self, Face: Faces | int | None = -1) -> float:
        """Internal suction coefficient, a magnitude.

        Range: 0 or more; any number is stored.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there.
        """
    def set_InternalCoefficientFactor_Cpi_Suction(self, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def Hybrid_WorstCase_DynamicPressure_q(self, Face: Faces | int | None = -1) -> float:
        """q of the worst wind for the face, kN/m².

        Range: 0 or more.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
        """
    @property
    def Calculated_DiagonalDimension_a(self) -> float:
        """Diagonal for the size effect factor of internal pressure, m.

        Range: 0 or more; 0 for an open-sided building.
        Errors: 6 if it doesn't fit.
        BS 6399-2: 2.6.1, 2.6.2.
        """
    def Hybrid_WorstCase_SizeEffectFactor_Ca(self, Face: Faces | int | None = -1) -> float:
        """Ca of the worst wind for the face.

        Range: 0 or more.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_InternalAppliedLoad_Pressure(self, Face: Faces | int | None = -1) -> float:
        """Internal pressure Ca q Cpi, kN/m².

        Range: 0 or more.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components.
        """
    def Hybrid_InternalAppliedLoad_Suction(self, Face: Faces | int | None = -1) -> float:
        """Internal suction Ca q Cpi, a magnitude, kN/m².

        Range: 0 or more.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components.
        """
    def Hybrid_InternalAppliedLoads(self, Face: Faces | int | None = -1) -> str:
        """Both internal loads as text.

        Range: as "+0.129, -0.193 kN/m²"; a side without a load is left out.
        Arguments: Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a face that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components.
        """

class clsOverallAppliedLoads(Object):
    """Loads by zone, selected, stepped and bay loads, and cantilevers."""
    def GetCantileverZones(self) -> list[CantileverZones]:
        """Copy of the cantilever zone table.

        Range: no rows before CantileverValues.
        """
    def GetCantileverResults(self) -> list[CantileverResults]:
        """Copy of the cantilever result table.

        Range: no rows before CantileverValues.
        """
    @property
    def BuildingArea(self) -> BuildingAreas:
        """Building area taken where an argument is -1.

        Range: 0 to 2, a member of BuildingAreas.
        Errors: 6 outside 16 bits.
        """
    @BuildingArea.setter
    def BuildingArea(self, value: BuildingAreas | int) -> None: ...
    @property
    def Face(self) -> Faces:
        """Face taken where an argument is -1.

        Range: 0 to 3, a member of Faces.
        Errors: 6 outside 16 bits.
        """
    @Face.setter
    def Face(self, value: Faces | int) -> None: ...
    @property
    def ZoneIndex(self) -> int:
        """Zone taken where an argument is -1.

        Range: -32768 to 32767.
        """
    @ZoneIndex.setter
    def ZoneIndex(self, value: int) -> None: ...
    def ZoneIndexFrom(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> int:
        """First zone of a face.

        Range: 0.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """
    def ZoneIndexTo(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> int:
        """Last zone of a face; -1 if there are none.

        Range: -1 or more.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """
    def Hybrid_ZoneDescription(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """The zone's name.

        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ZoneDimensions(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """The zone's lengths as text.

        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_ExternalAppliedLoads(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """The zone's external loads as text.

        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_InternalAppliedLoads(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """The zone's internal loads as text.

        Range: empty for a parapet.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_OverallAppliedLoad_Pressure(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """Greatest positive net load, kN/m².

        Range: 0 or more; 0 where no combination is positive.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_OverallAppliedLoad_Suction(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> float:
        """Most negative net load, kN/m².

        Range: 0 or less; 0 where no combination is negative.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def Hybrid_OverallAppliedLoads(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, ZoneIndex: int | None = -1) -> str:
        """Both net loads as text.

        Range: as "+1.250, -0.500 kN/m²"; a side without a load is left out.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    @property
    def SelectedFace(self) -> Faces:
        """The face that the host has chosen.

        Range: 0 to 3, a member of Faces.
        """
    @SelectedFace.setter
    def SelectedFace(self, value: Faces | int) -> None: ...
    def SelectedLoadType(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> SelectedLoadTypes:
        """The load chosen for an area and face.

        Range: 0 to 26, a member of SelectedLoadTypes.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there; 6 outside 16 bits.
        """
    def set_SelectedLoadType(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: SelectedLoadTypes | int = ...) -> None: ...
    def SelectedLoadValues(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> str:
        """The chosen load as text.

        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def SelectedLoadValues_External(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> str:
        """The stepped load over the end bay as text.

        Range: empty unless a stepped load is chosen.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def SelectedLoadValues_Internal(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> str:
        """The stepped load over the internal bay as text.

        Range: empty unless a stepped load is chosen.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def SteppedWind_Load_1(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Load of the first step, kN/m².

        Range: any number.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def set_SteppedWind_Load_1(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def SteppedWind_Load_2(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Load of the second step, kN/m².

        Range: any number.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def set_SteppedWind_Load_2(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def SteppedWind_Load_3(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Load behind the second step, kN/m².

        Range: any number.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def set_SteppedWind_Load_3(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def SteppedWind_Distance_1(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Length of the first step, m.

        Range: 0 or more; any number is stored.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def set_SteppedWind_Distance_1(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def SteppedWind_Distance_2(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Length of the second step, m.

        Range: 0 or more; any number is stored.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def set_SteppedWind_Distance_2(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def SteppedWind_Distance_3(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Length of the third step, m.

        Range: 0 or more; any number is stored.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def set_SteppedWind_Distance_3(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def SteppedWind_Span(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Span of the member, m.

        Range: 0 or more; any number is stored.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def set_SteppedWind_Span(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, value: float = ...) -> None: ...
    def SteppedWind_Load(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Average over the span, kN/m².

        Range: 0 for a span of 0.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there; 6 if it doesn't fit.
        """
    def SteppedWind_Load_External(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Average over the end bay, kN/m².

        Range: 0 for a span of 0.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there; 6 if it doesn't fit.
        """
    def SteppedWind_Load_Internal(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> float:
        """Average over the internal bay, kN/m².

        Range: 0 for a span of 0.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there; 6 if it doesn't fit.
        """
    @property
    def CantileverZoneIndexFrom(self) -> int:
        """First row of the cantilever zone table.

        Range: -32768 to 32767, plain storage.
        """
    @CantileverZoneIndexFrom.setter
    def CantileverZoneIndexFrom(self, value: int) -> None: ...
    @property
    def CantileverZoneIndexTo(self) -> int:
        """Last row of the cantilever zone table.

        Range: -32768 to 32767, plain storage.
        """
    @CantileverZoneIndexTo.setter
    def CantileverZoneIndexTo(self, value: int) -> None: ...
    def CantileverZoneDescription(self, CantileverZoneIndex: int) -> str:
        """Label of a cantilever zone.

        Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
        Errors: 9 for a row that isn't there.
        """
    def CantileverZoneDimensions(self, CantileverZoneIndex: int) -> str:
        """Lengths of a cantilever zone as text.

        Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
        Errors: 9 for a row that isn't there.
        """
    def Cantilever_ExternalAppliedLoads(self, CantileverZoneIndex: int) -> str:
        """Roof load above a cantilever zone as text.

        Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
        Errors: 9 for a row that isn't there.
        """
    def Cantilever_InternalAppliedLoads(self, CantileverZoneIndex: int) -> str:
        """Wall pressures under a cantilever zone as text.

        Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
        Errors: 9 for a row that isn't there.
        """
    def Cantilever_OverallAppliedLoads(self, CantileverZoneIndex: int) -> str:
        """Net loads of a cantilever zone as text.

        Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
        Errors: 9 for a row that isn't there.
        """
    def ExternalBayLoad(self, Span_L1: float, Span_L2: float, Span_L3: float, WindLoad_W1: float, WindLoad_W2: float, WindLoad_W3: float, Step_Z1: float, Step_Z2: float) -> float:
        """Average of a stepped load over the first bay, kN/m².

        Range: any number.
        Arguments: Span_L1 any number, Span_L2 any number, Span_L3 any number, WindLoad_W1 any number, WindLoad_W2 any number, WindLoad_W3 any number, Step_Z1 any number, Step_Z2 any number.
        Errors: 11 for a bay length of 0 where it divides; 6 if the result doesn't fit.
        """
    def InternalBayLoad(self, Span_L1: float, Span_L2: float, Span_L3: float, WindLoad_W1: float, WindLoad_W2: float, WindLoad_W3: float, Step_Z1: float, Step_Z2: float) -> float:
        """Average of a stepped load over the second bay, kN/m².

        Range: any number.
        Arguments: Span_L1 any number, Span_L2 any number, Span_L3 any number, WindLoad_W1 any number, WindLoad_W2 any number, WindLoad_W3 any number, Step_Z1 any number, Step_Z2 any number.
        Errors: 11 for a bay length of 0 where it divides; 6 if the result doesn't fit.
        """
    def CantileverValues(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1, Results: bool | None = False) -> bool:
        """Finds the cantilever zones of a wind face and their loads; True if there are any.

        Range: True or False.
        Arguments: BuildingArea 0 to 2, Face 0 to 3, Results True or False; -1 or left out: the object's own.
        Errors: 5 for a zone without an external load; 9 without a result table; 13 for texts of the wall pressures that don't convert; those of the components.
        """
    def SelectedCantileverLoadValues(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> str:
        """The chosen load in the form of a cantilever text.

        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def ResetCantileverResults(self) -> None:
        """Makes the result table one blank row."""
    def TrimCantileverResults(self) -> None:
        """Drops the blank last row of the result table.

        Errors: 9 if there is no table.
        """
    def CantileverZoneWidthWarning(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> bool:
        """Unequal cantilevers lie across the wind on this roof face.

        Range: True or False.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        """
    def ContinuousSteppedWind(self, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> bool:
        """The end-bay and internal-bay loads are the ones that apply.

        Range: True or False.
        Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for an area or face that isn't there.
        """
    def ZoneIndexFromSelectedLoadType(self, SelectedLoadType: SelectedLoadTypes | int, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> int:
        """Zone of a load type on a face; ZoneIndexTo + 1 if there is none.

        Range: 0 to ZoneIndexTo + 1.
        Arguments: SelectedLoadType 0 to 26, BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """
    def SelectedLoadTypeFromZoneIndex(self, ZoneIndex: int, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> int:
        """Load type of a zone of a face.

        Range: 0 to 26; 0 if the zone has none.
        Arguments: ZoneIndex first to last zone of the face, BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components.
        """
    def SelectedLoadTypeFromZoneDescription(self, ZoneDescription: str) -> int:
        """Load type of a zone's name.

        Range: 0 to 26; 0 if the name isn't known.
        Arguments: ZoneDescription any text.
        """
    def ZoneDescriptionFromSelectedLoadType(self, SelectedLoadType: SelectedLoadTypes | int) -> str:
        """Zone's name of a load type.

        Range: empty for a value outside the enumeration.
        Arguments: SelectedLoadType 0 to 26.
        """
    def ZoneIndexFromZoneDescription(self, ZoneDescription: str, BuildingArea: BuildingAreas | int | None = -1, Face: Faces | int | None = -1) -> int:
        """Zone of a name on a face; ZoneIndexTo + 1 if there is none.

        Range: 0 to ZoneIndexTo + 1.
        Arguments: ZoneDescription any text, BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
        Errors: 91 without a component, and those of the component.
        """

class clsCantileverWindLoads(Object):
    """The wall pressures under the cantilevers, filled by the host."""
    def __init__(self) -> None: ...
    @property
    def ExternalPressures(self) -> ExternalPressure:
        """The record of pressures; get and let copy it whole.

        Range: texts, "0" at first; CantileverValues reads the numbers in them.
        """
    @ExternalPressures.setter
    def ExternalPressures(self, value: ExternalPressure) -> None: ...

class clsWindCaseList(Object):
    """The recent wind load cases with their descriptions and dates."""
    @property
    def Index(self) -> int:
        """The selected entry, counted from 1.

        Range: 1 to Count; any 32-bit number is stored.
        """
    @Index.setter
    def Index(self, value: int) -> None: ...
    @property
    def Count(self) -> int:
        """Length of the list.

        Range: 0 or more.
        """
    @property
    def MaxCount(self) -> int:
        """Maximum length of the list, kept in the settings file.

        Range: 0 to 32767.
        Errors: 6 outside 16 bits; 70, 75, 76 if the settings file can't be written.
        """
    @MaxCount.setter
    def MaxCount(self, value: int) -> None: ...
    def Location(self, Index: int | None = -1) -> str:
        """Full path of an entry, upper case; empty if there is none.

        Range: empty if there is no such entry.
        Arguments: Index 1 to Count; -1 or left out: the object's own.
        Errors: 6 for an index outside 16 bits.
        """
    def LocationCorrect(self, Index: int | None = -1) -> bool:
        """True if the entry's file is there.

        Range: True or False.
        Arguments: Index 1 to Count; -1 or left out: the object's own.
        Errors: 6 for an index outside 16 bits.
        """
    def Description(self, Index: int | None = -1) -> str:
        """Description of the entry's case.

        Range: empty if the file isn't there.
        Arguments: Index 1 to Count; -1 or left out: the object's own.
        Errors: 6 for an index outside 16 bits; 53 to 76 for a file that can't be read.
        """
    def Created(self, Index: int | None = -1) -> datetime | None:
        """Date of the entry's first save; 0 if it isn't known.

        Range: 0 if the file isn't there.
        Arguments: Index 1 to Count; -1 or left out: the object's own.
        Errors: 6 for an index outside 16 bits; 53 to 76 for a file that can't be read.
        """
    def Modified(self, Index: int | None = -1) -> datetime | None:
        """Date of the entry's last save; 0 if it isn't known.

        Range: 0 if the file isn't there.
        Arguments: Index 1 to Count; -1 or left out: the object's own.
        Errors: 6 for an index outside 16 bits; 53 to 76 for a file that can't be read.
        """

__all__ = [
    "Bays",
    "BuildingAreas",
    "CantileverResults",
    "CantileverZone",
    "CantileverZones",
    "Connection",
    "Durations",
    "Error",
    "Event",
    "ExternalPressure",
    "Faces",
    "FileDialog",
    "FrameTypes",
    "GableFaces",
    "HostServices",
    "LifeTime",
    "Methods",
    "Months",
    "Object",
    "ParentTypes",
    "PublishedEnum",
    "ResultsScreens",
    "RoofTypes",
    "SaBasedOnTypes",
    "SelectedLoadTypes",
    "StructureTypes",
    "WallZones",
    "WindAreas",
    "WindPressureTypes",
    "WindSectors",
    "ZoneDimensionsXY",
    "case_file_changed",
    "case_file_exists",
    "clsBuildingDimensions",
    "clsCantileverWindLoads",
    "clsCurrentCase",
    "clsDynamicPressure",
    "clsExternalCoefficients",
    "clsInternalCoefficients",
    "clsOverallAppliedLoads",
    "clsWindCaseList",
    "copy_put_aside",
    "double_text",
    "host",
    "native_path",
    "register_built_in_engines",
    "resolve_file_name",
    "single_text",
]
