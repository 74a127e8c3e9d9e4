// The object as COM sees it: identity, lifetime, threads.
#include "Client.h"
#include "com/Convert.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <thread>

namespace Tarnwise {
namespace {

template <class T>
ComRef<T> As(IUnknown* object, REFIID iid) {
  ComRef<T> reference;
  EXPECT_EQ(object->QueryInterface(iid, reinterpret_cast<void**>(reference.Receive())), S_OK);
  return reference;
}

TEST(Object, HasOneIdentityByWhicheverInterface) {
  const Client client(ModelOf(1, 1));
  const IID iids[] = {IID_IUnknown,           IID_IDispatch,         IID__TRN_DEA,
                      IID_ISupportErrorInfo,  IID_IProvideClassInfo, IID_IConnectionPointContainer,
                      IID_IProvideClassInfo2, IID_ITarnwiseHelp,     IID_ITarnwisePlayerAccess};
  const ComRef<IUnknown> identity = As<IUnknown>(client.Object.Get(), IID_IUnknown);
  for (const IID& from : iids) {
    const ComRef<IUnknown> first = As<IUnknown>(client.Object.Get(), from);
    EXPECT_EQ(As<IUnknown>(first.Get(), IID_IUnknown).Get(), identity.Get());
    for (const IID& to : iids) EXPECT_TRUE(As<IUnknown>(first.Get(), to));
  }
}

TEST(Object, RefusesInterfacesThatItLacks) {
  const Client client(ModelOf(1, 1));
  void* object = &object;
  EXPECT_EQ(client.Object->QueryInterface(IID_IStream, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(client.Object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST(Object, CountsItsReferences) {
  const Client client(ModelOf(1, 1));
  EXPECT_EQ(client.Object->AddRef(), 2U);
  EXPECT_EQ(client.Object->Release(), 1U);
}

TEST(Object, CannotBeAggregated) {
  const Client client(ModelOf(1, 1));
  void* object = &object;
  EXPECT_EQ(Factory()->CreateInstance(client.Object.Get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
}

TEST(Object, LeavesNothingWhenItLacksTheInterfaceAskedFor) {
  void* object = &object;
  EXPECT_EQ(Factory()->CreateInstance(nullptr, IID_IStream, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Object, KeepsTheModuleLoadedWhileItLives) {
  Client client(ModelOf(1, 1));
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  EXPECT_EQ(client.LetGo(), S_OK);
}

TEST(Object, KeepsTheModuleLoadedWhileItsPartsLive) {
  Client client(ModelOf(1, 1));
  ComRef<IConnectionPoint> point = PointOf(client.Object.Get());
  ComRef<IEnumConnections> connections;
  ASSERT_EQ(point->EnumConnections(connections.Receive()), S_OK);
  EXPECT_EQ(client.LetGo(), S_FALSE);
  point = {};
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  connections = {};
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Object, AFactoryAndALockKeepTheModuleLoaded) {
  ComRef<IClassFactory> factory = Factory();
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  factory->LockServer(TRUE);
  factory = {};
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  Factory()->LockServer(FALSE);
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Object, NamesItsClassAndItsEvents) {
  const Client client(ModelOf(1, 1));
  const auto info = As<IProvideClassInfo2>(client.Object.Get(), IID_IProvideClassInfo2);
  GUID events = {};
  EXPECT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_EQ(events, DIID___TRN_DEA);
  EXPECT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID + 1, &events), E_INVALIDARG);
  ComRef<ITypeInfo> type;
  ASSERT_EQ(info->GetClassInfo(type.Receive()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_EQ(attributes->guid, CLSID_TRN_DEA);
  type->ReleaseTypeAttr(attributes);
}

TEST(Object, SpeaksOfErrorInformationForItsOwnInterface) {
  const Client client(ModelOf(1, 1));
  const auto support = As<ISupportErrorInfo>(client.Object.Get(), IID_ISupportErrorInfo);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID__TRN_DEA), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_ITarnwiseHelp), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IStream), S_FALSE);
}

// On a thread of its own, with what CoInitializeEx is given there; none with -1.
template <class Body>
void OnThread(int apartment, Body body) {
  std::thread([&] {
    if (apartment >= 0) CoInitializeEx(nullptr, static_cast<DWORD>(apartment));
    body();
    if (apartment >= 0) CoUninitialize();
  }).join();
}

TEST(Threads, AMultithreadedApartmentIsRefused) {
  OnThread(COINIT_MULTITHREADED, [] {
    void* object = &object;
    EXPECT_EQ(Factory()->CreateInstance(nullptr, IID_IUnknown, &object), CO_E_NOT_SUPPORTED);
    EXPECT_EQ(object, nullptr);
    EXPECT_NE(ErrorInfo().Description.find("COINIT_APARTMENTTHREADED"), String::npos);
  });
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Threads, AThreadWithoutAnApartmentIsRefused) {
  OnThread(-1, [] {
    void* object = &object;
    EXPECT_EQ(Factory()->CreateInstance(nullptr, IID_IUnknown, &object), CO_E_NOTINITIALIZED);
    EXPECT_EQ(object, nullptr);
  });
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Threads, AnyOtherSingleThreadedApartmentWillDo) {
  OnThread(COINIT_APARTMENTTHREADED, [] {
    ComRef<IUnknown> object;
    EXPECT_EQ(Factory()->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(object.Receive())), S_OK);
  });
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Threads, CallsFromAnotherThreadAreRefused) {
  Client client(ModelOf(1, 1));
  OnThread(COINIT_APARTMENTTHREADED, [&client] {
    EXPECT_EQ(client.Object->ShowTarnwise(), RPC_E_WRONG_THREAD);
    const Told told = ErrorInfo();
    EXPECT_NE(told.Description.find("COINIT_APARTMENTTHREADED"), String::npos);
    EXPECT_EQ(told.Source, "Tarnwise_DEA.TRN_DEA");
    const LateCall call = CallLate(client.Object.Get(), L"ShowTarnwise", {});
    EXPECT_EQ(call.Outcome, DISP_E_EXCEPTION);
    EXPECT_EQ(call.Exception.scode, RPC_E_WRONG_THREAD);
    DWORD cookie = 0;
    Sink* const sink = new Sink;
    EXPECT_EQ(PointOf(client.Object.Get())->Advise(sink, &cookie), RPC_E_WRONG_THREAD);
    EXPECT_EQ(sink->Release(), 0U);
  });
  EXPECT_TRUE(client.Screen->Forms().empty());
}

TEST(Threads, EachThreadHasItsOwnData) {
  Client client(ModelOf(2, 2));
  client.Load();
  OnThread(COINIT_APARTMENTTHREADED, [&client] {
    const Client other(ModelOf(1, 0));
    EXPECT_NE(other.Data, client.Data);
  });
  EXPECT_EQ(client.Data->NumAtts(), 4);
}

}  // namespace
}  // namespace Tarnwise
