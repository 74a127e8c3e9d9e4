// Arrays between the wizard and automation. Element i is the one of subscript i, whatever the array's bounds.
#pragma once

#include <tarnwise/TRN_DEA.h>

#include <windows.h>

#include <oleauto.h>

namespace Tarnwise {

// The elements 0 to `count` - 1, or fewer where the array ends before, and none where it begins after 0. An array that
// was never allocated has none. More or fewer dimensions than one are run-time error 9.
VariantArray FromSafeArray(SAFEARRAY* array, int count);

// An array of VARIANT with the bounds 0 to size - 1; the caller destroys it.
SAFEARRAY* ToSafeArray(const VariantArray& values);

// The array that a late-bound argument is or refers to. False when it is none.
bool ArrayIn(const VARIANT& value, SAFEARRAY** array);

}  // namespace Tarnwise
