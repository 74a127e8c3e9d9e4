#include "com/Arrays.h"

#include "com/Convert.h"
#include "com/Errors.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace Tarnwise {

namespace {

// The elements of an array, locked in their place.
class LockedArray {
 public:
  explicit LockedArray(SAFEARRAY* array) : array_(array) {
    Check(SafeArrayAccessData(array_, &data_), "The array can't be read.");
  }
  LockedArray(const LockedArray&) = delete;
  LockedArray& operator=(const LockedArray&) = delete;
  ~LockedArray() { SafeArrayUnaccessData(array_); }

  void* Element(std::size_t place) const { return static_cast<char*>(data_) + place * array_->cbElements; }

 private:
  SAFEARRAY* array_;
  void* data_ = nullptr;
};

VARTYPE ElementType(SAFEARRAY* array) {
  VARTYPE type = VT_EMPTY;
  if (FAILED(SafeArrayGetVartype(array, &type))) throw RuntimeError(13);
  return type;
}

// An element of an array of plain values, as the reference that it is.
Variant PlainElement(void* element, VARTYPE type) {
  VARIANT reference;
  VariantInit(&reference);
  reference.vt = static_cast<VARTYPE>(type | VT_BYREF);
  reference.byref = element;
  return FromVARIANT(reference);
}

}  // namespace

VariantArray FromSafeArray(SAFEARRAY* array, int count) {
  VariantArray values;
  if (array == nullptr) return values;
  LONG first = 0;
  LONG last = -1;
  if (SafeArrayGetDim(array) != 1) throw RuntimeError(9);
  Check(SafeArrayGetLBound(array, 1, &first), "The array has no bounds.");
  Check(SafeArrayGetUBound(array, 1, &last), "The array has no bounds.");
  if (first > 0 || last < 0) return values;

  const VARTYPE type = ElementType(array);
  const LockedArray elements(array);
  const LONG end = std::min<LONG>(count, last == MAXLONG ? last : last + 1);
  for (LONG i = 0; i < end; ++i) {
    void* const element = elements.Element(static_cast<std::size_t>(static_cast<LONGLONG>(i) - first));
    values.push_back(type == VT_VARIANT ? FromVARIANT(*static_cast<const VARIANT*>(element))
                                        : PlainElement(element, type));
  }
  return values;
}

SAFEARRAY* ToSafeArray(const VariantArray& values) {
  SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(values.size()));
  if (array == nullptr) throw std::bad_alloc();
  try {
    const LockedArray elements(array);
    for (std::size_t i = 0; i < values.size(); ++i) ToVARIANT(values[i], *static_cast<VARIANT*>(elements.Element(i)));
  } catch (...) {
    SafeArrayDestroy(array);
    throw;
  }
  return array;
}

bool ArrayIn(const VARIANT& value, SAFEARRAY** array) {
  if (value.vt == (VT_BYREF | VT_VARIANT)) return ArrayIn(*value.pvarVal, array);
  if ((value.vt & VT_ARRAY) == 0) return false;
  *array = (value.vt & VT_BYREF) != 0 ? *value.pparray : value.parray;
  return true;
}

}  // namespace Tarnwise
