// The component as hosts find it: by the registry, or by a manifest beside the program.
#include "Client.h"
#include "com/Convert.h"

#include <gtest/gtest.h>

#include <thread>

namespace Tarnwise {
namespace {

ComRef<_TRN_DEA> MadeById() {
  ComRef<_TRN_DEA> object;
  void** const receiver = reinterpret_cast<void**>(object.Receive());
  EXPECT_EQ(CoCreateInstance(CLSID_TRN_DEA, nullptr, CLSCTX_INPROC_SERVER, IID__TRN_DEA, receiver), S_OK);
  return object;
}

ComRef<_TRN_DEA> MadeByName() {
  CLSID clsid = {};
  EXPECT_EQ(CLSIDFromProgID(L"Tarnwise_DEA.TRN_DEA", &clsid), S_OK);
  EXPECT_EQ(clsid, CLSID_TRN_DEA);
  return MadeById();
}

void ExpectEvents(_TRN_DEA* object) {
  Sink* const sink = new Sink;
  const DWORD cookie = Advised(object, *sink);
  EXPECT_EQ(object->ShowTarnwise(), S_OK);
  EXPECT_EQ(sink->Notes, Lines({"5(BSTR Select a method to make value judgments between the attributes.)"}));
  EXPECT_EQ(object->UnloadTarnwise(), S_OK);
  EXPECT_EQ(PointOf(object)->Unadvise(cookie), S_OK);
  sink->Release();
}

TEST(Registered, FoundByItsName) {
  const ComRef<_TRN_DEA> object = MadeByName();
  ASSERT_TRUE(object);
  ExpectEvents(object.Get());
}

TEST(Registered, LateBoundByItsName) {
  const ComRef<_TRN_DEA> object = MadeByName();
  ASSERT_TRUE(object);
  EXPECT_EQ(CallLate(object.Get(), L"ShowTarnwise", {}).Outcome, S_OK);
  EXPECT_EQ(CallLate(object.Get(), L"UnloadTarnwise", {}).Outcome, S_OK);
}

TEST(Registered, SoIsItsTypeLibrary) {
  ComRef<ITypeLib> library;
  EXPECT_EQ(LoadRegTypeLib(LIBID_Tarnwise_DEA, 1, 0, LOCALE_NEUTRAL, library.Receive()), S_OK);
}

// A host without an apartment of its own kind gets the object in one, and calls and events by proxy.
TEST(Registered, ReachedFromAMultithreadedApartment) {
  std::thread([] {
    ASSERT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
    {
      const ComRef<_TRN_DEA> object = MadeByName();
      ASSERT_TRUE(object);
      ExpectEvents(object.Get());
      SAFEARRAY* zeros = Variants(0, {0, 0});
      EXPECT_EQ(object->TranferABCoordinates(&zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros),
                S_OK);
      SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
      SAFEARRAY* square = SafeArrayCreate(VT_VARIANT, 2, bounds);
      EXPECT_EQ(object->TranferABCoordinates(&square, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros),
                static_cast<HRESULT>(0x800A0009U));
      SafeArrayDestroy(zeros);
      SafeArrayDestroy(square);
    }
    CoUninitialize();
  }).join();
}

TEST(Manifest, FindsTheComponentUnregistered) {
  CLSID clsid = {};
  ASSERT_NE(CLSIDFromProgID(L"Tarnwise_DEA.TRN_DEA", &clsid), S_OK) << "it is registered";
  ACTCTXW context = {};
  context.cbSize = sizeof(context);
  context.lpSource = L"Application.manifest";
  const HANDLE made = CreateActCtxW(&context);
  ASSERT_NE(made, INVALID_HANDLE_VALUE) << GetLastError();
  ULONG_PTR cookie = 0;
  ASSERT_TRUE(ActivateActCtx(made, &cookie));
  {
    const ComRef<_TRN_DEA> object = MadeById();
    EXPECT_TRUE(object);
    if (object) ExpectEvents(object.Get());
  }
  DeactivateActCtx(0, cookie);
  ReleaseActCtx(made);
}

}  // namespace
}  // namespace Tarnwise
