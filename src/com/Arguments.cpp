#include "com/Arguments.h"

#include "com/Arrays.h"
#include "com/Convert.h"
#include "com/Errors.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr UINT kMissing = static_cast<UINT>(-1);

}  // namespace

// The named ones come first in the caller's list, the others after them, the last one first.
Arguments::Arguments(const DISPPARAMS& parameters, UINT count) : parameters_(parameters), places_(count, kMissing) {
  if (parameters.cArgs != count || parameters.cNamedArgs > count) throw ArgumentFailure(DISP_E_BADPARAMCOUNT, 0);
  for (UINT place = 0; place < parameters.cNamedArgs; ++place) {
    const DISPID name = parameters.rgdispidNamedArgs[place];
    if (name < 0 || static_cast<UINT>(name) >= count) throw ArgumentFailure(DISP_E_PARAMNOTFOUND, place);
    places_[static_cast<UINT>(name)] = place;
  }
  const UINT positional = count - parameters.cNamedArgs;
  for (UINT parameter = 0; parameter < positional; ++parameter) places_[parameter] = count - 1 - parameter;
  if (std::find(places_.begin(), places_.end(), kMissing) != places_.end()) {
    throw ArgumentFailure(DISP_E_BADPARAMCOUNT, 0);
  }
}

const VARIANT& Arguments::Given(UINT parameter) const {
  const UINT place = places_[parameter];
  const VARIANT& given = parameters_.rgvarg[place];
  if (given.vt == VT_ERROR && given.scode == DISP_E_PARAMNOTFOUND)
    throw ArgumentFailure(DISP_E_PARAMNOTOPTIONAL, place);
  return given;
}

Variant Arguments::Value(UINT parameter) const { return FromVARIANT(Given(parameter)); }

SAFEARRAY* Arguments::Array(UINT parameter) const {
  SAFEARRAY* array = nullptr;
  if (!ArrayIn(Given(parameter), &array)) throw ArgumentFailure(DISP_E_TYPEMISMATCH, places_[parameter]);
  return array;
}

}  // namespace Tarnwise
