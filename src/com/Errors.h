// Faults on their way to a COM caller. No exception crosses the border: each method's body runs inside Guarded, which
// turns what it throws into an HRESULT with error information.
#pragma once

#include <tarnwise/Scalars.h>

#include <windows.h>

#include <oleauto.h>

#include <stdexcept>

namespace Tarnwise {

constexpr const wchar_t* kProgId = L"Tarnwise_DEA.TRN_DEA";

// A fault with an HRESULT of its own.
class ComFailure : public std::runtime_error {
 public:
  ComFailure(HRESULT code, const String& description) : std::runtime_error(description), code_(code) {}
  HRESULT Code() const { return code_; }

 private:
  HRESULT code_;
};

// An argument of a late-bound call that is missing or of no use, by its place in the caller's list.
class ArgumentFailure : public ComFailure {
 public:
  ArgumentFailure(HRESULT code, UINT place) : ComFailure(code, "An argument can't be used."), place_(place) {}
  UINT Place() const { return place_; }

 private:
  UINT place_;
};

void Check(HRESULT outcome, const char* description);  // ComFailure when it failed

// The HRESULT of the exception that is being handled; its text becomes the thread's error information.
HRESULT CurrentFailure() noexcept;

template <class Body>
HRESULT Guarded(Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (...) {
    return CurrentFailure();
  }
}

// The thread's error information as a late-bound caller gets it: moved into `exception`, if there is one.
HRESULT FillException(HRESULT failure, EXCEPINFO* exception) noexcept;

}  // namespace Tarnwise
