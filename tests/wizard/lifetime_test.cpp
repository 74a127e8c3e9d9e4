// What a host may do inside an event: unload the steps, let the object go, begin anew. Handlers of all the steps that
// led there are still running then.
#include "Places.h"

#include <stdexcept>

namespace Tarnwise {
namespace {

VariantArray Zeros() { return VariantArray(4, Variant(0.0)); }

void GivePoints(TRN_DEA& object) {
  const VariantArray zeros = Zeros();
  object.TranferABCoordinates(zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros);
}

// An event, the approach on the way to it, and the steps after which it comes for the `Time`th time.
struct Moment {
  const char* Name;
  String Event;
  int Approach = 0;  // of the stored judgments too
  bool Stored = true;
  int Time = 1;
  enum class Way { FirstStep, Ordering, References, Judgments, Results } Place = Way::FirstStep;
  const char* Last = nullptr;  // the button that leads to it; null: the way itself
};

using Way = Moment::Way;

void PrintTo(const Moment& moment, std::ostream* out) { *out << moment.Name; }

const Moment kMoments[] = {
    {"LoadOfTheFirstStep", "SendMasseges", 0, true, 1, Way::FirstStep, nullptr},
    {"LoadOfTheOrderingStep", "SendMasseges", 0, true, 2, Way::Ordering, nullptr},
    {"LoadOfTheDirectStep", "SendMasseges", 0, true, 3, Way::Judgments, nullptr},
    {"LoadOfTheDirectStepUnjudged", "SendMasseges", 0, false, 3, Way::Judgments, nullptr},
    {"LoadOfTheTradeOffStep", "SendMasseges", 1, true, 3, Way::Judgments, nullptr},
    {"RestartOfTheDirectStep", "SendMasseges", 0, true, 4, Way::Judgments, "cmdReStart"},
    {"CancelOfTheFirstStep", "UnloadTarnwise", 0, true, 1, Way::FirstStep, "cmdCancel"},
    {"CancelOfTheOrderingStep", "UnloadTarnwise", 0, true, 1, Way::Ordering, "cmdCancel"},
    {"CancelOfTheReferences", "UnloadTarnwise", 0, true, 1, Way::References, "cmdCancel"},
    {"CancelOfTheDirectStep", "UnloadTarnwise", 0, true, 1, Way::Judgments, "cmdCancel"},
    {"CancelOfTheTradeOffStep", "UnloadTarnwise", 1, true, 1, Way::Judgments, "cmdCancel"},
    {"CancelOfTheDirectResults", "UnloadTarnwise", 0, true, 1, Way::Results, "cmdCancel"},
    {"CancelOfTheTradeOffResults", "UnloadTarnwise", 1, true, 1, Way::Results, "cmdCancel"},
    {"ExportOfTheDirectStep", "ExportDirectBW", 0, true, 1, Way::Judgments, "cmdFinish"},
    {"ExportOfTheDirectResults", "ExportDirectBW", 0, true, 1, Way::Results, "cmdFinish"},
    {"ExportOfTheTradeOffStep", "ExportDirectBW", 1, true, 1, Way::Judgments, "cmdFinish"},
    {"ExportOfTheTradeOffResults", "ExportDirectBW", 1, true, 1, Way::Results, "cmdFinish"},
    {"ExportOfThePoints", "ExportABScores", 1, true, 1, Way::Judgments, "cmdFinish"},
    {"EndOfTheDirectStep", "UnloadTarnwise", 0, true, 1, Way::Judgments, "cmdFinish"},
    {"EndOfTheTradeOffStep", "UnloadTarnwise", 1, true, 1, Way::Judgments, "cmdFinish"},
};

class InsideAnEvent : public testing::TestWithParam<Moment> {
 protected:
  InsideAnEvent()
      : host(GetParam().Stored ? Wizarding::Judged(GetParam().Approach == 0 ? kDirectType : kTradeOffsType)
                               : Wizarding::Model()) {
    host.Load();
    GivePoints(*host.Wizard);
    host.Answers = false;
  }

