#include "ComLibrary.h"
#include "Generate.h"

namespace orve::automation {

namespace {

std::string Braced(std::string_view guid) {
  return "{" + std::string(guid) + "}";
}

/// An interface that the system's own marshaler serves; `dispatch` is the one for interfaces of names alone.
std::string InterfaceText(const std::string& name, std::string_view guid, bool dispatch) {
  return "  <comInterfaceExternalProxyStub name=\"" + name + "\" iid=\"" + Braced(guid) +
         "\"\n      proxyStubClsid32=\"{" + (dispatch ? "00020420" : "00020424") +
         "-0000-0000-C000-000000000046}\" baseInterface=\"{00020400-0000-0000-C000-000000000046}\"\n"
         "      tlbid=\"" +
         Braced(TypeLibraryGuid) + "\"/>\n";
}

}  // namespace

std::string ComManifest() {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<!-- " + std::string(GeneratedNote) +
      " -->\n<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
      "  <assemblyIdentity type=\"win32\" name=\"ORVE3_BS6399_2.Library\" version=\"@ORVE_FILE_VERSION@\"\n"
      "      processorArchitecture=\"@ORVE_ARCHITECTURE@\"/>\n  <file name=\"ORVE3_BS6399_2.dll\">\n";
  for (const ClassDescription* description : ComClasses())
    if (description->create != nullptr)
      text += "    <comClass description=\"" + std::string(description->name) + "\" clsid=\"" +
              Braced(description->identity.classGuid) + "\"\n        progid=\"ORVE3_BS6399_2." +
              std::string(description->name) + "\" tlbid=\"" + Braced(TypeLibraryGuid) + "\"/>\n";
  text +=
      "    <typelib tlbid=\"" + Braced(TypeLibraryGuid) + "\" version=\"3.0\" helpdir=\"\"/>\n  </file>\n";
  for (const ClassDescription* description : ComClasses()) {
    const std::string name = "I" + std::string(description->name);
    text += InterfaceText(name, description->identity.interfaceGuid, false);
    if (!description->events.empty())
      text += InterfaceText(name + "Events", description->identity.eventsGuid, true);
  }
  return text + "</assembly>\n";
}

}  // namespace orve::automation
