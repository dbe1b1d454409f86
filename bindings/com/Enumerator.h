// A COM enumerator over a list of items that is fixed when it is made.
#pragma once

#include <atomic>
#include <utility>
#include <vector>

#include "Module.h"
#include "System.h"

namespace orve::com {

/// `Item` hands a copy with a reference to the caller by `Give(Raw&)`.
template <class Interface, class Raw, class Item>
class Enumerator final : public Interface {
 public:
  Enumerator(const GUID& identity, std::vector<Item> items, std::size_t position = 0)
      : m_identity(identity), m_items(std::move(items)), m_position(position) {
    CountModule(1);
  }
  Enumerator(const Enumerator&) = delete;
  Enumerator& operator=(const Enumerator&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identity, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = identity == IID_IUnknown || identity == m_identity ? this : nullptr;
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

  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, Raw* raw, ULONG* fetched) override {
    if (raw == nullptr || (fetched == nullptr && wanted != 1)) return E_POINTER;
    ULONG given = 0;
    for (; given < wanted && m_position < m_items.size(); ++given) m_items[m_position++].Give(raw[given]);
    if (fetched != nullptr) *fetched = given;
    return given == wanted ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const std::size_t left = m_items.size() - m_position;
    m_position += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    m_position = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(Interface** result) override {
    if (result == nullptr) return E_POINTER;
    *result = new Enumerator(m_identity, m_items, m_position);
    return S_OK;
  }

 private:
  ~Enumerator() { CountModule(-1); }

  GUID m_identity;
  std::vector<Item> m_items;
  std::size_t m_position;
  std::atomic<ULONG> m_count{1};
};

}  // namespace orve::com
