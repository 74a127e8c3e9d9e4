// Where controls stand, what covers them, and which form takes input.
#include "view/Bench.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TEST(Place, AddsUpItsContainersInTheirScales) {
  const Bench bench;
  Place(bench.On->picHandle[0], 100, 50.5F, 6, 6);
  const Rect place = PlaceOnForm(bench.On->picHandle[0]);
  EXPECT_EQ(place.X, 3000.0F + 150.0F + 1500.0F);
  EXPECT_EQ(place.Y, 2500.0F + 150.0F + 757.5F);
  EXPECT_EQ(place.W, 90.0F);
}

TEST(Place, IsSeenAsFarAsTheViewportsLetIt) {
  const Bench bench;
  EXPECT_EQ(VisiblePlace(bench.On->picRow[0]).H, 500.0F);
  EXPECT_EQ(VisiblePlace(bench.On->picRow[3]).H, 0.0F);
  bench.On->picContent.Top = -300;
  EXPECT_EQ(VisiblePlace(bench.On->picRow[0]).H, 200.0F);
}

TEST(Place, IsSeenInBothDirectionsWithinItsContainersAndNotOutsideThem) {
  Bench bench;
  Label label(*bench.On, &bench.On->picContent, "label");
  const auto seen = [&](Single left, Single top, Single width, Single height) {
    Place(label, left, top, width, height);
    const Rect place = VisiblePlace(label);
    return std::vector<Double>{place.X, place.Y, place.W, place.H};
  };
  EXPECT_EQ(seen(200, 300, 100, 50), (std::vector<Double>{300, 2800, 100, 50}));
  EXPECT_EQ(seen(1500, 1000, 5000, 6000), (std::vector<Double>{1600, 3500, 500, 200}));
  EXPECT_EQ(seen(-70, -80, 100, 100), (std::vector<Double>{100, 2500, 30, 20}));
  EXPECT_EQ(seen(3000, 2000, 100, 100), (std::vector<Double>{3100, 4500, 0, 0}));
}

TEST(Place, OfAPointIsTheSameAfterItsWayToTheFormAndBack) {
  const Bench bench;
  PictureBox& handle = bench.On->picHandle[0];
  Place(handle, 33.37F, 147.3F, 6, 6);
  for (int k = 0; k < 1000; ++k) {
    const auto at = static_cast<Single>(k) * 0.337F;
    const ControlPoint back = InScaleOf(handle, OnForm(handle, {at, -at}));
    EXPECT_EQ(back.X, at);
    EXPECT_EQ(back.Y, -at);
  }
  const FormPoint middle = MiddleOnForm(bench.On->picRow[1]);
  EXPECT_EQ(middle.X, 1100.0);
  EXPECT_EQ(middle.Y, 2500.0 + 600.0 + 250.0);
}

TEST(Kinds, OfWhichTheNativeControlFollowsTheMouseACaptionIsCutARowIsPressedOrKeysAreAnswered) {
  Bench bench;
  BenchForm& form = *bench.On;
  const std::vector<Control*> all = {&form.lblText, &form.cmdGo,    &form.optOne, &form.chkBox,
                                     &form.lstRows, &form.txtFirst, &form.vsrBar, &form.picChart};
  const auto those = [&all](bool (*is)(const Control&)) {
    String names;
    for (const Control* control : all) names += is(*control) ? control->Name + " " : "";
    return names;
  };
  EXPECT_EQ(those(FollowsMouse), "cmdGo optOne chkBox txtFirst vsrBar ");
  EXPECT_EQ(those(HasCaption), "lblText cmdGo optOne chkBox ");
  EXPECT_EQ(those(HasRows), "lstRows ");
  EXPECT_EQ(those(AnswersKeys), "lstRows ");
  const ComboBox box(form, &form, "box");
  const ImageCombo combo(form, &form, "combo");
  const Grid grid(form, &form, "grid");
  const TabStrip strip(form, &form, "strip");
  EXPECT_TRUE(AnswersKeys(box));
  EXPECT_TRUE(AnswersKeys(combo));
  EXPECT_TRUE(AnswersKeys(grid));
  EXPECT_FALSE(AnswersKeys(strip));
  EXPECT_TRUE(HasRows(strip));
  EXPECT_FALSE(HasRows(box));
}

