// The scalar types that the wizard computes with, and the error it reports when arithmetic or subscripts fail.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Tarnwise {

using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;
using Boolean = bool;
using String = std::string;    // UTF-8
using Colour = std::uint32_t;  // blue, green, red from the high byte down; 0x80000000 + n is a system colour

// A numeric or subscript fault. It ends the handler in which it arises; from a host's own call it reaches the host.
// Number: 5 invalid call, 6 overflow, 7 out of memory, 9 subscript out of range, 11 division by zero,
// 13 type mismatch, 94 invalid use of Null, 340 control array element does not exist, 360 element already loaded.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(int number);
  RuntimeError(int number, const String& description);

  int Number() const { return number_; }
  String Description() const { return what(); }

  // The handler that failed, as "form.handler", where it is not the one that was dispatched; empty otherwise.
  String In;

 private:
  int number_;
};

}  // namespace Tarnwise
