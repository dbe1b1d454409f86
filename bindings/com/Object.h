// An object of the library as COM sees it: what all its interfaces stand on, driven by the description alone.
#pragma once

#include <atomic>
#include <initializer_list>
#include <memory>

#include "ComPointer.h"
#include "Dispatch.h"
#include "System.h"

namespace orve::com {

class EventSource;

/// By this identity an object of the library is told from a foreign one; the pointer that it gives isn't
/// counted.
inline constexpr GUID ObjectIdentity{
    0xe94f75ea, 0x5a57, 0x49a4, {0x9b, 0x0b, 0x70, 0x9c, 0xd2, 0x5c, 0x60, 0x34}};

class Object {
 public:
  explicit Object(const automation::ObjectReference& reference);
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  const automation::ObjectReference& Reference() const { return m_reference; }
  virtual IDispatch* Dispatch() = 0;

 protected:
  virtual ~Object();

  ULONG Count(int change);

  /// The object that this one is a part of: it has the count and gives the interfaces. Null for an object by
  /// itself.
  IUnknown* Whole() const { return m_whole; }
  /// An interface that an object has besides its own: `IclsLibrary` of the root object. Not counted; null for
  /// any other.
  IUnknown* FurtherInterface(REFIID identity);

  /// Bodies of a typed interface's methods: a property's get or a method, and a property's let or set, by
  /// number. Arguments and result are given by their addresses.
  HRESULT Get(int number, std::initializer_list<const void*> arguments, void* result);
  HRESULT Put(int number, std::initializer_list<const void*> arguments, const void* value);

  /// Bodies of `IDispatch`.
  HRESULT TypeInfoOfInterface(UINT index, ITypeInfo** information);
  HRESULT NumbersOfNames(LPOLESTR* names, UINT count, DISPID* numbers);
  HRESULT InvokeByNumber(DISPID number, REFIID identity, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                         EXCEPINFO* exception, UINT* wrongArgument);

  /// Bodies of `IProvideClassInfo2`.
  HRESULT TypeInfoOfClass(ITypeInfo** information);
  HRESULT EventsIdentity(DWORD kind, GUID* identity);

  GUID InterfaceIdentity() const;
  /// Where hosts connect to the events; null for a class without events.
  IConnectionPointContainer* Events();

 private:
  HRESULT CallByNumber(const automation::MemberDescription& member, WORD flags, const DISPPARAMS& parameters,
                       VARIANT* result, UINT& wrongArgument);

  struct Deleting {
    void operator()(Object* object) const { delete object; }
  };

  automation::ObjectReference m_reference;
  std::atomic<ULONG> m_count{1};
  std::unique_ptr<EventSource> m_events;
  IUnknown* m_whole = nullptr;
  std::unique_ptr<Object, Deleting> m_library;
};

/// The COM object of an object, the same one for as long as it lives; nothing for a null reference.
ComPointer<IDispatch> Wrap(const automation::ObjectReference& reference);
/// The way back. Errors: 13 for a foreign object; a null pointer gives the null reference.
automation::ObjectReference ReferenceOf(IDispatch* object);

}  // namespace orve::com
