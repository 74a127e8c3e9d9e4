#include "com/EventArguments.h"

#include "com/Arrays.h"
#include "com/Convert.h"

#include <optional>

namespace Tarnwise {

namespace {

std::optional<Variant> Converted(const VARIANT& value) noexcept {
  try {
    return FromVARIANT(value);
  } catch (...) {
    return std::nullopt;
  }
}

// The value where a sink has changed what was sent; the wizard itself may have stored another one meanwhile.
void StoreChange(const VARIANT& now, const Variant& sent, Variant& value) {
  const std::optional<Variant> changed = Converted(now);
  if (changed && *changed != sent) value = *changed;
}

}  // namespace

EventArguments::~EventArguments() {
  for (Argument& argument : arguments_) VariantClear(&argument.Held);
}

EventArguments::Argument& EventArguments::Next() { return arguments_.emplace_back(); }

EventArguments& EventArguments::Value(const Variant& value) {
  ToVARIANT(value, Next().Held);
  return *this;
}

EventArguments& EventArguments::Reference(Variant& value) {
  Argument& argument = Next();
  argument.Value = &value;
  argument.Sent = {value};
  ToVARIANT(value, argument.Held);
  return *this;
}

EventArguments& EventArguments::Array(VariantArray& values) {
  Argument& argument = Next();
  argument.Values = &values;
  argument.Sent = values;
  argument.Held.parray = ToSafeArray(values);
  argument.Held.vt = VT_ARRAY | VT_VARIANT;
  return *this;
}

std::vector<VARIANT> EventArguments::ForSink() {
  std::vector<VARIANT> passed;
  for (auto argument = arguments_.rbegin(); argument != arguments_.rend(); ++argument) {
    VARIANT& variant = passed.emplace_back(argument->Held);
    if (argument->Value != nullptr) {
      variant.vt = VT_BYREF | VT_VARIANT;
      variant.pvarVal = &argument->Held;
    } else if (argument->Values != nullptr) {
      variant.vt = VT_BYREF | VT_ARRAY | VT_VARIANT;
      variant.pparray = &argument->Held.parray;
    }
  }
  return passed;
}

void EventArguments::TakeBack() noexcept {
  for (Argument& argument : arguments_) {
    try {
      if (argument.Value != nullptr) TakeValueBack(argument);
      if (argument.Values != nullptr) TakeArrayBack(argument);
    } catch (...) {
      continue;  // no use to the wizard
    }
  }
}

void EventArguments::TakeValueBack(Argument& argument) {
  StoreChange(argument.Held, argument.Sent.front(), *argument.Value);
}

void EventArguments::TakeArrayBack(Argument& argument) {
  SAFEARRAY* const array = argument.Held.parray;
  VARTYPE type = VT_EMPTY;
  if (array == nullptr || SafeArrayGetDim(array) != 1) return;
  if (FAILED(SafeArrayGetVartype(array, &type)) || type != VT_VARIANT) return;
  const std::size_t count = std::min(argument.Sent.size(), argument.Values->size());
  for (std::size_t i = 0; i < count; ++i) {
    OwnedVariant element;
    LONG subscript = static_cast<LONG>(i);
    if (FAILED(SafeArrayGetElement(array, &subscript, &element.Value()))) continue;
    StoreChange(element.Value(), argument.Sent[i], (*argument.Values)[i]);
  }
}

}  // namespace Tarnwise
