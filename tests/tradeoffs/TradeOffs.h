// Trade-offs in tests: models whose values are a hundredth of their scores, and the step on a screen of its own.
#pragma once

#include "support/ErrorNumber.h"
#include "support/Ranked.h"
#include "support/TestHost.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Input.h"

#include <gtest/gtest.h>

#include <charconv>

namespace Tarnwise {

inline void GiveCurve(WizardData& data, int att, const std::vector<Double>& x, const std::vector<Double>& y) {
  AttValueData& values = data.AttValueData;
  values.ValuePointCount[att] = static_cast<Integer>(x.size());
  for (std::size_t k = 0; k < x.size(); ++k) {
    values.ValuePointX(att, static_cast<int>(k)) = x[k];
    values.ValuePointY(att, static_cast<int>(k)) = y[k];
  }
}

// A scale and the straight value curve over it.
inline void GiveScale(WizardData& data, int att, Double low, Double high) {
  data.AttValueData.ScoreMin[att] = low;
  data.AttValueData.ScoreMax[att] = high;
  GiveCurve(data, att, {low, high}, {0.0, 1.0});
}

// What the ordering step and the host leave for the trade-off step: intervals at their defaults, points all zero.
inline WizardData TradeOffData(const std::vector<RankedAtt>& atts, int benefitReference, int costReference) {
  WizardData data = RankedData(atts, benefitReference, costReference);
  for (int i = 0; i < data.NumAtts(); ++i) GiveScale(data, i, 0.0, 100.0);
  data.ABPoints1.Allocate(data.NumAtts());
  data.ABPoints2.Allocate(data.NumAtts());
  data.FileIndex = 3;
  data.KestaDir = "C:/KESTA";
  return data;
}

// Benefits 0 to 4: 1 is the reference on rank 2 and 4 shares its rank; 0 is better; 2 and 3 are worse and share a rank.
// Costs 5 to 7: 6 is the reference on rank 2, 5 is better, 7 shares its rank.
inline WizardData Ward() { return TradeOffData({B(1), B(2), B(3), B(3), B(2), C(1), C(2), C(2)}, 1, 6); }

// All judged, by an earlier run of that approach.
inline WizardData Judged(WizardData data, const char* type) {
  data.SavedJudgments.RJType = type;
  for (int i = 0; i < data.NumAtts(); ++i) data.WeightDone[i] = true;
  return data;
}

inline ABPoint PointsAt(Single ax, Single ay, Single bx, Single by) {
  ABPoint p;
  p.AX = ax;
  p.AY = ay;
  p.BX = bx;
  p.BY = by;
  CollapseCorners(p);
  return p;
}

// Commits a trade-off of one ratio; the attributes that it settles, in the order in which they were told.
inline std::vector<int> SettledByPoint(WizardData& data, int target, const String& ratio) {
  std::vector<int> settled;
  CommitTradeOff(data, target, {ratio, ratio, ratio}, [&settled](int att) { settled.push_back(att); });
  return settled;
}

// What a test compares, as one text.

// The shortest text that reads back to the same number.
inline String Exactly(Single x) {
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, x).ptr};
}

inline String XY(Single x, Single y) { return Exactly(x) + " " + Exactly(y); }

// "20 80 by 10, 0 300 by 50": the scale across and the one upward.
inline String Axes(const ChartScale& s) {
  return XY(s.XMin, s.XMax) + " by " + Exactly(s.XStep) + ", " + XY(s.YMin, s.YMax) + " by " + Exactly(s.YStep);
}

// "60 40 | 40 80".
inline String AAndB(const ABPoint& p) { return XY(p.AX, p.AY) + " | " + XY(p.BX, p.BY); }

inline String OneOf(const Lines& names, int number) {
  return number >= 0 && number < static_cast<int>(names.size()) ? names[static_cast<std::size_t>(number)]
                                                                : " number " + std::to_string(number);
}

// A and B too. "60 40 across 58 40 to 62 40 | 40 80": A is uncertain, with its two corners where they are not A itself.
inline String Scores(const ABPoint& p) {
  const bool atA = p.ALX == p.AX && p.AUX == p.AX && p.ALY == p.AY && p.AUY == p.AY;
  return XY(p.AX, p.AY) + OneOf({"", " across", " upward"}, p.AOrientation) +
         (atA ? "" : " " + XY(p.ALX, p.ALY) + " to " + XY(p.AUX, p.AUY)) + " | " + XY(p.BX, p.BY);
}

// "60.5 40 | 20 48.25 | 40.5 -8.25": A's boxes, B's boxes, their differences.
inline String Shown(const ScoreControls& c) {
  return c.txtTradeOffAFirstScore.Text() + " " + c.txtTradeOffASecondScore.Text() + " | " +
         c.txtTradeOffBFirstScore.Text() + " " + c.txtTradeOffBSecondScore.Text() + " | " +
         c.labTradeOffDiff1.Caption() + " " + c.labTradeOffDiff2.Caption();
}

// "925,625": Left and Top.
inline String Place(const Control& control) { return Exactly(control.Left) + "," + Exactly(control.Top); }

inline String ColourName(Colour colour) {
  switch (colour) {
    case 0x00FF00: return "green";
    case 0x808080: return "out";
    case 0x000808: return "black";
    case 0x00FFFF: return "yellow";
    case 0xFFFFFF: return "white";
    case 0x004080: return "brown";
    case 0x0080FF: return "orange";
    default: return std::to_string(colour);
  }
}

