"""The Python module where it isn't a plain run of the scripts: types, errors, events, services, life of objects."""
import copy
import datetime
import decimal
import gc
import inspect
import os
import pathlib
import pickle
import resource
import subprocess
import sys
import tempfile
import unittest
import weakref

import orve3_bs6399_2 as orve

try:
    import numpy
except ImportError:
    numpy = None

class ModuleTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory(prefix="orve-")
        orve.host.LibraryFolder = lambda: self.folder.name
        orve.register_built_in_engines()
        self.case = orve.clsCurrentCase()
        self.case.Initialize_BreApps()

    def tearDown(self):
        for name in orve.HostServices._names:
            setattr(orve.host, name, None)
        self.folder.cleanup()

    def raises(self, number, call, *arguments, **named):
        with self.assertRaises(orve.Error) as caught:
            call(*arguments, **named)
        self.assertEqual(caught.exception.number, number)
        return str(caught.exception)

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def test_enumerations_are_int_enums_with_their_published_texts(self):
        building = self.case.BuildingDimensions
        building.RoofType = orve.RoofTypes.Hipped_roof
        self.assertIs(building.RoofType, orve.RoofTypes.Hipped_roof)
        self.assertEqual(building.RoofType.text, "Hipped roof")
        self.assertEqual(orve.WindSectors.Degrees_30.text, " 30 degrees")
        self.assertEqual(orve.ParentTypes.None_, 0)
        building.RoofType = 77
        self.assertEqual(building.RoofType, 77)
        self.assertIs(orve.RoofTypes.from_text("hipped ROOF"), orve.RoofTypes.Hipped_roof)
        self.assertIs(orve.WindSectors(" 30 degrees"), orve.WindSectors.Degrees_30)
        self.assertIn("Hip", self.raises(5, orve.RoofTypes.from_text, "Hip"))
        self.assertEqual(f"{orve.Faces.Face_1} {orve.Faces.Face_2:d}", "Faces.Face_1 1")
        self.assertIn("Faces", self.raises(13, setattr, building, "RoofType", orve.Faces.Face_1))
        self.raises(13, self.case.DynamicPressure.FetchesToSea, orve.Faces.Face_1)

    def test_numbers_of_every_kind_are_taken_but_nan(self):
        building = self.case.BuildingDimensions
        kinds = [decimal.Decimal("2.5")]
        if numpy is not None:
            kinds += [numpy.float32(2.5), numpy.float64(2.5), numpy.array(2.5)]
            building.RoofType = numpy.int64(6)
            building.ConsiderRoof = numpy.bool_(True)
            self.assertIs(building.RoofType, orve.RoofTypes.Hipped_roof)
            self.assertIn("Roof_Pitch", self.raises(13, setattr, building, "Roof_Pitch", numpy.array([2.5])))
        for number in kinds:
            building.Roof_Pitch = 0
            building.Roof_Pitch = number
            self.assertEqual(building.Roof_Pitch, 2.5)
        self.assertIn("clsBuildingDimensions.Roof_Pitch", self.raises(5, setattr, building, "Roof_Pitch", float("nan")))
        self.raises(5, self.case.DynamicPressure.set_FetchesToSea, 3, float("nan"))
        self.assertEqual(building.Roof_Pitch, 2.5)

    def test_dates_are_naive_datetimes_and_paths_may_be_paths(self):
        moment = datetime.datetime(2026, 11, 24, 10, 21)
        orve.host.Now = lambda: moment
        orve.host.SaveFileDialog = lambda dialog: setattr(dialog, "FileName", pathlib.Path(self.path("a.wlc"))) or True
        self.assertIsNone(self.case.Created)
        self.case.SaveAs()
        self.assertEqual((self.case.Created, self.case.WindCaseList.Modified(1)), (moment, moment))
        orve.host.Now = lambda: 46350.5
        self.case.Save()
        self.assertEqual(self.case.Modified, datetime.datetime(2026, 11, 24, 12))
        orve.host.Now = lambda: datetime.datetime.now(datetime.timezone.utc)
        self.raises(13, self.case.Save)
        self.case.Description = moment
        self.assertEqual(self.case.Description, "2026-11-24 10:21:00")
        self.case.Clear()
        self.assertTrue(self.case.OpenExisting(pathlib.Path(self.path("a.wlc"))))
        self.assertTrue(orve.case_file_exists(pathlib.Path(self.path("A.WLC"))))
        self.assertEqual(orve.resolve_file_name(self.path("A.WLC")), os.path.realpath(self.path("a.wlc")))
        self.assertFalse(orve.case_file_changed())
        self.case.PathToWindLoadCases = pathlib.Path(self.folder.name)
        self.raises(13, setattr, self.case, "Description", pathlib.Path("x"))

    def test_an_object_shows_what_it_is(self):
        self.case.Description = "Shed"
        self.assertRegex(repr(self.case), r"^<clsCurrentCase at 0x[0-9a-f]+, Description='Shed', Location='', IsDirty=True>$")
        self.assertIn("RoofType=", repr(self.case.BuildingDimensions))
        self.assertIn("DirtyUpdated", repr(self.case.DirtyUpdated))
        self.assertIn("ended", repr(self._ended()))
        self.assertEqual(self.case.DynamicPressure.FetchesToSea.__qualname__, "clsDynamicPressure.FetchesToSea")

    def _ended(self):
        connection = self.case.DirtyUpdated.connect(print)
        connection.disconnect()
        return connection

    def test_the_module_starts_without_a_home_and_as_a_program(self):
        code = "import orve3_bs6399_2 as o; o.register_built_in_engines(); o.clsCurrentCase()"
        environment = dict(os.environ, HOME="/dev/null", PYTHONPATH=os.pathsep.join(sys.path))
        environment.pop("XDG_CONFIG_HOME", None)
        for arguments in (["-c", code], ["-m", "orve3_bs6399_2"]):
            done = subprocess.run([sys.executable, *arguments], env=environment, capture_output=True, text=True)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertIn(orve.__version__, done.stdout)

    def test_a_star_import_brings_the_public_names_alone(self):
        names = {}
        exec("from orve3_bs6399_2 import *", names)
        self.assertEqual(set(names) - {"__builtins__"}, {name for name in dir(orve) if name[0] != "_"})

    def test_signatures_and_docstrings_come_from_the_description(self):
        wind = type(self.case.DynamicPressure)
        self.assertEqual(str(inspect.signature(wind.DynamicPressure_q)), "(self, WindArea=-1, WindSector=-1)")
        self.assertEqual(
            str(inspect.signature(wind.set_DynamicPressure_q)), "(self, WindArea=-1, WindSector=-1, value=Ellipsis)"
        )
        self.assertEqual(
            wind.BasicWindSpeed.__doc__,
            "Basic wind speed Vb, m/s.\n\nRange: above 0; any number is stored.\nBS 6399-2: Figure 6.",
        )
        for name in orve.__all__:
            for member, value in vars(getattr(orve, name)).items() if name.startswith("cls") else ():
                self.assertTrue(member[0] == "_" or value.__doc__, member)

    def test_records_are_plain_values(self):
        pressures = orve.clsCantileverWindLoads()
        record = pressures.ExternalPressures
        record.Wall2_Windward.Zone_ExternalPressures = "+0.5 kN/m²"
        self.assertEqual(pressures.ExternalPressures.Wall2_Windward.Zone_ExternalPressures, "0")
        pressures.ExternalPressures = record
        self.assertEqual(pressures.ExternalPressures, record)
        self.assertEqual(orve.ExternalPressure().Wall4_Leeward, orve.CantileverZone("", ""))
        self.raises(13, setattr, pressures, "ExternalPressures", orve.CantileverZone())

    def test_indexed_members_take_positions_and_keywords(self):
        wind = self.case.DynamicPressure
        wind.ManualResults = True
        wind.set_DynamicPressure_q(1, 3, 0.5)
        wind.set_DynamicPressure_q(WindSector=3, value=0.25)
        self.assertEqual(wind.DynamicPressure_q(WindSector=3, WindArea=1), 0.5)
        self.assertEqual(wind.DynamicPressure_q(None, 3), 0.25)
        self.assertEqual(wind.invoke("dynamicpressure_q", 1, windsector=3), 0.5)
        wind.assign("DynamicPressure_q", 1, 3, 0.75)
        self.assertEqual(wind.invoke("DynamicPressure_q", 1, 3), 0.75)

    def test_wrong_calls_are_clear_errors(self):
        wind = self.case.DynamicPressure
        self.raises(448, wind.DynamicPressure_q, Face=1)
        self.raises(450, wind.DynamicPressure_q, 1, 2, 3)
        self.assertIn("WindArea", self.raises(13, wind.DynamicPressure_q, "x"))
        self.raises(13, wind.DynamicPressure_q, object())
        self.raises(6, setattr, self.case, "Parent_RoofPitch", 2**80)
        self.raises(13, setattr, self.case, "DynamicPressure", self.case.BuildingDimensions)
        self.raises(429, orve.clsDynamicPressure)
        self.raises(449, wind.set_FetchesToSea)
        self.raises(438, wind.invoke, "Nothing")
        with self.assertRaises(AttributeError):
            wind.BasicWindspeed = 22
        with self.assertRaises(AttributeError):
            self.case.Created = 1
        with self.assertRaises(UnicodeEncodeError):
            self.case.Description = "\ud800"
        error = pickle.loads(pickle.dumps(orve.Error(9, "text")))
        self.assertEqual((error.number, str(error)), (9, "text"))

    def test_events_end_with_their_connection_and_pass_exceptions(self):
        told = []
        with self.case.DirtyUpdated.connect(told.append):
            self.case.Description = "Shed"
        self.case.Description = "Hall"
        self.assertEqual(told, [True])
        with self.case.DirtyUpdated as raised:
            self.case.Description = "Barn"
        self.case.Description = "Byre"
        self.assertEqual(raised, [(True,)])

        def fail(dirty):
            raise KeyError("mine")

        connection = self.case.DirtyUpdated.connect(fail)
        with self.assertRaises(KeyError):
            self.case.Description = "Mill"
        connection.disconnect()
        self.raises(13, self.case.DirtyUpdated.connect, 5)

    def test_a_handler_that_holds_its_connection_is_collected(self):
        class Window:
            def __init__(self, case):
                self.connection = case.DirtyUpdated.connect(self.show)

            def show(self, dirty):
                self.dirty = dirty

        window = weakref.ref(Window(self.case))
        gc.collect()
        self.assertIsNone(window())
        self.case.Description = "after"

    def test_objects_outlive_the_case_that_replaced_them(self):
        building = self.case.BuildingDimensions
        building.Roof_Pitch = 5
        self.assertEqual(building, self.case.BuildingDimensions)
        self.case.Clear()
        self.assertNotEqual(building, self.case.BuildingDimensions)
        self.assertEqual(building.Roof_Pitch, 5)
        self.assertEqual(len({building, building, self.case}), 2)
        self.assertEqual(copy.deepcopy(building), building)
        self.raises(13, pickle.dumps, building)
        unborn = orve.clsCurrentCase.__new__(orve.clsCurrentCase)
        self.raises(91, getattr, unborn, "Description")
        self.raises(91, setattr, self.case, "BuildingDimensions", unborn)
        self.assertIn("without an object", repr(unborn))
        self.case.BuildingDimensions = None
        self.assertIsNone(self.case.BuildingDimensions)
        self.raises(91, unborn.DirtyUpdated.connect, print)

    def test_unsaved_changes_refuse_an_opening(self):
        orve.host.SaveFileDialog = lambda dialog: setattr(dialog, "FileName", self.path("shed.wlc")) or True
        self.case.Save()
        self.assertEqual(self.case.Location, self.path("shed.wlc"))
        self.case.Description = "changed"
        self.assertFalse(self.case.OpenExisting(self.path("shed.wlc")))
        self.assertEqual(self.case.Description, "changed")
        self.assertFalse(self.case.OpenExisting(self.path("none.wlc")))
        orve.host.MsgBox = lambda prompt, buttons, title: 6
        self.assertTrue(self.case.OpenExisting(pathlib.Path(self.path("shed.wlc")).as_posix()))

    def test_services_are_checked(self):
        self.raises(13, setattr, orve.host, "MsgBox", 6)
        self.raises(438, setattr, orve.host, "MsgBocks", None)
        kept = []
        orve.host.SaveFileDialog = kept.append
        self.raises(13, self.case.SaveAs)
        self.assertEqual(kept[0].DefaultExt.upper(), "WLC")
        orve.host.SaveFileDialog = lambda dialog: 1 / 0
        with self.assertRaises(ZeroDivisionError):
            self.case.SaveAs()

    def test_nothing_grows_over_many_calls(self):
        def work():
            for _ in range(300):
                self.case.DynamicPressure.GridReference = "x" * 2000
                self.case.CantileverWindloads.ExternalPressures = self.case.CantileverWindloads.ExternalPressures
                self.case.DirtyUpdated.connect(print).disconnect()
                self.raises(13, setattr, self.case, "IsDirty", "x")

        def memory():
            gc.collect()
            return int(pathlib.Path("/proc/self/statm").read_text().split()[1]) * resource.getpagesize()

        for _ in range(3):
            work()
        before = memory()
        for _ in range(10):
            work()
        self.assertLess(memory() - before, 1 << 20)


if __name__ == "__main__":
    unittest.main()
