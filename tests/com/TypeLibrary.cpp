// What binds through the type library: its functions against the description of the object model, calls by
// `ITypeInfo::Invoke`, and typed interfaces in other apartments.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "BareCase.h"
#include "Checks.h"
#include "ComLibrary.h"
#include "LateBound.h"
#include "ORVE3_BS6399_2.h"
#include "Object.h"
#include "Text.h"

using namespace orve::test;
using namespace orve::automation;
using orve::com::ComPointer;

namespace {

Checks g_checks;

constexpr int Inherited = 7;  // The functions of IUnknown and IDispatch.

std::string NameOf(ITypeInfo* information, MEMBERID member) {
  BSTR name = nullptr;
  information->GetDocumentation(member, &name, nullptr, nullptr, nullptr);
  return TakeText(name);
}

std::string TypeText(ITypeInfo* information, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_BOOL:
      return "Bool";
    case VT_I2:
      return "Int16";
    case VT_I4:
      return "Int32";
    case VT_R4:
      return "Single";
    case VT_DATE:
      return "Date";
    case VT_BSTR:
      return "Text";
    case VT_PTR:
      return TypeText(information, *type.lptdesc) + "*";
    case VT_SAFEARRAY:
      return TypeText(information, *type.lptdesc) + "[]";
    case VT_USERDEFINED: {
      ComPointer<ITypeInfo> other;
      information->GetRefTypeInfo(type.hreftype, other.Receive());
      return NameOf(other.Get(), MEMBERID_NIL);
    }
    default:
      return "type " + std::to_string(type.vt);
  }
}

std::string TypeText(const Type& type) {
  static constexpr std::array<std::string_view, 7> names{"",       "Bool", "Int16", "Int32",
                                                         "Single", "Date", "Text"};
  static constexpr std::array<Kind, 7> kinds{Kind::None,   Kind::Bool, Kind::Int16, Kind::Int32,
                                             Kind::Single, Kind::Date, Kind::Text};
  for (std::size_t i = 0; i < kinds.size(); ++i)
    if (kinds[i] == type.kind) return std::string(names[i]);
  if (type.kind == Kind::Object) return "I" + std::string(type.name) + "*";
  return std::string(type.name) + (type.kind == Kind::RecordArray ? "[]" : "");
}

std::string InputText(const Type& type) {
  return TypeText(type) + (type.kind == Kind::Record ? "*" : "");
}

/// A function as one line: kind, number, place in the table, types of the arguments, name.
std::string Line(INVOKEKIND kind, long number, std::size_t place, const std::string& types,
                 const std::string& name) {
  return std::to_string(kind) + " " + std::to_string(number) + " at " + std::to_string(place) + " (" + types +
         ") " + name + "\n";
}

std::string ExpectedFunctions(const ClassDescription& description) {
  std::string text;
  std::size_t place = Inherited;
  for (const MemberDescription& member : description.members) {
    std::string types;
    for (const ArgumentDescription& argument : member.arguments)
      types += InputText(argument.type) + (argument.byReference ? "* " : " ");
    const std::string result = member.type.kind == Kind::None ? "" : TypeText(member.type) + "* ";
    const std::string name(member.name);
    text += Line(member.isMethod ? INVOKE_FUNC : INVOKE_PROPERTYGET, member.number, place++, types + result,
                 name);
    if (member.let)
      text += Line(member.type.kind == Kind::Object ? INVOKE_PROPERTYPUTREF : INVOKE_PROPERTYPUT,
                   member.number, place++, types + InputText(member.type) + " ", name);
  }
  return text;
}

std::string FoundFunctions(ITypeInfo* information) {
  TYPEATTR* attributes = nullptr;
  information->GetTypeAttr(&attributes);
  std::string text;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    information->GetFuncDesc(i, &function);
    std::string types;
    for (SHORT argument = 0; argument < function->cParams; ++argument)
      types += TypeText(information, function->lprgelemdescParam[argument].tdesc) + " ";
    text += Line(function->invkind, function->memid, static_cast<std::size_t>(function->oVft) / sizeof(void*),
                 types, NameOf(information, function->memid));
    information->ReleaseFuncDesc(function);
  }
  information->ReleaseTypeAttr(attributes);
  return text;
}

