#include "EventSource.h"

#include <algorithm>
#include <span>

#include "Enumerator.h"
#include "Errors.h"
#include "Object.h"
#include "Text.h"
#include "Variants.h"

namespace orve::com {

using automation::EventDescription;
using automation::Value;

namespace {

struct PointItem {
  ComPointer<IConnectionPoint> point;
  void Give(IConnectionPoint*& raw) const { raw = ComPointer<IConnectionPoint>(point).Detach(); }
};

struct SinkItem {
  ComPointer<IDispatch> sink;
  DWORD cookie;
  void Give(CONNECTDATA& raw) const { raw = {ComPointer<IDispatch>(sink).Detach(), cookie}; }
};

bool HasNoUse(HRESULT result) {
  return result == DISP_E_MEMBERNOTFOUND || result == E_NOTIMPL;
}

bool IsGone(HRESULT result) {
  return result == RPC_E_DISCONNECTED || result == RPC_E_SERVER_DIED || result == CO_E_OBJNOTCONNECTED;
}

/// Hands an event to a sink. False if the sink isn't there any more. What it raises passes to the caller of
/// the member that raised the event; a sink that has no use for the event is passed over.
bool Deliver(IDispatch* sink, int number, DISPPARAMS& parameters) {
  EXCEPINFO exception{};
  ::SetErrorInfo(0, nullptr);
  const HRESULT result = [&] {
    const HostFloatState state;
    return sink->Invoke(static_cast<DISPID>(number), IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters,
                        nullptr, &exception, nullptr);
  }();
  if (result == DISP_E_EXCEPTION) throw HandlerError(TakeException(exception));
  if (SUCCEEDED(result) || HasNoUse(result)) return true;
  if (IsGone(result)) return false;
  throw HandlerError(TakeErrorInformation(result));
}

}  // namespace

EventSource::EventSource(Object& owner) : m_owner(owner) {}

GUID EventSource::Identity() const {
  return ToGuid(m_owner.Reference().type->identity.eventsGuid);
}

void EventSource::Connect() {
  if (!m_connections.empty()) return;
  const automation::ObjectReference& reference = m_owner.Reference();
  for (const EventDescription& event : reference.type->events)
    m_connections.push_back(automation::ConnectEvent(
        reference, event.name,
        [this, &event](std::span<const Value> arguments) { Raise(event, arguments); }));
}

void EventSource::Raise(const EventDescription& event, std::span<const Value> arguments) {
  const ComPointer<IDispatch> keep(m_owner.Dispatch());
  std::vector<Variant> values(arguments.size());
  std::vector<VARIANT> row(arguments.size());
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    Variant& value = values[i];
    ToVariant(arguments[i], event.arguments[i].type, *value.Get());
    row[arguments.size() - 1 - i] = *value.Get();
  }
  DISPPARAMS parameters{row.data(), nullptr, static_cast<UINT>(row.size()), 0};
  const std::vector<Sink> sinks = m_sinks;
  for (const Sink& sink : sinks)
    if (IsConnected(sink.cookie) && !Deliver(sink.dispatch.Get(), event.number, parameters))
      Drop(sink.cookie);
}

void EventSource::Drop(DWORD cookie) {
  std::erase_if(m_sinks, [cookie](const Sink& sink) { return sink.cookie == cookie; });
}

bool EventSource::IsConnected(DWORD cookie) const {
  return std::any_of(m_sinks.begin(), m_sinks.end(),
                     [cookie](const Sink& sink) { return sink.cookie == cookie; });
}

HRESULT EventSource::ContainerPart::QueryInterface(REFIID identity, void** result) {
  return m_source.m_owner.Dispatch()->QueryInterface(identity, result);
}
ULONG EventSource::ContainerPart::AddRef() {
  return m_source.m_owner.Dispatch()->AddRef();
}
ULONG EventSource::ContainerPart::Release() {
  return m_source.m_owner.Dispatch()->Release();
}

HRESULT EventSource::ContainerPart::EnumConnectionPoints(IEnumConnectionPoints** result) {
  if (result == nullptr) return E_POINTER;
  const std::vector<PointItem> points{{ComPointer<IConnectionPoint>(&m_source.m_point)}};
  *result =
      new Enumerator<IEnumConnectionPoints, LPCONNECTIONPOINT, PointItem>(IID_IEnumConnectionPoints, points);
  return S_OK;
}

HRESULT EventSource::ContainerPart::FindConnectionPoint(REFIID identity, IConnectionPoint** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (identity != m_source.Identity()) return CONNECT_E_NOCONNECTION;
  *result = ComPointer<IConnectionPoint>(&m_source.m_point).Detach();
  return S_OK;
}

HRESULT EventSource::PointPart::QueryInterface(REFIID identity, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = identity == IID_IUnknown || identity == IID_IConnectionPoint ? this : nullptr;
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}
ULONG EventSource::PointPart::AddRef() {
  return m_source.m_owner.Dispatch()->AddRef();
}
ULONG EventSource::PointPart::Release() {
  return m_source.m_owner.Dispatch()->Release();
}

HRESULT EventSource::PointPart::GetConnectionInterface(IID* identity) {
  if (identity == nullptr) return E_POINTER;
  *identity = m_source.Identity();
  return S_OK;
}

HRESULT EventSource::PointPart::GetConnectionPointContainer(IConnectionPointContainer** result) {
  if (result == nullptr) return E_POINTER;
  *result = ComPointer<IConnectionPointContainer>(m_source.Container()).Detach();
  return S_OK;
}

HRESULT EventSource::PointPart::Advise(IUnknown* sink, DWORD* cookie) {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  ComPointer<IDispatch> dispatch;
  // A sink answers to the identity of the events, or to late binding alone.
  const auto ask = [&](const GUID& identity) {
    const HostFloatState state;
    return SUCCEEDED(sink->QueryInterface(identity, reinterpret_cast<void**>(dispatch.Receive())));
  };
  if (!ask(m_source.Identity()) && !ask(IID_IDispatch)) return CONNECT_E_CANNOTCONNECT;
  return Guarded(IID_IConnectionPoint, [&] {
    m_source.Connect();
    m_source.m_sinks.push_back({++m_source.m_lastCookie, dispatch});
    *cookie = m_source.m_lastCookie;
  });
}

HRESULT EventSource::PointPart::Unadvise(DWORD cookie) {
  const auto found = std::find_if(m_source.m_sinks.begin(), m_source.m_sinks.end(),
                                  [cookie](const Sink& sink) { return sink.cookie == cookie; });
  if (found == m_source.m_sinks.end()) return CONNECT_E_NOCONNECTION;
  // The sink goes last: its release may come back into this object.
  const Sink leaving = *found;
  m_source.m_sinks.erase(found);
  return S_OK;
}

HRESULT EventSource::PointPart::EnumConnections(IEnumConnections** result) {
  if (result == nullptr) return E_POINTER;
  std::vector<SinkItem> items;
  for (const Sink& sink : m_source.m_sinks) items.push_back({sink.dispatch, sink.cookie});
  *result = new Enumerator<IEnumConnections, CONNECTDATA, SinkItem>(IID_IEnumConnections, items);
  return S_OK;
}

}  // namespace orve::com
