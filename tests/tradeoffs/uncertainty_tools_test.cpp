// The tools of uncertainty on their controls.
#include "TradeOffs.h"
#include "runtime/Text.h"
#include "support/PartForm.h"

namespace Tarnwise {
namespace {

struct ToolsForm : PartForm {
  explicit ToolsForm(std::shared_ptr<Platform> screen) : PartForm(std::move(screen)) {
    Tools.Pressed = [this](const String& key) {
      Told.push_back(key);
      Tools.Move(key, Points, Scale);
    };
    Tools.Certain = [this] { Told.push_back("certain"); };
    Points.AX = Points.ALX = Points.AUX = 50.0F;
    Points.AY = Points.ALY = Points.AUY = 45.0F;
  }

  // "across 48 to 50": the line that A has become.
  String Line() const {
    const char* const ways[] = {"certain", "across", "upward"};
    const bool upward = Points.AOrientation == 2;
    return String(ways[Points.AOrientation]) + " " + NumberText(upward ? Points.ALY : Points.ALX) + " to " +
           NumberText(upward ? Points.AUY : Points.AUX);
  }

  ChartScale Scale{20.0F, 80.0F, 0.0F, 90.0F, 10.0F, 15.0F};
  ABPoint Points;
  UncertaintyControls Controls{*this, picStage};
  UncertaintyTools Tools{Controls};
  Lines Told;
};

struct FourMovers : PartOnScreen<ToolsForm> {
  FourMovers() {
    AttValueData values;
    for (auto* scores : {&values.ScoreMin, &values.ScoreMax}) scores->Allocate(kMaxAtts);
    values.ScoreMin[0] = 20.0;
    values.ScoreMax[0] = 80.0;
    values.ScoreMax[1] = 90.0;
    Form->Tools.Show(0);
    Form->Tools.FillChangeSteps(values, 0, 1);
  }

  String Press(Toolbar& toolbar, const String& key, int times = 1) {
    for (int i = 0; i < times; ++i) Input::PressToolButton(toolbar, key);
    return Form->Line();
  }
};

TEST(UncertaintyTools, OfferAThirtiethAFortiethAndAFiftiethOfEachRange) {
  FourMovers o;
  EXPECT_EQ(o.Form->Controls.cmbChangeH.List(), (Lines{"2.00", "1.50", "1.20"}));
  EXPECT_EQ(o.Form->Controls.cmbChangeV.List(), (Lines{"3.00", "2.25", "1.80"}));
  EXPECT_EQ(XY(o.Form->Tools.mStepH, o.Form->Tools.mStepV), "2 3");
}

TEST(UncertaintyTools, AMoverTellsItsKeyAndStretchesAByAStep) {
  FourMovers o;
  UncertaintyControls& c = o.Form->Controls;
  EXPECT_EQ(o.Press(c.tbMovLeft, "MovLeft"), "across 48 to 50");
  EXPECT_EQ(o.Press(c.tbMovRight, "MovRight", 2), "across 48 to 54");
  EXPECT_EQ(o.Press(c.tbMovRight, "MovRightBack"), "across 48 to 52");
  EXPECT_EQ(o.Form->Told, (Lines{"MovLeft", "MovRight", "MovRight", "MovRightBack"}));
}

TEST(UncertaintyTools, StretchUpwardAlike) {
  FourMovers o;
  EXPECT_EQ(o.Press(o.Form->Controls.tbMovDown, "MovDown"), "upward 42 to 45");
  EXPECT_EQ(o.Press(o.Form->Controls.tbMovUp, "MovUp"), "upward 42 to 48");
}

TEST(UncertaintyTools, EndAtTheAxisWhereTheMoverIsSwitchedOff) {
  FourMovers o;
  Toolbar& right = o.Form->Controls.tbMovRight;
  EXPECT_EQ(o.Press(right, "MovRight", 14), "across 50 to 78");
  EXPECT_EQ(Shown(o.Form->Controls), "left right | across");
  EXPECT_EQ(o.Press(right, "MovRight"), "across 50 to 80");
  EXPECT_EQ(Shown(o.Form->Controls), "left right:MovRightBack | across");
}

TEST(UncertaintyTools, ALineOfOneWayShutsTheOtherWay) {
  FourMovers o;
  o.Form->Tools.Show(1);
  EXPECT_EQ(Shown(o.Form->Controls), "left right | across");
}

TEST(UncertaintyTools, CertainIsTold) {
  FourMovers o;
  Input::PressToolButton(o.Form->Controls.tbCertain, o.Form->Controls.tbCertain.Buttons[0].Key);
  EXPECT_EQ(o.Form->Told, Lines{"certain"});
}

}  // namespace
}  // namespace Tarnwise
