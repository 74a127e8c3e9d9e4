#include <tarnwise/Variant.h>

#include "runtime/Numbers.h"
#include "runtime/Text.h"

namespace Tarnwise {

namespace {

struct AsDouble {
  Double operator()(std::monostate) const { return 0.0; }
  Double operator()(Null) const { throw RuntimeError(94); }
  Double operator()(Integer v) const { return v; }
  Double operator()(Long v) const { return v; }
  Double operator()(Single v) const { return static_cast<Double>(v); }
  Double operator()(Double v) const { return v; }
  Double operator()(Currency v) const { return static_cast<Double>(v.Scaled) / 10000.0; }
  Double operator()(Date v) const { return v.Days; }
  Double operator()(const String& v) const { return StrictNumber(v); }
  Double operator()(bool v) const { return v ? -1.0 : 0.0; }
  Double operator()(std::uint8_t v) const { return v; }
};

}  // namespace

Double ToDouble(const Variant& v) { return std::visit(AsDouble(), v); }

Single ToSingle(const Variant& v) { return ToSingleChecked(ToDouble(v)); }

Integer ToInteger(const Variant& v) {
  const Double rounded = RoundHalfEven(ToDouble(v));
  if (!(rounded >= -32768.0 && rounded <= 32767.0)) throw RuntimeError(6);
  return static_cast<Integer>(rounded);
}

std::optional<Double> NumberIn(const Variant& v) {
  if (std::holds_alternative<std::monostate>(v) || std::holds_alternative<Null>(v)) return std::nullopt;
  try {
    return ToDouble(v);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

String ToText(const Variant& v) {
  if (std::holds_alternative<std::monostate>(v)) return {};
  if (const auto* text = std::get_if<String>(&v)) return *text;
  if (const auto* single = std::get_if<Single>(&v)) return NumberText(*single);
  if (const auto* flag = std::get_if<bool>(&v)) return *flag ? "True" : "False";
  return NumberText(ToDouble(v));
}

}  // namespace Tarnwise