// "green* out out | 0": the lights Consistent, Invalid, Inconsistent, and the timer. * where the caption is highlighted
// (it is black else), (green) where light and caption are hidden.
inline String Shown(const LightControls& c) {
  String text;
  for (int i = 0; i < 3; ++i) {
    const Colour fore = c.lblAlarm[i].ForeColor;
    String light = ColourName(c.shpAlarm[i].FillColor);
    if (fore != 0) light += fore == 0x8000000E ? "*" : "*" + std::to_string(fore);
    if (!c.shpAlarm[i].Visible) light = "(" + light + ")";
    if (c.shpAlarm[i].Visible != c.lblAlarm[i].Visible) light += " with its caption otherwise";
    text += light + " ";
  }
  return text + "| " + std::to_string(c.Timer1.Interval);
}

// "left right:MovRight | across": the movers that can be pressed, by their one key where not both can, and the list of
// step sizes that is shown.
inline String Shown(const UncertaintyControls& c) {
  String text;
  const std::pair<const char*, const Toolbar*> movers[] = {
      {"left", &c.tbMovLeft}, {"right", &c.tbMovRight}, {"up", &c.tbMovUp}, {"down", &c.tbMovDown}};
  for (const auto& [name, toolbar] : movers) {
    const bool first = toolbar->Enabled && toolbar->Buttons[0].Enabled;
    const bool second = toolbar->Enabled && toolbar->Buttons[1].Enabled;
    if (!first && !second) continue;
    text += String(name) + (first && second ? "" : ":" + toolbar->Buttons[first ? 0 : 1].Key) + " ";
  }
  return text + "|" + (c.cmbChangeH.Visible ? " across" : "") + (c.cmbChangeV.Visible ? " upward" : "");
}

// The step opened on a model. Scores are moved by dropping marks and by typing, as a user would.
struct TradeOffStep : OpenForm<frmTradeOffsB> {
  explicit TradeOffStep(const WizardData& model) : OpenForm(model) { Open(); }

  frmTradeOffsB& Step() { return *Form; }
  const ABPoint& Points() { return Form->Points; }
  const ABPoint& Record(int att) { return Data.ABPoints2[att]; }
  String Ratio() { return Form->lblWeightRatio.Caption; }
  bool EnterAllowed() { return Form->cmdEnter.Enabled; }

  // "2.00/1,    2.00/1 consistent": the ratio on the screen and what it is judged to be.
  String Verdict() {
    return Ratio() + OneOf({" undecided", " invalid", " consistent", " inconsistent"}, Form->mJudgmentState);
  }

  // "Enter Next ": of Enter, ReStart, Next and Finish those that are enabled.
  String Allowed() {
    const frmTradeOffsB& f = *Form;
    return String(f.cmdEnter.Enabled ? "Enter " : "") + (f.cmdReStart.Enabled ? "ReStart " : "") +
           (f.cmdNext.Enabled ? "Next " : "") + (f.cmdFinish.Enabled ? "Finish " : "");
  }

  // The texts of the target list.
  Lines Items() {
    Lines texts;
    for (const auto& item : Form->imgcmbTargetAtt.Items) texts.push_back(item.Text);
    return texts;
  }

  // "0 against 1, item 1": target, reference, selected item.
  String Target() {
    return std::to_string(Form->mTargetAtt) + " against " + std::to_string(Form->mRefAtt) + ", item " +
           std::to_string(Form->imgcmbTargetAtt.SelectedItem);
  }

  // Attribute ids, not items.
  void Choose(int att) {
    if (Input::Press(Form->imgcmbTargetAtt)) Input::SelectRow(Form->imgcmbTargetAtt, att + 1);
  }

  void DropInPlot(Control& mark, Single x, Single y) {
    Screen->Drag.Begin(mark);
    Screen->Drag.Over(Form->Chart.picTradeOffsRange, x, y);
    Screen->Drag.Drop();
  }

  // Drops a mark on its scores.
  void MoveA(Single x, Single y) { MoveMark(Form->Chart.shpPCA, x, y); }
  void MoveB(Single x, Single y) { MoveMark(Form->Chart.shpPCB, x, y); }

  void Press(Toolbar& toolbar, const String& key) {
    ASSERT_TRUE(toolbar.Enabled) << toolbar.Name;
    const Toolbar::Button* const button = toolbar.Find(key);
    ASSERT_NE(button, nullptr) << key;
    ASSERT_TRUE(button->Enabled) << key;
    Input::PressToolButton(toolbar, key);
  }

  void Focus(TextBox& box) {
    if (!Input::MoveFocus(box)) return;
    box.SelStart = static_cast<int>(box.Text().size());
    box.SelLength = 0;
  }

  void Key(int code, int character = 0, int shift = 0) { TypeKey(*Form, code, character, shift); }
  void Return() { Key(13, 13); }
  void Type(const String& text) {
    for (const char c : text) Key(static_cast<unsigned char>(c), static_cast<unsigned char>(c));
  }

  // Replaces the whole text of a box.
  void Fill(TextBox& box, const String& text) {
    Focus(box);
    Key(65, 1, 2);
    Key(8, 8);
    Type(text);
  }

  bool IsEnabled(Toolbar& toolbar, const String& key) { return toolbar.Enabled && toolbar.Find(key)->Enabled; }

 private:
  void MoveMark(Control& mark, Single x, Single y) {
    const frmTradeOffsB& f = *Form;
    const PictureBox& plot = f.Chart.picTradeOffsRange;
    DropInPlot(mark, (x - f.Plot.Scale.XMin) / (f.Plot.Scale.XMax - f.Plot.Scale.XMin) * plot.Width(),
               (f.Plot.Scale.YMax - y) / (f.Plot.Scale.YMax - f.Plot.Scale.YMin) * plot.Height());
  }
};

}  // namespace Tarnwise
