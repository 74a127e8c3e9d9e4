// A tagged value, as it stands in model files and passes between the host and the wizard.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace Tarnwise {

struct Null {
  friend bool operator==(Null, Null) { return true; }
};

// A fixed-point number of four decimals; Scaled is the number times 10000.
struct Currency {
  std::int64_t Scaled = 0;
  friend bool operator==(Currency, Currency) = default;
};

// A day count with its fraction.
struct Date {
  Double Days = 0.0;
  friend bool operator==(Date, Date) = default;
};

// std::monostate is Empty.
using Variant =
    std::variant<std::monostate, Null, Integer, Long, Single, Double, Currency, Date, String, bool, std::uint8_t>;

using VariantArray = std::vector<Variant>;  // of attributes: elements 0 to NumAtts - 1

// Conversions. Empty is 0 and "". Text must be a number as a whole (error 13), Null is error 94, what does not fit is
// error 6. Fractions go to the nearest whole number, ties to even.
Double ToDouble(const Variant& v);
Single ToSingle(const Variant& v);
Integer ToInteger(const Variant& v);
String ToText(const Variant& v);

// The number that is held; nothing for Empty, Null and a text that is no number.
std::optional<Double> NumberIn(const Variant& v);

}  // namespace Tarnwise