/// The first line in which two texts differ.
std::string Difference(const std::string& found, const std::string& expected) {
  std::size_t at = 0;
  while (at < found.size() && at < expected.size() && found[at] == expected[at]) ++at;
  if (at == found.size() && at == expected.size()) return {};
  const std::size_t line = at == 0 ? 0 : expected.rfind('\n', at - 1) + 1;
  return found.substr(line, 200) + " instead of " + expected.substr(line, 200);
}

/// The library of a file, or the registered one.
ComPointer<ITypeLib> TypeLibraryOf(const char* file) {
  ComPointer<ITypeLib> library;
  if (file != nullptr)
    ::LoadTypeLibEx(Wide(file).c_str(), REGKIND_NONE, library.Receive());
  else
    ::LoadRegTypeLib(orve::com::ToGuid(TypeLibraryGuid), 3, 0, LOCALE_NEUTRAL, library.Receive());
  return library;
}

void Functions(ITypeLib* library) {
  for (const ClassDescription* description : ComClasses()) {
    const std::string name(description->name);
    ComPointer<ITypeInfo> dispatch;
    ComPointer<ITypeInfo> table;
    HREFTYPE reference = 0;
    library->GetTypeInfoOfGuid(orve::com::ToGuid(description->identity.interfaceGuid), dispatch.Receive());
    if (!dispatch || FAILED(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) ||
        FAILED(dispatch->GetRefTypeInfo(reference, table.Receive()))) {
      g_checks.True(false, "the interface of " + name);
      continue;
    }
    const std::string expected = ExpectedFunctions(*description);
    g_checks.Equal(Difference(FoundFunctions(table.Get()), expected), "", "the functions of " + name);
    TYPEATTR* attributes = nullptr;
    dispatch->GetTypeAttr(&attributes);
    g_checks.Equal<std::ptrdiff_t>(attributes->cFuncs,
                                   Inherited + std::count(expected.begin(), expected.end(), '\n'),
                                   "what late binding sees of " + name);
    dispatch->ReleaseTypeAttr(attributes);
  }
}

void EnumeratorNames(ITypeLib* library) {
  const auto found = [library](const wchar_t* name) {
    ComPointer<ITypeInfo> information;
    MEMBERID member = 0;
    USHORT count = 1;
    std::wstring asked = name;
    library->FindName(asked.data(), 0, information.Receive(), &member, &count);
    return count == 1 ? NameOf(information.Get(), MEMBERID_NIL) : std::string("nothing");
  };
  g_checks.Equal(found(L"baRoof"), "BuildingAreas", "a published name");
  g_checks.Equal(found(L"wptRoof"), "WindPressureTypes", "and another");
  g_checks.Equal(found(L"Windward"), "nothing", "a name of two enumerations");
  g_checks.Equal(found(L"WallZones_Windward"), "WallZones", "has the enumeration's in front");
  g_checks.Equal(found(L"Faces_Face_1"), "Faces", "a published text that is no identifier");
}

std::string ByTypeInformation(IDispatch* object, ITypeInfo* information, int number,
                              std::vector<Argument> arguments = {}) {
  std::vector<VARIANT> row;
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
    row.push_back(argument->Held());
  DISPPARAMS parameters{row.data(), nullptr, static_cast<UINT>(row.size()), 0};
  Argument result;
  UINT wrong = 0;
  const HRESULT called = information->Invoke(object, number, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                                             &parameters, result.Get(), nullptr, &wrong);
  return FAILED(called) ? "result " + std::to_string(called) : result.Text();
}

