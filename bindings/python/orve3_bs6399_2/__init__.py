"""ORVE BS6399-2 Library 3.0: wind loads on buildings to BS 6399-2.

    import orve3_bs6399_2 as orve
    orve.register_built_in_engines()
    case = orve.clsCurrentCase()
    case.Initialize_BreApps()
    case.BuildingDimensions.Roof_Pitch = 6

The names are the library's own. A member with arguments is called, with positions or keywords; `set_NAME` lets
it. A value of an enumeration may be a plain number. All calls belong on one thread.
"""
import atexit as _atexit
import dataclasses as _dataclasses
import inspect as _inspect
import keyword as _keyword
import weakref as _weakref
from enum import Enum as _Enum
from enum import IntEnum as _IntEnum

from . import _folders, _orve
from ._orve import (
    FileDialog,
    Object,
    case_file_changed,
    case_file_exists,
    copy_put_aside,
    double_text,
    native_path,
    register_built_in_engines,
    resolve_file_name,
    single_text,
)

__version__ = _orve.app_version().lstrip("v")

__all__ = [
    "Connection",
    "Error",
    "Event",
    "FileDialog",
    "HostServices",
    "Object",
    "PublishedEnum",
    "case_file_changed",
    "case_file_exists",
    "copy_put_aside",
    "double_text",
    "host",
    "native_path",
    "register_built_in_engines",
    "resolve_file_name",
    "single_text",
]


class Error(RuntimeError):
    """An error of the library, with its number and text."""

    def __init__(self, number, text):
        super().__init__(text)
        self.number = number

    def __reduce__(self):
        return type(self), (self.number, str(self))


_orve.register_error(Error)


class PublishedEnum(_IntEnum):
    """An enumeration of the library. A member prints by its name and is found by its published text."""

    @property
    def text(self):
        """The published text of the member."""
        return self._texts[self]

    @classmethod
    def from_text(cls, text):
        """The member with a published text; letter case and outer blanks don't count. Errors: 5 if there is none."""
        wanted = text.strip().lower()
        for value, published in cls._texts.items():
            if published.strip().lower() == wanted:
                return cls(value)
        raise Error(5, f"Invalid argument: {cls.__name__} has no member with the text {text!r}")

    @classmethod
    def _missing_(cls, value):
        return cls.from_text(value) if isinstance(value, str) else None

    __str__ = _Enum.__str__

    def __format__(self, form):
        return int.__format__(self, form) if form else str(self)


def _define_enumeration(name, help_text, members):
    identifiers = [n + "_" if _keyword.iskeyword(n) else n for n, _, _ in members]
    enumeration = PublishedEnum(name, list(zip(identifiers, (value for _, value, _ in members))), module=__name__)
    enumeration.__doc__ = help_text + "."
    enumeration._texts = {value: text for _, value, text in members}
    _orve.register_enumeration(name, enumeration, {int(member): member for member in enumeration})
    _publish(name, enumeration)


def _publish(name, thing):
    globals()[name] = thing
    __all__.append(name)


def _define_record(name, help_text, fields):
    members = []
    for field, record, is_text in fields:
        if record:
            members.append((field, globals()[record], _dataclasses.field(default_factory=globals()[record])))
        else:
            members.append((field, str if is_text else float, "" if is_text else 0.0))
    record_type = _dataclasses.make_dataclass(name, members)
    record_type.__module__ = __name__
    record_type.__doc__ = help_text + "."
    _orve.register_record(name, record_type)
    _publish(name, record_type)


class Connection:
    """Keeps a handler connected until it is disconnected or goes."""

    __slots__ = ("_handler", "_name", "_slot", "__weakref__")

    def __init__(self, source, event, handler):
        if not callable(handler):
            raise Error(13, "Type mismatch: a handler is to be a callable")
        self._handler = handler
        self._name = event
        # The library holds the connection weakly, so that a handler may hold it without a cycle.
        this = _weakref.ref(self)

        def call(*arguments):
            connection = this()
            if connection is not None and connection._handler is not None:
                connection._handler(*arguments)

        self._slot = source._connect(event, call)

    def disconnect(self):
        """Ends the connection; a second time does nothing."""
        self._slot.disconnect()
        self._handler = None

    def __enter__(self):
        return self

    def __exit__(self, *exception):
        self.disconnect()

    def __repr__(self):
        state = "ended" if self._handler is None else f"to {self._handler!r}"
        return f"<Connection of {self._name}, {state}>"