TEST(Mnemonic, OfALabelLeadsToTheNextControlInTheTabOrder) {
  Bench bench;
  BenchForm& form = *bench.On;
  TextBox before(form, &form.picPanel[0], "before");
  Label label(form, &form.picPanel[0], "label");
  TextBox later(form, &form.picPanel[0], "later");
  TextBox meant(form, &form.picPanel[1], "meant");
  Label another(form, &form.picPanel[0], "another");
  before.TabIndex = 20;
  label.TabIndex = 21;
  another.TabIndex = 22;
  meant.TabIndex = 23;
  later.TabIndex = 24;
  EXPECT_EQ(LabelledBy(label), &meant) << "neither the next one made, nor one of its own container, nor a label";
  meant.TabIndex = 21;
  EXPECT_EQ(LabelledBy(label), &meant) << "a label stands in front of the control with its own number";
  before.TabIndex = 30;
  meant.TabIndex = later.TabIndex = 19;
  EXPECT_EQ(LabelledBy(label), &before) << "though it was made first";
}

TEST(Mnemonic, OfALabelWithoutAPlaceInTheTabOrderOrAtItsEndLeadsNowhere) {
  Bench bench;
  Label label(*bench.On, &bench.On->picPanel[0], "label");
  TextBox behind(*bench.On, &bench.On->picPanel[0], "behind");
  behind.TabIndex = 30;
  EXPECT_EQ(LabelledBy(label), nullptr);
  label.TabIndex = 31;
  EXPECT_EQ(LabelledBy(label), nullptr);
}

TEST(Refusal, SaysWhyAPersonCannot) {
  Bench bench;
  CommandButton& button = bench.On->cmdGo;
  EXPECT_EQ(Refusal(button), "");
  button.Enabled = false;
  EXPECT_EQ(Refusal(button), "disabled");
  button.Enabled = true;
  bench.On->picPanel[0].Enabled = false;
  EXPECT_EQ(Refusal(button), "disabled");
  bench.On->picPanel[0].Enabled = true;
  bench.On->picPanel[0].Visible = false;
  EXPECT_EQ(Refusal(button), "hidden");
  bench.On->picPanel[0].Visible = true;
  bench.On->picPanel[1].ZOrder();
  EXPECT_EQ(Refusal(button), "covered");
  EXPECT_EQ(Refusal(bench.On->picRow[0]), "covered");
  bench.On->picPanel[0].ZOrder();
  EXPECT_EQ(Refusal(button), "");
}

TEST(Covering, NeedsAPanelInFrontOfTheWhole) {
  Bench bench;
  bench.On->picPanel[1].ZOrder();
  bench.On->picPanel[1].Visible = false;
  EXPECT_FALSE(IsCovered(bench.On->cmdGo));
  bench.On->picPanel[1].Visible = true;
  bench.On->picPanel[1].Width = 8000;
  EXPECT_FALSE(IsCovered(bench.On->cmdGo));
  bench.On->picPanel[1].Width = 9000;
  EXPECT_TRUE(IsCovered(bench.On->cmdGo));
}

TEST(Covering, IsNotDoneByLabelsButtonsOrHandles) {
  Bench bench;
  Label label(*bench.On, &bench.On->picPanel[0], "lblOver");
  CommandButton button(*bench.On, &bench.On->picPanel[0], "cmdOver");
  Place(label, 0, 0, 9000, 6000);
  Place(button, 0, 0, 9000, 6000);
  EXPECT_FALSE(IsCovered(bench.On->cmdGo));
  Place(bench.On->picHandle[0], 10, 10, 6, 6);
  Place(bench.On->picHandle[1], 0, 0, 100, 100);
  EXPECT_FALSE(IsCovered(bench.On->picHandle[0]));
}

