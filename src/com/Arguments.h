// The arguments of a late-bound call, by position or by name, in any of the forms that hosts pass.
#pragma once

#include <tarnwise/Scalars.h>
#include <tarnwise/Variant.h>

#include <windows.h>

#include <oleauto.h>

#include <vector>

namespace Tarnwise {

class Arguments {
 public:
  // Too many or too few, or a name that the method lacks, is an ArgumentFailure.
  Arguments(const DISPPARAMS& parameters, UINT count);

  // By the parameter's place in the declaration, from 0.
  Variant Value(UINT parameter) const;
  SAFEARRAY* Array(UINT parameter) const;  // belongs to the caller; may be unallocated

 private:
  const VARIANT& Given(UINT parameter) const;

  const DISPPARAMS& parameters_;
  std::vector<UINT> places_;  // where the caller's list has each parameter
};

}  // namespace Tarnwise
