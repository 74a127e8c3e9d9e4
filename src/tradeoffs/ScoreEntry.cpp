// The four scores, typed or stepped.
#include "curves/mdGraphs.h"
#include "judging/NumberKeys.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

enum Key { kReturn = 13, kCtrlV = 22, kBlank = 32 };
constexpr Integer kYes = -1;

String ScoreText(Double score) { return StripTrailingDot(Format(score, "0.##")); }

}  // namespace

void frmTradeOffsB::ConnectScores() {
  for (TextBox* box : {&Scores.txtTradeOffAFirstScore, &Scores.txtTradeOffASecondScore, &Scores.txtTradeOffBFirstScore,
                       &Scores.txtTradeOffBSecondScore}) {
    box->Change = [this] { ShowDifferences(); };
    box->KeyDown = [this](KeyEvent& key) {
      mScoresDirty = kYes;
      DropPasting(key);
    };
    box->KeyPress = [this, box](KeyEvent& key) { ScoreKey(key, *box); };
    box->LostFocus = [this] {
      if (mScoresDirty == kYes && !takingFocusBack_) CommitScores();
    };
  }
  Scores.tbScoreChanger.Wire([this](Toolbar& toolbar) {
    toolbar.ButtonClick = [this, &toolbar](const String& key) { ChangeScore(toolbar.Index, key); };
  });
}

void frmTradeOffsB::ShowScores(int att) {
  const ABPoint& point = data_.ABPoints2[att];
  Scores.txtTradeOffAFirstScore.SetText(ScoreText(static_cast<Double>(point.AX)));
  Scores.txtTradeOffASecondScore.SetText(ScoreText(static_cast<Double>(point.AY)));
  Scores.txtTradeOffBFirstScore.SetText(ScoreText(static_cast<Double>(point.BX)));
  Scores.txtTradeOffBSecondScore.SetText(ScoreText(static_cast<Double>(point.BY)));
}

void frmTradeOffsB::ShowDifferences() {
  const auto difference = [](const TextBox& a, const TextBox& b) {
    return NumberText(RoundToFourDecimals(Val(a.Text()) - Val(b.Text())));
  };
  Scores.labTradeOffDiff1.Caption = difference(Scores.txtTradeOffAFirstScore, Scores.txtTradeOffBFirstScore);
  Scores.labTradeOffDiff2.Caption = difference(Scores.txtTradeOffASecondScore, Scores.txtTradeOffBSecondScore);
}

void frmTradeOffsB::ScoreKey(KeyEvent& key, TextBox& box) {
  if (key.Code == kCtrlV) {
    key.Code = 0;
  } else if (key.Code == kReturn) {
    key.Code = 0;
    CommitScores();
  } else if (key.Code >= kBlank) {
    DropExtraPoint(box);
    if (!IsNumeric(key.Code)) key.Code = 0;
  }
}

void frmTradeOffsB::DropExtraPoint(TextBox& box) { RemoveSecondPoint(box); }

bool frmTradeOffsB::CheckScore(TextBox& box, Single low, Single high) {
  const auto v = static_cast<Single>(Val(Trim(box.Text())));  // what no Single holds is out of every range
  if (v >= low && v <= high) return true;
  mScoresBad = kYes;
  Screen().Beep();
  takingFocusBack_ = true;
  Screen().SetFocus(box);
  takingFocusBack_ = false;
  box.SelStart = 0;
  box.SelLength = Length(box.Text());
  Screen().MessageBox(
      "The data you entered should be in the relevant score range [" + NumberText(low) + ", " + NumberText(high) + "]!",
      kExclamation, kKesta);
  return false;
}

// Only the first scores clear the flag; they are always checked before the second ones.
void frmTradeOffsB::CheckScores() {
  if (!CheckScore(Scores.txtTradeOffAFirstScore, XMin, XMax)) return;
  mScoresBad = 0;
  if (!CheckScore(Scores.txtTradeOffBFirstScore, XMin, XMax)) return;
  if (!CheckScore(Scores.txtTradeOffASecondScore, YMin, YMax)) return;
  CheckScore(Scores.txtTradeOffBSecondScore, YMin, YMax);
}

void frmTradeOffsB::CommitScores() {
  CheckScores();
  if (mScoresBad != 0) return;
  Points.AX = ToSingleChecked(Val(Scores.txtTradeOffAFirstScore.Text()));
  Points.AY = ToSingleChecked(Val(Scores.txtTradeOffASecondScore.Text()));
  CollapseCorners(Points);
  Points.BX = ToSingleChecked(Val(Scores.txtTradeOffBFirstScore.Text()));
  Points.BY = ToSingleChecked(Val(Scores.txtTradeOffBSecondScore.Text()));
  PlaceABMarks();
}

// The new score takes effect when a box is left or Return is pressed; the check is made then.
void frmTradeOffsB::ChangeScore(int index, const String& key) {
  mScoresDirty = kYes;
  TextBox* const boxes[] = {&Scores.txtTradeOffAFirstScore, &Scores.txtTradeOffASecondScore,
                            &Scores.txtTradeOffBFirstScore, &Scores.txtTradeOffBSecondScore};
  const bool along = index == 0 || index == 2;
  const Double range = along ? static_cast<Double>(XMax) - static_cast<Double>(XMin)
                             : static_cast<Double>(YMax) - static_cast<Double>(YMin);
  const Double step = range / 100.0;
  TextBox& box = *boxes[index];
  if (key == "Up") box.SetText(ScoreText(Val(box.Text()) + step));
  if (key == "Down") box.SetText(ScoreText(Val(box.Text()) - step));
}

}  // namespace Tarnwise