TEST(ActiveForm, IsTheInnermostVisibleModalOne) {
  Bench bench;
  const auto inner = std::make_shared<BenchForm>(bench.Screen);
  bench.Screen->Created(*inner);
  bool asked = false;
  bench.Run({[&] { bench.Screen->ShowModal(*inner); },
             [&] {
               asked = true;
               EXPECT_EQ(bench.Screen->ActiveForm(), inner.get());
               EXPECT_EQ(Refusal(bench.On->cmdGo), "blocked by a modal form");
               EXPECT_TRUE(bench.Screen->IsModal(*inner));
               EXPECT_FALSE(bench.Screen->IsModal(*bench.On));
               bench.Screen->Hide(*inner);
             },
             [&] {
               EXPECT_EQ(bench.Screen->ActiveForm(), bench.On.get());
               EXPECT_FALSE(bench.Screen->IsModal(*inner));
               EXPECT_EQ(Refusal(bench.On->cmdGo), "");
             }});
  EXPECT_TRUE(asked);
  EXPECT_FALSE(bench.StepsLeft());
  EXPECT_EQ(bench.Notes, (Lines{"show frmBench modal", "hide frmBench"}));
}

TEST(ModalCall, GoesOnBlockingForAFormThatIsMadeVisibleAgain) {
  Bench bench;
  const auto inner = std::make_shared<BenchForm>(bench.Screen);
  bench.Screen->Created(*inner);
  bool returned = false;
  bench.Run({[&] {
               bench.Screen->ShowModal(*inner);
               returned = true;
             },
             [&] {
               bench.Screen->Hide(*inner);
               bench.Screen->Show(*inner);
             },
             [&] {
               EXPECT_FALSE(returned);
               bench.Screen->Hide(*inner);
             },
             [&] { EXPECT_TRUE(returned); }});
  EXPECT_TRUE(returned);
  EXPECT_FALSE(bench.StepsLeft());
}

TEST(ActiveForm, IsTheOuterModalOneAsSoonAsTheInnerIsHidden) {
  Bench bench;
  const auto outer = std::make_shared<BenchForm>(bench.Screen);
  const auto inner = std::make_shared<BenchForm>(bench.Screen);
  for (const auto& form : {outer, inner}) bench.Screen->Created(*form);
  bool asked = false;
  bench.Run({[&] { bench.Screen->ShowModal(*outer); }, [&] { bench.Screen->ShowModal(*inner); },
             [&] {
               asked = true;
               EXPECT_EQ(bench.Screen->ActiveForm(), inner.get());
               bench.Screen->Hide(*inner);
               EXPECT_EQ(bench.Screen->ActiveForm(), outer.get());
               bench.Screen->Hide(*outer);
               EXPECT_EQ(bench.Screen->ActiveForm(), bench.On.get());
             }});
  EXPECT_TRUE(asked);
}

TEST(ModalCall, OfAFormThatIsVisibleAlreadyBlocksAndTellsOfNoShowing) {
  Bench bench;
  bool returned = false;
  bench.Run({[&] {
               bench.Screen->ShowModal(*bench.On);
               returned = true;
             },
             [&] {
               EXPECT_FALSE(returned);
               EXPECT_TRUE(bench.Screen->IsModal(*bench.On));
               bench.Screen->Hide(*bench.On);
             }});
  EXPECT_TRUE(returned);
  EXPECT_EQ(bench.Notes, Lines{"hide frmBench"});
}

struct Watching : HeadlessToolkit {
  Lines Calls;
  void Show(Form& form, Showing how) override {
    const char* const words[] = {"", " modal", " blocked"};
    Calls.push_back("show " + form.Name + words[static_cast<int>(how)]);
  }
  void Hide(Form& form) override { Calls.push_back("hide " + form.Name); }
  void Release(Form& form) override { Calls.push_back("release " + form.Name); }
};

