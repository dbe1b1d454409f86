"""ORVE BS6399-2 Library 3.0: wind loads on buildings to BS 6399-2.

    import orve3_bs6399_2 as orve
    orve.register_built_in_engines()
    case = orve.clsCurrentCase()
    case.Initialize_BreApps()
    case.BuildingDimensions.Roof_Pitch = 6

The names are the library's own. A member with arguments is called, with positions or keywords; `set_NAME` lets
it. A value of an enumeration may be a plain number. All calls belong on one thread.
"""
import atexit
import dataclasses
import keyword
import os
import pathlib
import weakref
from enum import IntEnum

from . import _orve
from ._orve import FileDialog, Object, double_text, native_path, register_built_in_engines, single_text

__version__ = _orve.app_version().lstrip("v")


class Error(RuntimeError):
    """An error of the library, with its number and text."""

    def __init__(self, number, text):
        super().__init__(text)
        self.number = number

    def __reduce__(self):
        return type(self), (self.number, str(self))


_orve.register_error(Error)


class PublishedEnum(IntEnum):
    """An enumeration of the library."""

    @property
    def text(self):
        """The published text of the member."""
        return self._texts[self]


def _define_enumeration(name, help_text, members):
    identifiers = [n + "_" if keyword.iskeyword(n) else n for n, _, _ in members]
    enumeration = PublishedEnum(name, list(zip(identifiers, (value for _, value, _ in members))), module=__name__)
    enumeration.__doc__ = help_text + "."
    enumeration._texts = {value: text for _, value, text in members}
    _orve.register_enumeration(name, {int(member): member for member in enumeration})
    globals()[name] = enumeration


def _define_record(name, help_text, fields):
    members = []
    for field, record, is_text in fields:
        if record:
            members.append((field, globals()[record], dataclasses.field(default_factory=globals()[record])))
        else:
            members.append((field, str if is_text else float, "" if is_text else 0.0))
    record_type = dataclasses.make_dataclass(name, members)
    record_type.__module__ = __name__
    record_type.__doc__ = help_text + "."
    _orve.register_record(name, record_type)
    globals()[name] = record_type


class Connection:
    """Keeps a handler connected until it is disconnected or goes."""

    __slots__ = ("_handler", "_slot", "__weakref__")

    def __init__(self, source, event, handler):
        if not callable(handler):
            raise Error(13, "Type mismatch: a handler is to be a callable")
        self._handler = handler
        # The library holds the connection weakly, so that a handler may hold it without a cycle.
        this = weakref.ref(self)

        def call(*arguments):
            connection = this()
            if connection is not None and connection._handler is not None:
                connection._handler(*arguments)

        self._slot = source._connect(event, call)

    def disconnect(self):
        self._slot.disconnect()
        self._handler = None

    def __enter__(self):
        return self

    def __exit__(self, *exception):
        self.disconnect()


class Event:
    """An event; handlers run inside the call that raises it."""

    __slots__ = ("_source", "_name")

    def __init__(self, source, name):
        self._source = source
        self._name = name

    def connect(self, handler):
        """Connects a callable and returns the connection; keep it, for the handler goes with it."""
        return Connection(self._source, self._name, handler)


def _event_property(name, help_text):
    return property(lambda self: Event(self, name), doc=help_text + ".")


def _constructor(name):
    def __init__(self, reference=None):
        Object.__init__(self, name if reference is None else reference)

    return __init__


def _open_existing(invoke):
    def OpenExisting(self, FileNameToOpen):
        """Opens a file; True if a case was opened.

        With unsaved changes and without a MsgBox that could be asked, an error says so.
        """
        opened = invoke(self, FileNameToOpen)
        if not opened and host.MsgBox is None and self.IsDirty and _orve.file_exists(FileNameToOpen):
            raise Error(
                32755,
                f"{FileNameToOpen} wasn't opened, since the open case has unsaved changes: call Save() or Clear() "
                "first, or set host.MsgBox to a callable that answers 6 (Yes)",
            )
        return opened

    return OpenExisting


def _define_class(name, help_text, members, events):
    namespace = dict(members, __slots__=(), __init__=_constructor(name), __doc__=help_text + ".", __module__=__name__)
    namespace.update((event, _event_property(event, event_help)) for event, event_help in events)
    if "OpenExisting" in namespace:
        namespace["OpenExisting"] = _open_existing(namespace["OpenExisting"])
    globals()[name] = type(name, (Object,), namespace)
    _orve.register_class(name, globals()[name])


class HostServices:
    """Callables of the host; None brings the headless default back."""

    _names = (
        "MsgBox OpenFileDialog SaveFileDialog MousePointer SetMousePointer DoEvents LibraryFolder SystemDirectory "
        "Now SiteBrowse SiteSelect SiteEdit"
    ).split()

    def __init__(self):
        for name in self._names:
            object.__setattr__(self, name, None)

    def __setattr__(self, name, value):
        _orve.set_service(name, _DEFAULTS.get(name) if value is None else value)
        object.__setattr__(self, name, value)


def _settings_folder():
    """Folder of the settings file: the user's own, since the running program is Python itself."""
    base = os.environ.get("XDG_CONFIG_HOME") or os.path.join(os.path.expanduser("~"), ".config")
    folder = os.path.join(base, "orve")
    os.makedirs(folder, exist_ok=True)
    return folder


def _system_directory():
    """The installed share/orve above the package."""
    for parent in pathlib.Path(__file__).resolve().parents:
        if (parent / "share" / "orve").is_dir():
            return str(parent / "share" / "orve")
    return ""


_DEFAULTS = {"LibraryFolder": _settings_folder, "SystemDirectory": _system_directory}

for _row in _orve.enumerations():
    _define_enumeration(*_row)
for _row in _orve.records():
    _define_record(*_row)
for _row in _orve.classes(Object):
    _define_class(*_row)

host = HostServices()
for _name in _DEFAULTS:
    setattr(host, _name, None)
atexit.register(_orve.clear_services)
