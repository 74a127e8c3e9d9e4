// The events as sinks get them, and what a sink may do inside one.
#include "Client.h"

#include <gtest/gtest.h>
#include <olectl.h>

namespace Tarnwise {
namespace {

enum Event : DISPID { kUnloadTarnwise = 1, kExportDirectBW = 2, kExportABScores = 4, kSendMasseges = 5 };

// A client whose sink is let go with it.
struct Listening : Client {
  explicit Listening(const WizardData& model) : Client(model), Listener(new Sink) {
    Cookie = Advised(Object.Get(), *Listener);
    Load();
    Points();
    Listener->Inside = [this](DISPID event, DISPPARAMS& parameters) {
      if (event == InEvent && Inside) Inside(parameters);
      if (event != kUnloadTarnwise || !Object || !Answers) return;
      EXPECT_EQ(Object->UnloadTarnwise(), S_OK);
    };
  }
  ~Listening() {
    Listener->Inside = nullptr;
    Listener->Release();
  }

  Sink* Listener;
  DWORD Cookie = 0;
  bool Answers = true;
  DISPID InEvent = 0;
  std::function<void(DISPPARAMS&)> Inside;
};

TEST(Events, OfTheDirectApproach) {
  Listening client(Judged(kDirectType));
  client.Finishes();
  EXPECT_EQ(client.Listener->Notes,
            Lines({
                "5(BSTR Select a method to make value judgments between the attributes.)",
                "5(BSTR Rank the attributes according to their relative importance.)",
                "5(BSTR  Indicate a value reference region on the two selected attributes.)",
                "2(BSTR DEA_DIRECT, I2 0, I2 2, &VARIANT R8 1.5, &[0..3] R8 1; R8 0.5; R8 1; R8 0.75, "
                "&[0..3] R8 1.125; R8 0.625; R8 1.125; R8 0.875, &[0..3] R8 0.875; R8 0.375; R8 0.875; R8 0.625)",
                "1(I2 3, BOOL -1)",
            }));
  EXPECT_TRUE(client.Forms().empty());
}

TEST(Events, OfTheTradeOffApproach) {
  Listening client(Judged(kTradeOffsType));
  client.Finishes();
  ASSERT_EQ(client.Listener->Notes.size(), 6U) << testing::PrintToString(client.Listener->Notes);
  EXPECT_EQ(client.Listener->Notes[2], "5(BSTR  Give your preference between the two selected criteria.)");
  EXPECT_TRUE(client.Listener->Notes[3].starts_with("2(BSTR DEA_TRADEOFFS, I2 0, I2 2, &VARIANT R8 1.5, &[0..3] "));
  const String zeros = "&[0..3] R4 0; R4 0; R4 0; R4 0";
  const String none = "&[0..3] I2 0; I2 0; I2 0; I2 0";
  EXPECT_EQ(client.Listener->Notes[4], "4(" + zeros + ", " + zeros + ", " + zeros + ", " + zeros + ", " + none + ", " +
                                           zeros + ", " + zeros + ", " + zeros + ", " + zeros + ")");
  EXPECT_EQ(client.Listener->Notes[5], "1(I2 3, BOOL -1)");
}

TEST(Events, OfCancelling) {
  Listening client(ModelOf(2, 2));
  client.Run({[&] { client.Object->ShowTarnwise(); }, [&] { client.Click("cmdCancel"); }});
  EXPECT_EQ(client.Listener->Notes.back(), "1(I2 3, BOOL 0)");
}

TEST(Events, AnUnansweredEndLeavesTheSteps) {
  Listening client(ModelOf(2, 2));
  client.Answers = false;
  client.Run({[&] { client.Object->ShowTarnwise(); }, [&] { client.Click("cmdCancel"); }});
  EXPECT_EQ(client.Forms(), Lines({"frmTRNSelMethod"}));
}

TEST(Events, WhatASinkWritesByReferenceIsTheWizards) {
  Listening client(Judged(kDirectType));
  client.Answers = false;
  client.InEvent = kExportDirectBW;
  client.Inside = [](DISPPARAMS& parameters) {
    VARIANT* const argument = parameters.rgvarg;  // the last one first
    *argument[3].pvarVal = Of(2.25);
    LONG subscript = 1;
    VARIANT written = Of(0.625);
    EXPECT_EQ(SafeArrayPutElement(*argument[2].pparray, &subscript, &written), S_OK);
    VARIANT null = {};
    null.vt = VT_UNKNOWN;  // of no use to the wizard
    subscript = 3;
    EXPECT_EQ(SafeArrayPutElement(*argument[1].pparray, &subscript, &null), S_OK);
    SafeArrayDestroy(*argument[0].pparray);
    *argument[0].pparray = Variants(1, {0.25, 0.125});  // subscripts 1 and 2
  };
  client.Finishes();
  const WizardData& data = *client.Data;
  EXPECT_EQ(std::get<Double>(data.RefAttWR), 2.25);
  EXPECT_EQ(std::get<Double>(data.Weights[1]), 0.625);
  EXPECT_EQ(std::get<Double>(data.Weights[3]), 0.75);
  EXPECT_EQ(std::get<Double>(data.WeightsH[3]), 0.875);
  EXPECT_EQ(std::get<Double>(data.WeightsL[0]), 0.875);
  EXPECT_EQ(std::get<Double>(data.WeightsL[1]), 0.25);
  EXPECT_EQ(std::get<Double>(data.WeightsL[2]), 0.125);
  EXPECT_EQ(std::get<Double>(data.WeightsL[3]), 0.625);
}

TEST(Events, ASinkMayThrowAwayAnArray) {
  Listening client(Judged(kDirectType));
  client.InEvent = kExportDirectBW;
  client.Inside = [](DISPPARAMS& parameters) {
    SafeArrayDestroy(*parameters.rgvarg[0].pparray);
    *parameters.rgvarg[0].pparray = nullptr;
  };
  client.Finishes();
  EXPECT_EQ(std::get<Double>(client.Data->WeightsL[1]), 0.375);
}

TEST(Events, EverySinkGetsThemAndSeesWhatTheOneBeforeWrote) {
  Listening client(Judged(kDirectType));
  Sink* const second = new Sink;
  Advised(client.Object.Get(), *second);
  client.Listener->Answer = E_FAIL;
  client.InEvent = kExportDirectBW;
  client.Inside = [](DISPPARAMS& parameters) { *parameters.rgvarg[3].pvarVal = Of(4.5); };
  client.Finishes();
  ASSERT_EQ(second->Notes.size(), client.Listener->Notes.size());
  EXPECT_TRUE(second->Notes[3].starts_with("2(BSTR DEA_DIRECT, I2 0, I2 2, &VARIANT R8 4.5, ")) << second->Notes[3];
  EXPECT_EQ(second->Notes.back(), "1(I2 3, BOOL -1)");
  second->Release();
}

#ifdef _WIN64  // with 32 bits an exception of another module can't be caught by anybody but that module
TEST(Events, ASinkMayThrow) {
  Listening client(Judged(kDirectType));
  client.InEvent = kExportDirectBW;
  client.Inside = [](DISPPARAMS&) { throw std::runtime_error("the sink is out of order"); };
  client.Finishes();
  EXPECT_EQ(client.Listener->Notes.back(), "1(I2 3, BOOL -1)");
  EXPECT_TRUE(Only(client.Notes, "msgbox").empty());
}
#endif

TEST(Events, ASinkWithoutTheEventInterfaceIsCalledByNumbers) {
  Client client(ModelOf(1, 1));
  Sink* const sink = new Sink;
  sink->KnowsEvents = false;
  Advised(client.Object.Get(), *sink);
  client.Object->ShowTarnwise();
  EXPECT_EQ(sink->Notes.size(), 1U);
  sink->Release();
}

TEST(Connections, ComeAndGo) {
  Client client(ModelOf(1, 1));
  bool gone = false;
  Sink* const sink = new Sink;
  sink->Gone = &gone;
  const DWORD first = Advised(client.Object.Get(), *sink);
  const DWORD second = Advised(client.Object.Get(), *sink);
  EXPECT_NE(first, 0U);
  EXPECT_NE(first, second);
  const ComRef<IConnectionPoint> point = PointOf(client.Object.Get());
  EXPECT_EQ(point->Unadvise(first), S_OK);
  EXPECT_EQ(point->Unadvise(first), CONNECT_E_NOCONNECTION);
  client.Object->ShowTarnwise();
  EXPECT_EQ(sink->Notes.size(), 1U);
  EXPECT_EQ(point->Unadvise(second), S_OK);
  EXPECT_EQ(sink->References, 1U);
  EXPECT_EQ(Advised(client.Object.Get(), *sink), second + 1);
  sink->Release();
  EXPECT_FALSE(gone);
  client.Object = {};
  EXPECT_FALSE(gone) << "the connection point still holds the object";
}

TEST(Connections, EndWithTheObject) {
  Client client(ModelOf(1, 1));
  bool gone = false;
  Sink* const sink = new Sink;
  sink->Gone = &gone;
  Advised(client.Object.Get(), *sink);
  sink->Release();
  EXPECT_FALSE(gone);
  EXPECT_EQ(client.LetGo(), S_OK);
  EXPECT_TRUE(gone);
}

TEST(Connections, AreRefusedToWhatIsNoSink) {
  struct Nothing final : IUnknown {
    STDMETHODIMP QueryInterface(REFIID, void** object) override {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
  } nothing;
  const Client client(ModelOf(1, 1));
  const ComRef<IConnectionPoint> point = PointOf(client.Object.Get());
  DWORD cookie = 7;
  EXPECT_EQ(point->Advise(&nothing, &cookie), CONNECT_E_CANNOTCONNECT);
  EXPECT_EQ(cookie, 0U);
  EXPECT_EQ(point->Advise(nullptr, &cookie), E_POINTER);
  EXPECT_EQ(point->Unadvise(0), CONNECT_E_NOCONNECTION);
}

TEST(Connections, AreFoundByTheirInterfaceAndListed) {
  const Client client(ModelOf(1, 1));
  const ComRef<IConnectionPoint> point = PointOf(client.Object.Get());
  ComRef<IConnectionPointContainer> container;
  ASSERT_EQ(point->GetConnectionPointContainer(container.Receive()), S_OK);
  ComRef<IConnectionPoint> other;
  EXPECT_EQ(container->FindConnectionPoint(IID__TRN_DEA, other.Receive()), CONNECT_E_NOCONNECTION);
  IID iid = {};
  EXPECT_EQ(point->GetConnectionInterface(&iid), S_OK);
  EXPECT_EQ(iid, DIID___TRN_DEA);

  ComRef<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Receive()), S_OK);
  ULONG fetched = 0;
  EXPECT_EQ(points->Next(1, other.Receive(), &fetched), S_OK);
  EXPECT_EQ(other.Get(), point.Get());
  EXPECT_EQ(points->Next(1, other.Receive(), &fetched), S_FALSE);
  EXPECT_EQ(fetched, 0U);
}

TEST(Connections, AreEnumerated) {
  const Client client(ModelOf(1, 1));
  Sink* const sink = new Sink;
  const DWORD first = Advised(client.Object.Get(), *sink);
  const DWORD second = Advised(client.Object.Get(), *sink);
  ComRef<IEnumConnections> all;
  ASSERT_EQ(PointOf(client.Object.Get())->EnumConnections(all.Receive()), S_OK);
  CONNECTDATA data[3] = {};
  ULONG fetched = 0;
  EXPECT_EQ(all->Next(3, data, &fetched), S_FALSE);
  EXPECT_EQ(fetched, 2U);
  EXPECT_EQ(data[0].dwCookie, first);
  EXPECT_EQ(data[1].dwCookie, second);
  EXPECT_EQ(data[0].pUnk, static_cast<IUnknown*>(sink));
  for (ULONG i = 0; i < fetched; ++i) data[i].pUnk->Release();
  EXPECT_EQ(all->Reset(), S_OK);
  EXPECT_EQ(all->Skip(1), S_OK);
  ComRef<IEnumConnections> clone;
  ASSERT_EQ(all->Clone(clone.Receive()), S_OK);
  EXPECT_EQ(all->Skip(2), S_FALSE);
  EXPECT_EQ(clone->Next(1, data, nullptr), S_OK);
  EXPECT_EQ(data[0].dwCookie, second);
  data[0].pUnk->Release();
  sink->Release();
}

// What a sink does inside an event, for every event of a run.
class Inside : public testing::TestWithParam<std::pair<const char*, DISPID>> {
 protected:
  Inside() : client(Judged(GetParam().second == kExportABScores ? kTradeOffsType : kDirectType)) {
    client.InEvent = GetParam().second;
  }

