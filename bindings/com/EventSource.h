// The connection point through which an object raises its events.
#pragma once

#include <vector>

#include "ComPointer.h"
#include "Description.h"
#include "System.h"

namespace orve::com {

class Object;

/// A part of its object: whoever holds one of its interfaces holds the object.
class EventSource {
 public:
  explicit EventSource(Object& owner);
  EventSource(const EventSource&) = delete;
  EventSource& operator=(const EventSource&) = delete;

  IConnectionPointContainer* Container() { return &m_container; }

 private:
  struct Sink {
    DWORD cookie;
    ComPointer<IDispatch> dispatch;
  };

  class ContainerPart : public IConnectionPointContainer {
   public:
    explicit ContainerPart(EventSource& source) : m_source(source) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identity, void** result) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** result) override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID identity, IConnectionPoint** result) override;

   private:
    EventSource& m_source;
  };

  class PointPart : public IConnectionPoint {
   public:
    explicit PointPart(EventSource& source) : m_source(source) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identity, void** result) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* identity) override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** result) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** result) override;

   private:
    EventSource& m_source;
  };

  GUID Identity() const;
  void Connect();
  void Raise(const automation::EventDescription& event, std::span<const automation::Value> arguments);
  void Drop(DWORD cookie);
  bool IsConnected(DWORD cookie) const;

  Object& m_owner;
  ContainerPart m_container{*this};
  PointPart m_point{*this};
  std::vector<Sink> m_sinks;
  std::vector<Connection> m_connections;
  DWORD m_lastCookie = 0;
};

}  // namespace orve::com
