// The arguments of an event on their way to the sinks and back. By reference means that what a sink writes there is the
// wizard's from then on.
#pragma once

#include <tarnwise/TRN_DEA.h>

#include <windows.h>

#include <oleauto.h>

#include <deque>
#include <vector>

namespace Tarnwise {

// In the order of the event's declaration.
class EventArguments {
 public:
  EventArguments() = default;
  EventArguments(const EventArguments&) = delete;
  EventArguments& operator=(const EventArguments&) = delete;
  ~EventArguments();

  EventArguments& Value(const Variant& value);
  EventArguments& Reference(Variant& value);
  EventArguments& Array(VariantArray& values);

  // As a sink's Invoke wants them, the last one first. They point into this object, which keeps what they hold.
  std::vector<VARIANT> ForSink();

  // Stores what the sinks have changed. What can't be converted, or lies outside the array as it was, stays as it was.
  void TakeBack() noexcept;

 private:
  struct Argument {
    VARIANT Held = {};
    Variant* Value = nullptr;
    VariantArray* Values = nullptr;
    VariantArray Sent;
  };

  static void TakeValueBack(Argument& argument);
  static void TakeArrayBack(Argument& argument);

  Argument& Next();

  std::deque<Argument> arguments_;
};

}  // namespace Tarnwise
