#include "ComLibrary.h"
#include "Generate.h"

namespace orve::automation {

std::vector<GeneratedFile> GeneratedFiles() {
  std::vector<GeneratedFile> files{
      {"bindings/c/include/orve3_bs6399_2_c.h", CHeader()},
      {"bindings/c/exports.txt", CExports()},
      {"bindings/c/generated/Types.h", CTypesHeader()},
      {"bindings/c/generated/Types.cpp", CTypesBody()},
      {"bindings/python/orve3_bs6399_2/__init__.pyi", PythonStub()},
      {"automation/generated/ORVE3_BS6399_2.idl", ComInterface()},
      {"bindings/com/generated/Classes.h", ComClassTable()},
      {"bindings/com/generated/ORVE3_BS6399_2.Library.manifest.in", ComManifest()},
      {"docs/reference/README.md", ReferenceIndex()},
      {"docs/reference/types.md", ReferenceTypesPage()},
  };
  for (const ClassDescription* description : Classes()) {
    const std::string name(description->name);
    files.push_back({"bindings/c/generated/" + name + ".cpp", CClassBody(*description)});
    files.push_back({"docs/reference/" + name + ".md", ReferenceClassPage(*description)});
  }
  for (const ClassDescription* description : ComClasses())
    files.push_back(
        {"bindings/com/generated/" + std::string(description->name) + ".cpp", ComObjectBody(*description)});
  return files;
}

}  // namespace orve::automation