  Steps Road() {
    Steps steps;
    const Way place = GetParam().Place;
    if (!GetParam().Stored) {
      steps = host.ToJudgments();
    } else {
      steps = {host.Shows()};
      if (place >= Way::Ordering) steps.push_back(host.Clicks("cmdNext"));
      if (place >= Way::References) steps.push_back(host.Clicks("cmdNext"));
      if (place >= Way::Judgments) steps.push_back(host.Clicks("cmdNext"));
      if (place >= Way::Results) steps.push_back(host.Clicks("cmdNext"));
    }
    if (GetParam().Last != nullptr) steps.push_back(host.Clicks(GetParam().Last));
    return steps;
  }

  // Goes the road and does this once, inside the event.
  void Do(const std::function<void()>& inside) {
    int times = 0;
    host.InEvent = [&](const String& event) {
      if (event != GetParam().Event || ++times != GetParam().Time) return;
      done = true;
      inside();
    };
    host.Run(Road());
    host.InEvent = nullptr;
    ASSERT_TRUE(done) << "the event did not come: " << testing::PrintToString(host.Notes);
    EXPECT_FALSE(host.StepsLeft());
    EXPECT_TRUE(Only(host.Notes, "error").empty()) << testing::PrintToString(host.Notes);
    EXPECT_EQ(host.Screen->HandlerDepth, 0);
    EXPECT_EQ(host.Screen->Pointer(), 0);
  }

  // Nothing is left that a user could still act on.
  void ExpectNothingOpen() {
    EXPECT_TRUE(host.Screen->Forms().empty()) << testing::PrintToString(host.Forms());
    EXPECT_EQ(host.Screen->ActiveForm(), nullptr);
  }

