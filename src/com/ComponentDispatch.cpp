// The late-bound side of the class.
#include "com/Arguments.h"
#include "com/Component.h"
#include "com/TypeInfo.h"

namespace Tarnwise {

namespace {

enum Method : DISPID {
  kShowTarnwise = 0x60030000,
  kGetCurFileData,
  kUnloadTarnwise,
  kTranferABCoordinates,
};

ScoreArrays Scores(const Arguments& given) {
  ScoreArrays scores{};
  for (UINT i = 0; i < kScoreArrays; ++i) scores[i] = given.Array(i);
  return scores;
}

}  // namespace

STDMETHODIMP Component::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

STDMETHODIMP Component::GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return Guarded([&] { *info = OwnTypeInfo(IID__TRN_DEA).Detach(); });
}

STDMETHODIMP Component::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  HRESULT found = S_OK;
  const HRESULT outcome = Guarded([&] { found = OwnTypeInfo(IID__TRN_DEA)->GetIDsOfNames(names, count, ids); });
  return FAILED(outcome) ? outcome : found;
}

STDMETHODIMP Component::Invoke(DISPID method, REFIID reserved, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                               VARIANT* result, EXCEPINFO* exception, UINT* argument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  if ((flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
  if (result != nullptr) VariantInit(result);
  HRESULT refused = S_OK;
  const HRESULT outcome = Call([&](TRN_DEA& wizard) {
    try {
      CallMethod(wizard, method, *parameters);
    } catch (const ArgumentFailure& failure) {
      refused = failure.Code();
      if (argument != nullptr) *argument = failure.Place();
    }
  });
  if (FAILED(refused)) return refused;
  return FAILED(outcome) ? FillException(outcome, exception) : S_OK;
}

void Component::CallMethod(TRN_DEA& wizard, DISPID method, const DISPPARAMS& parameters) const {
  switch (method) {
    case kShowTarnwise: {
      const Arguments none(parameters, 0);
      wizard.ShowTarnwise();
      break;
    }
    case kGetCurFileData: {
      const Arguments given(parameters, 3);
      wizard.GetCurFileData(given.Value(0), ToInteger(given.Value(1)), ToText(given.Value(2)));
      break;
    }
    case kUnloadTarnwise: {
      const Arguments none(parameters, 0);
      wizard.UnloadTarnwise();
      break;
    }
    case kTranferABCoordinates: {
      const Arguments given(parameters, kScoreArrays);
      Transfer(wizard, Scores(given));
      break;
    }
    default: throw ArgumentFailure(DISP_E_MEMBERNOTFOUND, 0);
  }
}

}  // namespace Tarnwise
