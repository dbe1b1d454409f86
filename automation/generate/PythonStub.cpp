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
    case Kind::Date:
      return "float";
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

/// An enumeration may be given as a plain number too.
std::string ArgumentType(const Type& type) {
  return type.kind == Kind::Enumeration ? PythonType(type) + " | int" : PythonType(type);
}

std::string Parameters(const MemberDescription& member, bool withDefaults) {
  std::string text = "self";
  for (const ArgumentDescription& argument : member.arguments) {
    text += ", " + std::string(argument.name) + ": " + ArgumentType(argument.type);
    if (withDefaults && argument.defaultValue) text += " = " + TextOf(*argument.defaultValue);
  }
  return text;
}

std::string Docstring(std::string_view indent, const MemberDescription& member) {
  std::string text = std::string(indent) + "\"\"\"" + std::string(member.help);
  if (!member.unit.empty() && member.unit != "path") text += ", " + std::string(member.unit);
  return text + ".\"\"\"\n";
}

std::string MemberText(const MemberDescription& member) {
  const std::string name(member.name);
  const std::string type = PythonType(member.type);
  if (!member.isMethod && member.arguments.empty()) {
    std::string text =
        "    @property\n    def " + name + "(self) -> " + type + ":\n" + Docstring("        ", member);
    if (member.let)
      text += "    @" + name + ".setter\n    def " + name + "(self, value: " + ArgumentType(member.type) +
              ") -> None: ...\n";
    return text;
  }
  std::string text = "    def " + name + "(" + Parameters(member, true) + ") -> " + type + ":\n" +
                     Docstring("        ", member);
  if (member.let)
    text += "    def set_" + name + "(" + Parameters(member, false) +
            ", value: " + ArgumentType(member.type) + ") -> None: ...\n";
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
from enum import IntEnum
from typing import Any, Generic, ParamSpec

P = ParamSpec("P")

class Error(RuntimeError):
    """An error of the library, with its number and text."""
    number: int
    def __init__(self, number: int, text: str) -> None: ...

class Connection:
    """Keeps a handler connected until it is disconnected or goes."""
    def disconnect(self) -> None: ...
    def __enter__(self) -> Connection: ...
    def __exit__(self, *exception: Any) -> None: ...

class Event(Generic[P]):
    """An event; handlers run inside the call that raises it."""
    def connect(self, handler: Callable[P, Any]) -> Connection: ...

class Object:
    """A counted reference to an object of the library; two are equal if they stand for the same object."""
    def invoke(self, member: str, *arguments: Any, **named: Any) -> Any: ...
    def assign(self, member: str, *arguments_and_value: Any, **named: Any) -> None: ...

class FileDialog:
    """Settings of a file dialog; a host sets FileName to the name chosen."""
    CancelError: bool
    DefaultExt: str
    DialogTitle: str
    Filter: str
    Flags: int
    InitDir: str
    FileName: str

class HostServices:
    """Callables of the host; None brings the headless default back."""
    MsgBox: Callable[[str, int, str], int] | None
    OpenFileDialog: Callable[[FileDialog], bool] | None
    SaveFileDialog: Callable[[FileDialog], bool] | None
    MousePointer: Callable[[], int] | None
    SetMousePointer: Callable[[int], None] | None
    DoEvents: Callable[[], None] | None
    LibraryFolder: Callable[[], str] | None
    SystemDirectory: Callable[[], str] | None
    Now: Callable[[], float] | None
    SiteBrowse: Callable[[], str | None] | None
    SiteSelect: Callable[[], str | None] | None
    SiteEdit: Callable[[], bool] | None

host: HostServices
__version__: str

def register_built_in_engines() -> None:
    """Makes the built-in engines the components; call it before clsCurrentCase()."""

def native_path(path: str) -> str:
    """A stored path as the machine's own."""

def single_text(value: float) -> str:
    """Shortest decimal text of a 32-bit value, as most members give it: 0.1 and not 0.10000000149011612."""

def double_text(value: float) -> str:
    """Shortest decimal text of a 64-bit value, such as a date."""

class PublishedEnum(IntEnum):
    @property
    def text(self) -> str:
        """The published text of the member."""

)";

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
  text.pop_back();
  return text;
}

}  // namespace orve::automation
