#include <algorithm>

#include "Generate.h"

namespace orve::automation {

namespace {

std::string PythonType(const Type& type) {
  switch (type.kind) {
    case Kind::None:
      return "None";
    case Kind::Bool:
      return "bool";
    case Kind::Int16:
    case Kind::Int32:
      return "int";
    case Kind::Single:
      return "float";
    case Kind::Date:
      return "datetime | None";
    case Kind::Text:
      return "str";
    case Kind::RecordArray:
      return "list[" + std::string(type.name) + "]";
    case Kind::Enumeration:
    case Kind::Object:
    case Kind::Record:
      break;
  }
  return std::string(type.name);
}

/// What may be given: an enumeration as a plain number too, a path as `os.PathLike`, and no object.
std::string ArgumentType(const Type& type, bool isPath) {
  if (type.kind == Kind::Enumeration) return PythonType(type) + " | int";
  if (type.kind == Kind::Object) return PythonType(type) + " | None";
  return isPath ? "str | PathLike[str]" : PythonType(type);
}

/// Those with a default may be left out, or None.
std::string Parameters(const MemberDescription& member) {
  std::string text = "self";
  for (const ArgumentDescription& argument : member.arguments) {
    text += ", " + std::string(argument.name) + ": " +
            ArgumentType(argument.type, argument.name == "FileNameToOpen");
    if (argument.defaultValue) text += " | None = " + TextOf(*argument.defaultValue);
  }
  return text;
}

std::string Docstring(std::string_view indent, const MemberDescription& member) {
  const std::string lineBreak = "\n" + std::string(indent);
  const std::vector<std::string> lines = DocumentationOf(member);
  std::string text = std::string(indent) + "\"\"\"" + lines.front();
  for (std::size_t i = 1; i < lines.size(); ++i) text += (i == 1 ? "\n" : "") + lineBreak + lines[i];
  return text + (lines.size() > 1 ? lineBreak : "") + "\"\"\"\n";
}

std::string MemberText(const MemberDescription& member) {
  const std::string name(member.name);
  const std::string type = PythonType(member.type);
  if (!member.isMethod && member.arguments.empty()) {
    std::string text =
        "    @property\n    def " + name + "(self) -> " + type + ":\n" + Docstring("        ", member);
    if (member.let)
      text += "    @" + name + ".setter\n    def " + name +
              "(self, value: " + ArgumentType(member.type, member.unit == "path") + ") -> None: ...\n";
    return text;
  }
  std::string text =
      "    def " + name + "(" + Parameters(member) + ") -> " + type + ":\n" + Docstring("        ", member);
  if (member.let)
    text += "    def set_" + name + "(" + Parameters(member) +
            ", value: " + ArgumentType(member.type, false) + " = ...) -> None: ...\n";
  return text;
}

std::string ClassText(const ClassDescription& description) {
  std::string text = "class " + std::string(description.name) + "(Object):\n    \"\"\"" +
                     std::string(description.help) + ".\"\"\"\n";
  if (description.create != nullptr) text += "    def __init__(self) -> None: ...\n";
  for (const MemberDescription& member : description.members) text += MemberText(member);
  for (const EventDescription& event : description.events) {
    std::vector<std::string> types;
    for (const ArgumentDescription& argument : event.arguments) types.push_back(PythonType(argument.type));
    text += "    @property\n    def " + std::string(event.name) + "(self) -> Event[[" + Join(types, ", ") +
            "]]:\n        \"\"\"" + std::string(event.help) + ".\"\"\"\n";
  }
  return text + "\n";
}

constexpr std::string_view Opening = R"(from collections.abc import Callable
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

)";

/// The names that a star import brings, sorted.
std::string AllText() {
  std::vector<std::string> names{"Connection",
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
                                 "single_text"};
  for (const EnumerationDescription& enumeration : Enumerations()) names.emplace_back(enumeration.name);
  for (const RecordDescription& record : Records()) names.emplace_back(record.name);
  for (const ClassDescription* description : Classes()) names.emplace_back(description->name);
  std::sort(names.begin(), names.end());
  return "__all__ = [\n    \"" + Join(names, "\",\n    \"") + "\",\n]\n";
}

}  // namespace

std::string PythonStub() {
  std::string text = "# " + std::string(GeneratedNote) + "\n" + std::string(Opening);
  for (const EnumerationDescription& enumeration : Enumerations()) {
    text += "class " + std::string(enumeration.name) + "(PublishedEnum):\n    \"\"\"" +
            std::string(enumeration.help) + ".\"\"\"\n";
    for (const Enumerator& enumerator : enumeration.enumerators)
      text += "    " + (enumerator.name == "None" ? "None_" : std::string(enumerator.name)) + " = " +
              std::to_string(enumerator.value) + "\n";
    text += "\n";
  }
  for (const RecordDescription& record : Records()) {
    text += "@dataclass\nclass " + std::string(record.name) + ":\n    \"\"\"" + std::string(record.help) +
            ".\"\"\"\n";
    for (const FieldDescription& field : record.fields)
      text += "    " + std::string(field.name) + ": " + PythonType(field.type) + " = ...\n";
    text += "\n";
  }
  for (const ClassDescription* description : Classes()) text += ClassText(*description);
  return text + AllText();
}

}  // namespace orve::automation
