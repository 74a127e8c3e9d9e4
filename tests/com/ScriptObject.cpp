#include "ScriptObject.h"

#include <algorithm>
#include <cwctype>

STDMETHODIMP ScriptObject::QueryInterface(REFIID iid, void** object) {
  *object = iid == IID_IUnknown || iid == IID_IDispatch ? this : nullptr;
  return *object != nullptr ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP ScriptObject::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

// The number of a member is its place in the map, from 1; 0 is the default member.
STDMETHODIMP ScriptObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  std::fill_n(ids, count, DISPID_UNKNOWN);
  std::wstring name = names[0];
  std::transform(name.begin(), name.end(), name.begin(), [](wchar_t c) { return std::towlower(c); });
  const auto member = Members.find(name);
  if (member == Members.end() || count != 1) return DISP_E_UNKNOWNNAME;
  ids[0] = static_cast<DISPID>(std::distance(Members.begin(), member)) + 1;
  return S_OK;
}

STDMETHODIMP ScriptObject::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                                  UINT*) {
  std::vector<VARIANT> arguments(parameters->rgvarg, parameters->rgvarg + parameters->cArgs);
  std::reverse(arguments.begin(), arguments.end());
  VARIANT ignored;
  VariantInit(&ignored);
  if (result != nullptr) VariantInit(result);
  VARIANT* const answer = result != nullptr ? result : &ignored;
  HRESULT outcome = DISP_E_MEMBERNOTFOUND;
  if (id == DISPID_VALUE && Default) outcome = Default(arguments, answer);
  if (id > 0 && static_cast<std::size_t>(id) <= Members.size()) {
    outcome = std::next(Members.begin(), id - 1)->second(arguments, answer);
  }
  VariantClear(&ignored);
  return outcome;
}