class Event:
    """An event; handlers run inside the call that raises it.

    In a `with` statement it gives a list, to which each raising adds the tuple of its arguments.
    """

    __slots__ = ("_source", "_name", "_recording")

    def __init__(self, source, name):
        self._source = source
        self._name = name
        self._recording = None

    def connect(self, handler):
        """Connects a callable and returns the connection; keep it, for the handler goes with it."""
        return Connection(self._source, self._name, handler)

    def __enter__(self):
        raised = []
        self._recording = self.connect(lambda *arguments: raised.append(arguments))
        return raised

    def __exit__(self, *exception):
        self._recording.disconnect()

    def __repr__(self):
        return f"<Event {self._name} of {self._source!r}>"


def _event_property(name, help_text):
    return property(lambda self: Event(self, name), doc=help_text + ".")


def _constructor(name, can_be_created):
    def __init__(self, reference=None):
        Object.__init__(self, name if reference is None else reference)

    form = (lambda self: None) if can_be_created else (lambda self, *arguments: None)
    __init__.__signature__ = _inspect.signature(form)
    return __init__


def _signature(arguments):
    """From pairs of name and default; no default for an argument that must be given."""
    return _inspect.Signature(
        [_inspect.Parameter(a[0], _inspect.Parameter.POSITIONAL_OR_KEYWORD, default=(*a, _inspect.Parameter.empty)[1])
         for a in arguments]
    )


def _function(class_name, name, call, arguments, doc):
    """A member as a function of its own, so that its name, signature and documentation can be read."""

    def member(self, *positional, **named):
        return call(self, *positional, **named)

    member.__name__ = name
    member.__qualname__ = f"{class_name}.{name}"
    member.__module__ = __name__
    member.__doc__ = doc
    member.__signature__ = _signature([("self",), *arguments])
    return member


# What a repr shows of an object: stored values, which cost nothing to read and change nothing.
_SHOWN = {
    "clsCurrentCase": "Description Location IsDirty",
    "clsBuildingDimensions": "RoofType Face1And3_Length Face2And4_Width Roof_Height Roof_Pitch",
    "clsDynamicPressure": "GridReference SiteAltitude BasicWindSpeed",
    "clsExternalCoefficients": "BuildingArea Face ZoneIndex",
    "clsInternalCoefficients": "StructureType InternalVolume",
    "clsOverallAppliedLoads": "BuildingArea Face ZoneIndex",
    "clsWindCaseList": "Index",
    "clsCantileverWindLoads": "",
}


def _shown(value):
    if isinstance(value, PublishedEnum):
        return value.name
    return single_text(value) if isinstance(value, float) else repr(value)


def _object_repr(self):
    name = type(self).__name__
    if not self._address():
        return f"<{name} without an object>"
    values = "".join(f", {member}={_shown(getattr(self, member))}" for member in _SHOWN.get(name, "").split())
    return f"<{name} at {self._address():#x}{values}>"


def _define_class(name, help_text, can_be_created, properties, functions, events):
    namespace = dict(
        properties,
        __slots__=(),
        __init__=_constructor(name, can_be_created),
        __repr__=_object_repr,
        __doc__=help_text + ".",
        __module__=__name__,
    )
    for member, arguments, doc, call, let in functions:
        namespace[member] = _function(name, member, call, arguments, doc)
        if let is not None:
            namespace["set_" + member] = _function(name, "set_" + member, let, [*arguments, ("value", ...)], doc)
    namespace.update((event, _event_property(event, event_help)) for event, event_help in events)
    _publish(name, type(name, (Object,), namespace))
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


_DEFAULTS = {"LibraryFolder": _folders.settings_folder, "SystemDirectory": _folders.system_directory}

for _row in _orve.enumerations():
    _define_enumeration(*_row)
for _row in _orve.records():
    _define_record(*_row)
for _row in _orve.classes(Object):
    _define_class(*_row)
__all__.sort()

host = HostServices()
for _name in _DEFAULTS:
    setattr(host, _name, None)
_atexit.register(_orve.clear_services)
del _name, _row
