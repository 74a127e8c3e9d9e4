#include "com/Errors.h"

#include "com/Convert.h"
#include "runtime/windows/ComRef.h"

#include <Tarnwise_DEA.h>
#include <new>

namespace Tarnwise {

namespace {

constexpr unsigned kRuntimeErrors = 0x800A0000U;  // run-time error n is this plus n

void TellCaller(const char* description) noexcept {
  ComRef<ICreateErrorInfo> created;
  if (FAILED(CreateErrorInfo(created.Receive()))) return;
  Bstr text(nullptr);
  try {
    text = Bstr(ToBSTR(description));
  } catch (...) {
    return;
  }
  created->SetGUID(IID__TRN_DEA);
  created->SetSource(const_cast<LPOLESTR>(kProgId));
  created->SetDescription(text.Get());
  ComRef<IErrorInfo> info;
  if (SUCCEEDED(created->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(info.Receive())))) {
    SetErrorInfo(0, info.Get());
  }
}

}  // namespace

void Check(HRESULT outcome, const char* description) {
  if (outcome == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(outcome)) throw ComFailure(outcome, description);
}

HRESULT CurrentFailure() noexcept {
  try {
    throw;
  } catch (const RuntimeError& error) {
    TellCaller(error.what());
    return static_cast<HRESULT>(kRuntimeErrors + static_cast<unsigned>(error.Number()));
  } catch (const ComFailure& failure) {
    TellCaller(failure.what());
    return failure.Code();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception& error) {
    TellCaller(error.what());
    return E_FAIL;
  } catch (...) {
    TellCaller("An unexpected error.");
    return E_FAIL;
  }
}

HRESULT FillException(HRESULT failure, EXCEPINFO* exception) noexcept {
  ComRef<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) != S_OK) info = {};
  if (exception == nullptr) return DISP_E_EXCEPTION;
  *exception = {};
  exception->scode = failure;
  if (info) {
    info->GetDescription(&exception->bstrDescription);
    info->GetSource(&exception->bstrSource);
  }
  return DISP_E_EXCEPTION;
}

}  // namespace Tarnwise