TEST(Showing, HidingAndReleasingReachTheToolkit) {
  const auto tools = std::make_shared<Watching>();
  const auto screen = std::make_shared<Platform>(tools);
  const auto form = std::make_shared<BenchForm>(screen);
  screen->Created(*form);
  screen->Show(*form);
  screen->Hide(*form);
  screen->Release(*form);
  EXPECT_EQ(tools->Calls, (Lines{"show frmBench", "hide frmBench", "release frmBench"}));
}

// A form that a host shows while another one's modal call runs.
TEST(Showing, BehindAModalFormIsBlockedUntilThatOneIsThrough) {
  const auto tools = std::make_shared<Watching>();
  const auto screen = std::make_shared<Platform>(tools);
  const auto first = std::make_shared<BenchForm>(screen);
  const auto later = std::make_shared<BenchForm>(screen);
  String log;
  first->cmdGo.Click = [&log] { log += "click "; };
  for (const auto& form : {first, later}) screen->Created(*form);
  bool asked = false;
  tools->Pump = [&] {
    tools->Calls.clear();
    screen->Show(*first);
    EXPECT_EQ(tools->Calls, Lines{"show frmBench blocked"});
    EXPECT_TRUE(first->Visible);
    EXPECT_TRUE(screen->IsBlocked(*first));
    EXPECT_FALSE(screen->IsBlocked(*later));
    EXPECT_EQ(screen->ActiveForm(), later.get());
    EXPECT_FALSE(Input::Press(first->cmdGo));
    screen->Show(*first);
    EXPECT_EQ(tools->Calls.size(), 1U) << "shown again it stays where it is";
    screen->Hide(*later);
    EXPECT_FALSE(Input::Press(first->cmdGo)) << "its call has not returned, and may go on with another form";
    screen->Release(*later);
    tools->Calls.clear();
    screen->Show(*first);
    EXPECT_EQ(tools->Calls, Lines{"show frmBench"}) << "it comes to the front";
    EXPECT_TRUE(Input::Press(first->cmdGo));
    return asked = true;
  };
  screen->ShowModal(*later);
  EXPECT_TRUE(asked);
  EXPECT_FALSE(screen->IsBlocked(*first));
  screen->Release(*first);
}

TEST(Showing, AVisibleFormAgainOrHidingAHiddenOneTellsNothing) {
  Bench bench;
  bench.Screen->Show(*bench.On);
  EXPECT_EQ(bench.Notes, Lines{});
  bench.Screen->Hide(*bench.On);
  bench.Screen->Hide(*bench.On);
  bench.Screen->Release(*bench.On);
  bench.Screen->Release(*bench.On);
  EXPECT_EQ(bench.Notes, (Lines{"hide frmBench", "release frmBench"}));
  EXPECT_EQ(bench.Forms(), Lines{});
}

TEST(Release, InsideAHandlerOfTheFormLetsTheHandlerEnd) {
  Bench bench;
  BenchForm* const form = bench.On.get();
  form->cmdGo.Click = [&bench, form] {
    bench.Screen->Release(*form);
    bench.On.reset();
    form->lblText.Caption = "still there";
    bench.Notes.push_back(form->lblText.Caption);
  };
  Input::Activate(form->cmdGo);
  EXPECT_EQ(bench.Notes, (Lines{"hide frmBench", "release frmBench", "still there"}));
}

TEST(TextWidth, IsNinetyTwipsACharacterWithoutAScreen) {
  Bench bench;
  EXPECT_EQ(bench.Screen->TextWidth("Weights"), 630.0F);
  EXPECT_EQ(bench.Screen->TextWidth("é¼"), 180.0F);
  EXPECT_EQ(bench.Screen->TextWidth(""), 0.0F);
}

}  // namespace
}  // namespace Tarnwise
