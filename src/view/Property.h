// A property of a control: reads as its value, and marks the control for the screen when it is given another one.
#pragma once

#include <utility>

namespace Tarnwise {

struct Control;
void MarkChanged(Control& control);

template <class T>
class Property {
 public:
  Property(Control& owner, T value) : owner_(owner), value_(std::move(value)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property& other) { return *this = other.value_; }

  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    MarkChanged(owner_);
    return *this;
  }

  operator const T&() const { return value_; }  // NOLINT: it reads as its value
  const T& operator()() const { return value_; }

 private:
  Control& owner_;
  T value_;
};

}  // namespace Tarnwise
