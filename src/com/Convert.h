// Values between the wizard and automation. Text is UTF-8 inside and a BSTR outside.
#pragma once

#include <tarnwise/Variant.h>

#include <windows.h>

#include <oleauto.h>

#include <utility>

namespace Tarnwise {

// A VARIANT that clears itself.
class OwnedVariant {
 public:
  OwnedVariant() { VariantInit(&value_); }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;
  ~OwnedVariant() { VariantClear(&value_); }

  VARIANT& Value() { return value_; }

 private:
  VARIANT value_;
};

// A BSTR that frees itself.
class Bstr {
 public:
  explicit Bstr(BSTR text) : text_(text) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(Bstr&& other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~Bstr() { SysFreeString(text_); }

  BSTR Get() const { return text_; }

 private:
  BSTR text_;
};

String FromBSTR(BSTR text);       // a null one is empty
BSTR ToBSTR(const String& text);  // the caller frees it

// What the VARIANT holds or refers to. Numbers of types that the wizard lacks become Long or Double, an object its
// default value; what is no single value at all is run-time error 13.
Variant FromVARIANT(const VARIANT& value);

// `to` is initialised, and clears or owns what is put there.
void ToVARIANT(const Variant& value, VARIANT& to);

}  // namespace Tarnwise
