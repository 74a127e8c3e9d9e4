// A counted reference to a COM object.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <utility>

namespace Tarnwise {

template <class T>
class ComRef {
 public:
  ComRef() = default;
  explicit ComRef(T* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  ComRef(const ComRef& other) : ComRef(other.object_) {}
  ComRef(ComRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComRef& operator=(ComRef other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComRef() {
    if (object_ != nullptr) object_->Release();
  }

  T* Get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  // For a call that hands out a reference; what was held is let go.
  T** Receive() {
    *this = ComRef();
    return &object_;
  }
  // The reference goes to the caller.
  T* Detach() { return std::exchange(object_, nullptr); }

 private:
  T* object_ = nullptr;
};

}  // namespace Tarnwise
