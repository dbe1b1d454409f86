// The four entry points of the library, and the factory of the classes that a host can create.
#include <atomic>

#include "ComLibrary.h"
#include "ComPointer.h"
#include "Errors.h"
#include "HostServices.h"
#include "Module.h"
#include "Object.h"
#include "OutsideComponents.h"
#include "Plain.h"
#include "Registration.h"
#include "System.h"
#include "Text.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"

namespace orve::com {

namespace {

/// What has to stand before the first root object is made.
void PrepareLibrary() {
  static const bool prepared = [] {
    SupplyHostServices();
    RegisterComponentClasses();
    return true;
  }();
  static_cast<void>(prepared);
}

class Factory final : public IClassFactory {
 public:
  explicit Factory(const automation::ClassDescription& description) : m_class(description) { CountModule(1); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identity, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = identity == IID_IUnknown || identity == IID_IClassFactory ? this : nullptr;
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++m_count; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG count = --m_count;
    if (count == 0) delete this;
    return count;
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID identity, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    ComPointer<IDispatch> made;
    const HRESULT failure = Guarded(IID_IClassFactory, [&] {
      PrepareLibrary();
      made = Wrap({m_class.create(), &m_class});
    });
    return FAILED(failure) ? failure : made->QueryInterface(identity, result);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    CountModule(lock ? 1 : -1);
    return S_OK;
  }

 private:
  ~Factory() { CountModule(-1); }

  const automation::ClassDescription& m_class;
  std::atomic<ULONG> m_count{1};
};

/// The root object and the components live on until the library goes; their last moment in which foreign
/// objects can still be released is this one.
void LetGoOfComponents() {
  const LibraryFloatState state;
  basBS6399_2::CurrentCase.reset();
  basBS6399_2::BreVe.reset();
  basBS6399_2::BreCp.reset();
  ForgetRecordInformation();
  ForgetTypeInformation();
}

}  // namespace

}  // namespace orve::com

using namespace orve::com;

STDAPI DllGetClassObject(REFCLSID classIdentity, REFIID identity, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  for (const orve::automation::ClassDescription* description : orve::automation::ComClasses()) {
    if (description->create == nullptr || ToGuid(description->identity.classGuid) != classIdentity) continue;
    ComPointer<IClassFactory> factory;
    *factory.Receive() = new Factory(*description);
    return factory->QueryInterface(identity, result);
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
  if (ModuleCount() != 0) return S_FALSE;
  LetGoOfComponents();
  return S_OK;
}

STDAPI DllRegisterServer() {
  return Guarded(IID_IUnknown, [] { RegisterLibrary(); });
}

STDAPI DllUnregisterServer() {
  return Guarded(IID_IUnknown, [] { UnregisterLibrary(); });
}
