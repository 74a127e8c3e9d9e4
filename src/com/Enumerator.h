// Enumerators over a copy of a list. An item of ours makes the caller's by its HandOut.
#pragma once

#include "com/Errors.h"
#include "com/Module.h"
#include "runtime/windows/ComRef.h"

#include <algorithm>
#include <vector>

namespace Tarnwise {

template <class Interface, class Item, class Given>
class Enumerator final : public Interface {
 public:
  Enumerator(std::vector<Item> items, std::size_t next) : items_(std::move(items)), next_(next) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = iid == IID_IUnknown || iid == __uuidof(Interface) ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references_)); }
  STDMETHODIMP_(ULONG) Release() override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

  STDMETHODIMP Next(ULONG count, Given* given, ULONG* fetched) override {
    if (fetched != nullptr) *fetched = 0;
    if (given == nullptr || (fetched == nullptr && count != 1)) return E_POINTER;
    const std::size_t end = next_ + std::min<std::size_t>(count, items_.size() - next_);
    const bool all = end - next_ == count;
    for (; next_ < end; ++next_, ++given) {
      items_[next_].HandOut(*given);
      if (fetched != nullptr) ++*fetched;
    }
    return all ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const bool enough = count <= items_.size() - next_;
    next_ = enough ? next_ + count : items_.size();
    return enough ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** clone) override {
    if (clone == nullptr) return E_POINTER;
    *clone = nullptr;
    return Guarded([&] { *clone = new Enumerator(items_, next_); });
  }

 private:
  ~Enumerator() = default;

  LONG references_ = 1;
  ModuleUse use_;
  const std::vector<Item> items_;
  std::size_t next_;
};

}  // namespace Tarnwise
