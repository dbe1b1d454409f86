"""The Python module where it isn't a plain run of the scripts: types, errors, events, services, life of objects."""
import ast
import copy
import gc
import inspect
import os
import pathlib
import pickle
import resource
import tempfile
import unittest
import weakref

import orve3_bs6399_2 as orve


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

    def test_the_stub_tells_of_every_member(self):
        stub = ast.parse(pathlib.Path(orve.__file__).with_suffix(".pyi").read_text(encoding="utf-8"))
        classes = {node.name: node for node in stub.body if isinstance(node, ast.ClassDef)}
        described = [name for name in dir(orve) if name.startswith("cls")]
        self.assertEqual(len(described), 8)
        for name in described:
            told = {node.name for node in classes[name].body if isinstance(node, ast.FunctionDef)}
            self.assertEqual(told - {"__init__"}, {member for member in vars(getattr(orve, name)) if member[0] != "_"})

    def test_signatures_and_docstrings_come_from_the_description(self):
        wind = type(self.case.DynamicPressure)
        self.assertEqual(str(inspect.signature(wind.DynamicPressure_q)), "(WindArea=-1, WindSector=-1)")
        self.assertEqual(str(inspect.signature(wind.set_DynamicPressure_q)), "(WindArea, WindSector, value)")
        self.assertEqual(wind.BasicWindSpeed.__doc__, "Basic wind speed Vb (Figure 6), m/s.")

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
        self.raises(91, unborn.DirtyUpdated.connect, print)

    def test_a_refused_opening_says_what_to_do(self):
        orve.host.SaveFileDialog = lambda dialog: setattr(dialog, "FileName", self.path("shed.wlc")) or True
        self.case.Save()
        self.assertEqual(self.case.Location, self.path("shed.wlc"))
        self.case.Description = "changed"
        text = self.raises(32755, self.case.OpenExisting, self.path("shed.wlc"))
        self.assertIn("Clear()", text)
        self.assertFalse(self.case.OpenExisting(self.path("none.wlc")))
        orve.host.MsgBox = lambda prompt, buttons, title: 7
        self.assertFalse(self.case.OpenExisting(self.path("shed.wlc")))
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
