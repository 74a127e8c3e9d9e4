// An object for scripts whose members are functions by name. It lives as long as its owner says, whatever the scripts
// count.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// The arguments in the order of the call, not to be freed by the member.
using ScriptMember = std::function<HRESULT(std::vector<VARIANT>& arguments, VARIANT* result)>;

struct ScriptObject final : IDispatch {
  std::map<std::wstring, ScriptMember> Members;  // by their names in lower case
  ScriptMember Default;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                      UINT*) override;
};
