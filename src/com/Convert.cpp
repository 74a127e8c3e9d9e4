#include "com/Convert.h"

#include "com/Errors.h"
#include "runtime/windows/WideText.h"

#include <climits>
#include <new>
#include <type_traits>

namespace Tarnwise {

namespace {

int CheckedLength(std::size_t length) {
  if (length > static_cast<std::size_t>(INT_MAX)) throw std::bad_alloc();
  return static_cast<int>(length);
}

// As a type that the wizard has.
Variant Changed(const VARIANT& value, VARTYPE type) {
  OwnedVariant changed;
  if (FAILED(VariantChangeType(&changed.Value(), const_cast<VARIANT*>(&value), 0, type))) throw RuntimeError(13);
  return FromVARIANT(changed.Value());
}

Variant FromReference(const VARIANT& value) {
  OwnedVariant copy;
  if (FAILED(VariantCopyInd(&copy.Value(), const_cast<VARIANT*>(&value)))) throw RuntimeError(13);
  return FromVARIANT(copy.Value());
}

struct Filler {
  VARIANT& To;

  void operator()(std::monostate) const { To.vt = VT_EMPTY; }
  void operator()(Null) const { To.vt = VT_NULL; }
  void operator()(Integer v) const { Fill(VT_I2, To.iVal, v); }
  void operator()(Long v) const { Fill(VT_I4, To.lVal, v); }
  void operator()(Single v) const { Fill(VT_R4, To.fltVal, v); }
  void operator()(Double v) const { Fill(VT_R8, To.dblVal, v); }
  void operator()(Currency v) const { Fill(VT_CY, To.cyVal.int64, v.Scaled); }
  void operator()(Date v) const { Fill(VT_DATE, To.date, v.Days); }
  void operator()(const String& v) const { Fill(VT_BSTR, To.bstrVal, ToBSTR(v)); }
  void operator()(bool v) const { Fill(VT_BOOL, To.boolVal, v ? VARIANT_TRUE : VARIANT_FALSE); }
  void operator()(std::uint8_t v) const { Fill(VT_UI1, To.bVal, v); }

  template <class Field, class Value>
  void Fill(VARTYPE type, Field& field, Value value) const {
    field = static_cast<Field>(value);
    To.vt = type;
  }
};

}  // namespace

String FromBSTR(BSTR text) {
  const int length = CheckedLength(SysStringLen(text));
  return length == 0 ? String() : Utf8(std::wstring(text, static_cast<std::size_t>(length)));
}

BSTR ToBSTR(const String& text) {
  (void)CheckedLength(text.size());
  const std::wstring units = Wide(text);
  BSTR wide = SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
  if (wide == nullptr) throw std::bad_alloc();
  return wide;
}

Variant FromVARIANT(const VARIANT& value) {
  if (value.vt == (VT_BYREF | VT_VARIANT)) return FromVARIANT(*value.pvarVal);
  if ((value.vt & VT_ARRAY) != 0) throw RuntimeError(13);
  if ((value.vt & VT_BYREF) != 0) return FromReference(value);
  switch (value.vt) {
    case VT_EMPTY: return {};
    case VT_NULL: return Null();
    case VT_I2: return Integer{value.iVal};
    case VT_I4: return static_cast<Long>(value.lVal);
    case VT_R4: return Single{value.fltVal};
    case VT_R8: return Double{value.dblVal};
    case VT_CY: return Currency{value.cyVal.int64};
    case VT_DATE: return Date{value.date};
    case VT_BSTR: return FromBSTR(value.bstrVal);
    case VT_BOOL: return value.boolVal != VARIANT_FALSE;
    case VT_UI1: return std::uint8_t{value.bVal};
    case VT_I1:
    case VT_UI2:
    case VT_INT: return Changed(value, VT_I4);
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_DECIMAL: return Changed(value, VT_R8);
    case VT_DISPATCH: return Changed(value, VT_BSTR);
    default: throw RuntimeError(13);
  }
}

void ToVARIANT(const Variant& value, VARIANT& to) { std::visit(Filler{to}, value); }

}  // namespace Tarnwise