/// Every plain property of an object through the type library and by the object's own late binding.
void CallsByTypeInformation(const Late& object, const ClassDescription& description) {
  ComPointer<ITypeInfo> information;
  object.Dispatch()->GetTypeInfo(0, LOCALE_NEUTRAL, information.Receive());
  int compared = 0;
  std::string differing;
  for (const MemberDescription& member : description.members) {
    const bool isPlain = member.type.kind != Kind::Object && member.type.kind != Kind::Record;
    if (member.isMethod || !isPlain || !member.arguments.empty()) continue;
    ++compared;
    const std::string name(member.name);
    if (ByTypeInformation(object.Dispatch(), information.Get(), member.number) !=
        object.Get(Wide(name).c_str()).value.Text())
      differing += name + " ";
  }
  g_checks.Equal(differing, "", "calls through the type library: " + std::string(description.name));
  g_checks.True(compared > 0 || description.members.size() < 9,
                std::string(description.name) + " was called");
}

void Calls(const Late& root) {
  for (const ClassDescription* description : Classes()) {
    const std::string name(description->name);
    if (name == "clsCurrentCase")
      CallsByTypeInformation(root, *description);
    else if (name != "clsCantileverWindLoads")
      CallsByTypeInformation(root.Object(Wide(name.substr(3)).c_str()), *description);
  }
  const Late zones = root.Object(L"ExternalCoefficients");
  ComPointer<ITypeInfo> information;
  zones.Dispatch()->GetTypeInfo(0, LOCALE_NEUTRAL, information.Receive());
  const int number = FindClass("clsExternalCoefficients")->Find("Hybrid_ZoneDescription")->number;
  g_checks.Equal(ByTypeInformation(zones.Dispatch(), information.Get(), number, {0, 0, 0}), "A",
                 "a call with arguments through the type library");
}

/// What the library offers besides: as an interface of the root object, and as an object of its own.
void Library(const Late& root) {
  ComPointer<IclsLibrary> library;
  ComPointer<IUnknown> whole;
  ComPointer<IUnknown> again;
  root.Dispatch()->QueryInterface(__uuidof(IclsLibrary), reinterpret_cast<void**>(library.Receive()));
  root.Dispatch()->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(whole.Receive()));
  if (library) library->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(again.Receive()));
  g_checks.True(library && whole.Get() == again.Get(), "the further interface is the root object's");
  if (!library) return;
  BSTR text = nullptr;
  BSTR enumeration = ::SysAllocString(L"RoofTypes");
  library->PublishedText(enumeration, RoofTypes_Hipped_roof, &text);
  g_checks.Equal(TakeText(text), "Hipped roof", "a published text");
  ::SysFreeString(enumeration);

  ComPointer<IDispatch> own;
  CLSID identity{};
  ::CLSIDFromProgID(L"ORVE3_BS6399_2.clsLibrary", &identity);
  ::CoCreateInstance(identity, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                     reinterpret_cast<void**>(own.Receive()));
  const Late late(own.Get());
  if (!own) return g_checks.True(false, "an object of its own");
  std::string differing;
  for (const EnumerationDescription& described : Enumerations())
    for (std::size_t i = 0; i < described.enumerators.size(); ++i) {
      const std::string name(described.name);
      const int value = described.enumerators[i].value;
      const std::string published(described.enumerators[i].published);
      if (late.Get(L"EnumeratorValue", {name, static_cast<long>(i)}).value.Text() != std::to_string(value) ||
          late.Get(L"PublishedText", {name, value}).value.Text() != published ||
          late.Get(L"ValueOfText", {name, published}).value.Text() != std::to_string(value))
        differing += name + " " + published + "; ";
    }
  g_checks.Equal(differing, "", "every published text, there and back");
  g_checks.Equal(late.Get(L"PublishedText", {"Faces", 4}).number, 5L, "a value that isn't there");
  g_checks.Equal(late.Get(L"CaseFileExists", {"C:\\nowhere\\x.wlc"}).value.Text(), "False", "a file");
  late.Put(L"Unattended", {true});
  g_checks.Equal(root.Get(L"Browse").value.Text(), "False", "no dialog with nobody there");
  late.Put(L"Unattended", {false});
}