  // The sink does this in the event, each time or the first time only.
  void Do(const std::function<void()>& what) {
    client.Answers = false;
    client.Inside = [this, what](DISPPARAMS&) {
      if (done) return;
      done = true;
      what();
    };
    client.Finishes();
    EXPECT_TRUE(done);
    EXPECT_TRUE(Only(client.Notes, "error").empty()) << testing::PrintToString(client.Notes);
  }

  Listening client;
  bool done = false;
};

TEST_P(Inside, TheStepsMayBeUnloaded) {
  client.Last = {};
  const bool prompt = GetParam().second == kSendMasseges;
  client.Answers = false;
  client.Inside = [this](DISPPARAMS&) {
    if (done) return;
    done = true;
    EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
  };
  if (prompt) {
    EXPECT_EQ(client.Object->ShowTarnwise(), S_OK);
  } else {
    client.Finishes();
  }
  EXPECT_TRUE(done);
  EXPECT_TRUE(client.Forms().empty());
  EXPECT_TRUE(Only(client.Notes, "error").empty());
  EXPECT_EQ(client.LetGo(), S_OK);
}

TEST_P(Inside, TheObjectMayBeLetGo) {
  const bool prompt = GetParam().second == kSendMasseges;
  std::size_t heard = 0;
  client.Inside = [&](DISPPARAMS&) {
    heard = client.Listener->Notes.size();
    EXPECT_EQ(client.LetGo(), S_FALSE) << "its event is still running";
  };
  if (prompt) {
    _TRN_DEA* const object = client.Object.Get();
    EXPECT_EQ(object->ShowTarnwise(), S_OK);
  } else {
    client.Finishes();
  }
  EXPECT_NE(heard, 0U);
  EXPECT_EQ(client.Listener->Notes.size(), heard) << "an object that is gone tells nothing";
  EXPECT_TRUE(client.Forms().empty());
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST_P(Inside, ASinkMayDisconnectItselfAndTheNext) {
  Sink* const next = new Sink;
  const DWORD cookie = Advised(client.Object.Get(), *next);
  std::size_t heard = 0;
  Do([&] {
    heard = next->Notes.size();
    EXPECT_EQ(PointOf(client.Object.Get())->Unadvise(client.Cookie), S_OK);
    EXPECT_EQ(PointOf(client.Object.Get())->Unadvise(cookie), S_OK);
  });
  EXPECT_EQ(next->Notes.size(), heard);
  EXPECT_EQ(next->Release(), 0U);
  EXPECT_EQ(client.Listener->References, 1U);
}

TEST_P(Inside, ASinkMayConnectAnother) {
  Sink* const late = new Sink;
  Do([&] { Advised(client.Object.Get(), *late); });
  const String own = std::to_string(GetParam().second) + "(";
  if (GetParam().second != kSendMasseges) {
    EXPECT_TRUE(Only(late->Notes, own).empty()) << "not for the event itself";
  }
  EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
  client.Object = {};
  EXPECT_EQ(late->Release(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Events, Inside,
                         testing::Values(std::pair{"UnloadTarnwise", DISPID{kUnloadTarnwise}},
                                         std::pair{"ExportDirectBW", DISPID{kExportDirectBW}},
                                         std::pair{"ExportABScores", DISPID{kExportABScores}},
                                         std::pair{"SendMasseges", DISPID{kSendMasseges}}),
                         [](const auto& event) { return String(event.param.first); });

// The steps' code must not go away under a host that lets go from within its own message loop.
TEST(Lifetime, ARunningStepKeepsTheModuleLoaded) {
  ComRef<_TRN_DEA> object;
  ASSERT_EQ(Factory()->CreateInstance(nullptr, IID__TRN_DEA, reinterpret_cast<void**>(object.Receive())), S_OK);
  ComRef<ITarnwisePlayerAccess> access;
  std::shared_ptr<Platform>* screen = nullptr;
  WizardData* data = nullptr;
  ASSERT_EQ(object->QueryInterface(IID_ITarnwisePlayerAccess, reinterpret_cast<void**>(access.Receive())), S_OK);
  ASSERT_EQ(access->Access(&screen, &data), S_OK);
  std::shared_ptr<Platform> held = *screen;  // as the handler of a step holds it
  access = {};
  object = {};
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  held.reset();
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace Tarnwise