  bool done = false;
  Wizarding host;
};

TEST_P(InsideAnEvent, TheStepsMayBeUnloaded) {
  Do([this] { host.Wizard->UnloadTarnwise(); });
  ExpectNothingOpen();
}

TEST_P(InsideAnEvent, TheStepsMayBeUnloadedTwice) {
  Do([this] {
    host.Wizard->UnloadTarnwise();
    host.Wizard->UnloadTarnwise();
  });
  ExpectNothingOpen();
}

TEST_P(InsideAnEvent, TheObjectMayBeLetGo) {
  Do([this] { host.Wizard.reset(); });
  ExpectNothingOpen();
}

TEST_P(InsideAnEvent, TheObjectMayBeUnloadedAndLetGo) {
  Do([this] {
    host.Wizard->UnloadTarnwise();
    host.Wizard.reset();
  });
  ExpectNothingOpen();
}

TEST_P(InsideAnEvent, AnObjectThatIsLetGoRaisesNothingMore) {
  Lines before;
  Do([this, &before] {
    host.Wizard.reset();
    before = host.Notes;
  });
  const Lines after(host.Notes.begin() + static_cast<std::ptrdiff_t>(before.size()), host.Notes.end());
  for (const char* event : {"say", "export", "unload"}) EXPECT_TRUE(Only(after, event).empty()) << event;
}

TEST_P(InsideAnEvent, TheWizardMayBeShownAnew) {
  Do([this] {
    host.Wizard->UnloadTarnwise();
    host.Wizard->ShowTarnwise();
  });
  EXPECT_EQ(host.Forms(), Lines({"frmTRNSelMethod"}));
  EXPECT_EQ(host.Active(), "frmTRNSelMethod");
  host.TakeNotes();
  host.Run({host.Clicks("cmdNext"), [this] { EXPECT_EQ(host.Active(), "frmIniImpOrder"); }, host.Clicks("cmdBack")});
  EXPECT_EQ(host.Active(), "frmTRNSelMethod");
}

TEST_P(InsideAnEvent, AnotherObjectMayTakeItsPlace) {
  Do([this] {
    host.Wizard = std::make_unique<TRN_DEA>(host.Screen);
    host.Load();
    host.Wizard->ShowTarnwise();
  });
  EXPECT_EQ(host.Forms(), Lines({"frmTRNSelMethod"}));
  host.Run({host.Clicks("cmdNext"), [this] { EXPECT_EQ(host.Active(), "frmIniImpOrder"); }});
}

TEST_P(InsideAnEvent, AnotherModelMayBeLoadedWhenTheStepsAreUnloaded) {
  Do([this] {
    host.Wizard->UnloadTarnwise();
    WriteModel(host.Folder.File("model.kst"), ModelOf(1, 0));
    host.Load();
  });
  ExpectNothingOpen();
  EXPECT_EQ(mdTRNMain().NumAtts(), 1);
}

TEST_P(InsideAnEvent, TheHostsFaultIsToldToTheUserOrToItsOwnCall) {
  bool thrown = false;
  host.InEvent = [&, times = 0](const String& event) mutable {
    if (event != GetParam().Event || ++times != GetParam().Time) return;
    thrown = true;
    throw std::runtime_error("the host is out of order");
  };
  Steps road = Road();
  bool reached = false;
  try {
    host.Run(road);
  } catch (const std::runtime_error&) {
    reached = true;
  }
  host.InEvent = nullptr;
  ASSERT_TRUE(thrown);
  EXPECT_EQ(host.Screen->HandlerDepth, 0);
  EXPECT_NE(reached, !Only(host.Notes, "the host is out of order").empty());
}

TEST_P(InsideAnEvent, AFaultOfTheHostLeavesTheUserAForm) {
  bool thrown = false;
  Lines visible;
  host.InEvent = [&, times = 0](const String& event) mutable {
    if (event != GetParam().Event || ++times != GetParam().Time) return;
    thrown = true;
    throw std::runtime_error("the host is out of order");
  };
  Steps road = Road();
  road.push_back([&] {
    for (const Form* form : host.Screen->Forms()) {
      if (form->Visible) visible.push_back(form->Name);
    }
    EXPECT_EQ(host.Screen->Pointer(), 0);
  });
  const bool byTheHostsOwnCall = GetParam().Place == Way::FirstStep && GetParam().Last == nullptr;
  if (byTheHostsOwnCall) {
    EXPECT_THROW(host.Run(road), std::runtime_error);
    EXPECT_TRUE(host.Screen->Forms().empty()) << "the step that could not be loaded is gone";
  } else {
    host.Run(road);
    EXPECT_EQ(visible.size(), 1U) << testing::PrintToString(visible);
  }
  host.InEvent = nullptr;
  ASSERT_TRUE(thrown);
}

INSTANTIATE_TEST_SUITE_P(Wizard, InsideAnEvent, testing::ValuesIn(kMoments),
                         [](const testing::TestParamInfo<Moment>& moment) { return String(moment.param.Name); });

TEST(Lifetime, TheObjectMayBeLetGoWhereverTheUserIs) {
  constexpr std::size_t kSteps = 12;
  for (std::size_t done = 0; done <= kSteps; ++done) {
    Wizarding host(Wizarding::Model());
    host.Load();
    Steps steps = host.ToJudgments();
    ASSERT_EQ(steps.size(), kSteps);
    steps.resize(done);
    steps.push_back([&host] { host.Wizard.reset(); });
    host.Run(steps);
    EXPECT_TRUE(host.Screen->Forms().empty()) << done;
    EXPECT_FALSE(host.StepsLeft()) << done;
  }
}

TEST(Lifetime, NothingIsLeftBehindByAnObjectThatWasNeverUnloaded) {
  std::weak_ptr<Form> method;
  std::weak_ptr<Form> ordering;
  std::weak_ptr<Form> direct;
  {
    Wizarding host(Wizarding::Judged());
    host.Load();
    host.Run(Wizarding::Joined(host.ToStoredJudgments(), {[&] {
                                                            method = host.Screen->Forms().at(0)->shared_from_this();
                                                            ordering = host.Screen->Forms().at(1)->shared_from_this();
                                                            direct = host.Screen->Forms().at(2)->shared_from_this();
                                                          },
                                                          [&] { host.Wizard.reset(); }}));
    EXPECT_TRUE(method.expired());
    EXPECT_TRUE(ordering.expired());
    EXPECT_TRUE(direct.expired());
  }
}

TEST(Lifetime, AStepLivesAsLongAsItsHandlerRuns) {
  Wizarding host(Wizarding::Judged());
  host.Load();
  std::weak_ptr<Form> direct;
  host.InEvent = [&](const String& event) {
    if (event != "UnloadTarnwise") return;
    host.Wizard->UnloadTarnwise();
    EXPECT_FALSE(direct.expired());
  };
  host.Run(
      Wizarding::Joined(host.ToStoredJudgments(),
                        {[&] { direct = host.Screen->Forms().at(2)->shared_from_this(); }, host.Clicks("cmdFinish")}));
  EXPECT_TRUE(direct.expired());
}

TEST(Lifetime, ADragThatIsUnderWayEndsWithItsForm) {
  Wizarding host(Wizarding::Model());
  host.Load();
  host.Run(Wizarding::Joined(host.ToOrdering(), {[&] {
                               host.Screen->Drag.Begin(host.Named("cmdAttA(0)"));
                               host.Screen->Drag.Over(host.Named("picOrder(0)"), 1.0F, 1.0F);
                               host.Wizard->UnloadTarnwise();
                               EXPECT_FALSE(host.Screen->Drag.Active());
                               host.Screen->Drag.Drop();
                             }}));
  EXPECT_TRUE(host.Screen->Forms().empty());
}

TEST(Lifetime, ADragEndsWhenItsButtonIsTakenAway) {
  Wizarding host(Wizarding::Judged());
  host.Load();
  host.Run(Wizarding::Joined(host.ToOrdering(), {[&] {
                               host.Screen->Drag.Begin(host.Named("cmdAttB(1)"));
                               host.Click("cmdResetB");
                               EXPECT_FALSE(host.Screen->Drag.Active());
                               host.Screen->Drag.Drop();
                               EXPECT_TRUE(Only(host.Notes, "error").empty());
                             }}));
}

TEST(Lifetime, MovingTheObjectKeepsItsSteps) {
  const TestScreen screen;
  TRN_DEA first(screen.Screen);
  first.ShowTarnwise();
  TRN_DEA second(std::move(first));
  EXPECT_EQ(screen.Forms(), Lines({"frmTRNSelMethod"}));
  second.UnloadTarnwise();
  EXPECT_TRUE(screen.Forms().empty());
}

TEST(Lifetime, AScriptsNewObjectEndsTheWizardWhereverItStands) {
  Session s(Wizarding::Judged());
  for (const char* given : {"host show", "host show\nclick cmdNext", "host show\nclick cmdNext\nclick cmdNext",
                            "host show\nclick cmdNext\nclick cmdNext\nclick cmdNext"}) {
    const Lines lines = s.Play(String(given) + "\nhost new\nforms\nhost show\nclick cmdNext\nforms");
    const Lines forms = Only(lines, R"({"forms")");
    ASSERT_EQ(forms.size(), 2U);
    EXPECT_EQ(forms[0], R"({"forms":[]})");
    EXPECT_EQ(forms[1], R"({"forms":[{"name":"frmTRNSelMethod","visible":false,"modal":false},)"
                        R"({"name":"frmIniImpOrder","visible":true,"modal":true}]})");
    EXPECT_EQ(s.Status(), 0);
  }
}

}  // namespace
}  // namespace Tarnwise