// Other apartments. The objects live on the main thread, wherever they are asked for.

struct Visitor {
  IStream* stream;
  int height;
  std::string seen;
};

DWORD WINAPI Visit(void* given) {
  auto& visitor = *static_cast<Visitor*>(given);
  ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  {
    ComPointer<IclsBuildingDimensions> building;
    ComPointer<IclsLibrary> library;
    orve::com::Object* own = nullptr;
    ::CoGetInterfaceAndReleaseStream(visitor.stream, __uuidof(IclsBuildingDimensions),
                                     reinterpret_cast<void**>(building.Receive()));
    ::CoCreateInstance(__uuidof(::clsLibrary), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IclsLibrary),
                       reinterpret_cast<void**>(library.Receive()));
    if (!building || !library) {
      visitor.seen = "no interface";
    } else if (SUCCEEDED(
                   library->QueryInterface(orve::com::ObjectIdentity, reinterpret_cast<void**>(&own)))) {
      visitor.seen = "an object on this thread";
    } else {
      BSTR name = ::SysAllocString(L"Faces");
      for (int i = 0; i < 50; ++i) {
        BSTR text = nullptr;
        float height = 0;
        library->PublishedText(name, 2, &text);
        if (TakeText(text) != "Face 3") visitor.seen += "text ";
        visitor.height == 0 ? building->get_Roof_Height(&height)
                            : building->put_Roof_Height(static_cast<float>(visitor.height));
      }
      ::SysFreeString(name);
      float height = 0;
      building->get_Roof_Height(&height);
      visitor.seen += std::to_string(height);
      BSTR none = ::SysAllocString(L"Nothing");
      BSTR text = nullptr;
      visitor.seen +=
          library->PublishedText(none, 0, &text) == static_cast<HRESULT>(0x800A0005) ? "" : " no error";
      ::SysFreeString(none);
    }
  }
  ::CoUninitialize();
  return 0;
}

void OtherApartments(const Late& root) {
  const Late building = root.Object(L"BuildingDimensions");
  std::array<Visitor, 2> visitors{{{nullptr, 4, {}}, {nullptr, 0, {}}}};
  std::vector<HANDLE> threads;
  for (Visitor& visitor : visitors) {
    ::CoMarshalInterThreadInterfaceInStream(__uuidof(IclsBuildingDimensions), building.Dispatch(),
                                            &visitor.stream);
    threads.push_back(::CreateThread(nullptr, 0, &Visit, &visitor, 0, nullptr));
  }
  // The main thread takes the calls of both.
  while (!threads.empty()) {
    const DWORD woken = ::MsgWaitForMultipleObjects(static_cast<DWORD>(threads.size()), threads.data(), FALSE,
                                                    INFINITE, QS_ALLINPUT);
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
    if (woken >= threads.size()) continue;
    ::CloseHandle(threads[woken]);
    threads.erase(threads.begin() + static_cast<std::ptrdiff_t>(woken));
  }
  g_checks.Equal(visitors[0].seen, "4.000000", "typed interfaces in a second apartment");
  g_checks.Equal(visitors[1].seen, "4.000000", "and in a third one at the same time");
}

}  // namespace

/// With a file: its functions and names alone.
int main(int count, char** arguments) {
  ::CoInitialize(nullptr);
  {
    const ComPointer<ITypeLib> library = TypeLibraryOf(count > 1 ? arguments[1] : nullptr);
    if (!library) return g_checks.Close();
    Functions(library.Get());
    EnumeratorNames(library.Get());
    if (count > 1) return g_checks.Close();
    ComPointer<IDispatch> made;
    ::CoCreateInstance(__uuidof(clsCurrentCase), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                       reinterpret_cast<void**>(made.Receive()));
    if (!made) return g_checks.Close();
    const Late root(made.Get());
    SetBareCase(root);
    Calls(root);
    Library(root);
    root.Object(L"BuildingDimensions").Put(L"Roof_Height", {4});
    OtherApartments(root);
  }
  ::CoUninitialize();
  return g_checks.Close();
}
