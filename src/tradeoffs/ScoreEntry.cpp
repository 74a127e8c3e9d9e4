#include "tradeoffs/ScoreEntry.h"

#include "curves/mdGraphs.h"
#include "judging/NumberKeys.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "tradeoffs/TradeOffModel.h"
#include "view/Keys.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

constexpr Integer kYes = -1;

String ScoreText(Double score) { return StripTrailingDot(Format(score, "0.##")); }

String Difference(const TextBox& a, const TextBox& b) {
  return NumberText(RoundToFourDecimals(Val(a.Text()) - Val(b.Text())));
}

}  // namespace

ScoreEntry::ScoreEntry(ScoreControls& controls, const ChartScale& scale) : controls_(controls), scale_(scale) {
  for (TextBox* box : {&controls_.txtTradeOffAFirstScore, &controls_.txtTradeOffASecondScore,
                       &controls_.txtTradeOffBFirstScore, &controls_.txtTradeOffBSecondScore}) {
    Connect(*box);
  }
  controls_.tbScoreChanger.Wire([this](Toolbar& toolbar) {
    toolbar.ButtonClick = [this, &toolbar](const String& key) { ChangeScore(toolbar.Index, key); };
  });
}

void ScoreEntry::Connect(TextBox& box) {
  box.Change = [this] { ShowDifferences(); };
  box.KeyDown = [this](KeyEvent& key) {
    mScoresDirty = kYes;
    DropPasting(key);
  };
  box.KeyPress = [this, &box](KeyEvent& key) { ScoreKey(key, box); };
  box.LostFocus = [this] {
    if (mScoresDirty == kYes && !takingFocusBack_) CommitScores();
  };
}

void ScoreEntry::NameCriteria(const String& target, const String& reference) {
  controls_.labPCCriterion1.Caption = Trim(target);
  controls_.labPCCriterion2.Caption = Trim(reference);
}

void ScoreEntry::Show(const ABPoint& point) {
  Show(true, ScoreText(static_cast<Double>(point.AX)), ScoreText(static_cast<Double>(point.AY)));
  Show(false, ScoreText(static_cast<Double>(point.BX)), ScoreText(static_cast<Double>(point.BY)));
}

void ScoreEntry::Show(bool forA, const String& first, const String& second) {
  (forA ? controls_.txtTradeOffAFirstScore : controls_.txtTradeOffBFirstScore).SetText(first);
  (forA ? controls_.txtTradeOffASecondScore : controls_.txtTradeOffBSecondScore).SetText(second);
}

void ScoreEntry::ShowDifferences() {
  controls_.labTradeOffDiff1.Caption = Difference(controls_.txtTradeOffAFirstScore, controls_.txtTradeOffBFirstScore);
  controls_.labTradeOffDiff2.Caption = Difference(controls_.txtTradeOffASecondScore, controls_.txtTradeOffBSecondScore);
}

void ScoreEntry::ScoreKey(KeyEvent& key, TextBox& box) {
  if (key.Code == kTypedReturn) {
    key.Code = 0;
    CommitScores();
  } else {
    FilterNumberKey(box, key);
  }
}

bool ScoreEntry::CheckScore(TextBox& box, Single low, Single high) {
  const auto v = static_cast<Single>(Val(Trim(box.Text())));  // what no Single holds is out of every range
  if (v >= low && v <= high) return true;
  mScoresBad = kYes;
  Platform& screen = box.Owner.Screen();
  screen.Beep();
  takingFocusBack_ = true;
  screen.SetFocus(box);
  takingFocusBack_ = false;
  box.SelStart = 0;
  box.SelLength = Length(box.Text());
  screen.MessageBox(
      "The data you entered should be in the relevant score range [" + NumberText(low) + ", " + NumberText(high) + "]!",
      kExclamation, kKesta);
  return false;
}

// Only the first scores clear the flag; they are always checked before the second ones.
void ScoreEntry::CheckScores() {
  if (!CheckScore(controls_.txtTradeOffAFirstScore, scale_.XMin, scale_.XMax)) return;
  mScoresBad = 0;
  if (!CheckScore(controls_.txtTradeOffBFirstScore, scale_.XMin, scale_.XMax)) return;
  if (!CheckScore(controls_.txtTradeOffASecondScore, scale_.YMin, scale_.YMax)) return;
  CheckScore(controls_.txtTradeOffBSecondScore, scale_.YMin, scale_.YMax);
}

void ScoreEntry::CommitScores() {
  CheckScores();
  if (mScoresBad == 0) Entered();
}

void ScoreEntry::TakeScores(ABPoint& point) const {
  point.AX = ToSingleChecked(Val(controls_.txtTradeOffAFirstScore.Text()));
  point.AY = ToSingleChecked(Val(controls_.txtTradeOffASecondScore.Text()));
  CollapseCorners(point);
  point.BX = ToSingleChecked(Val(controls_.txtTradeOffBFirstScore.Text()));
  point.BY = ToSingleChecked(Val(controls_.txtTradeOffBSecondScore.Text()));
}

// The new score takes effect when a box is left or Return is pressed; the check is made then.
void ScoreEntry::ChangeScore(int index, const String& key) {
  mScoresDirty = kYes;
  TextBox* const boxes[] = {&controls_.txtTradeOffAFirstScore, &controls_.txtTradeOffASecondScore,
                            &controls_.txtTradeOffBFirstScore, &controls_.txtTradeOffBSecondScore};
  const bool along = index == 0 || index == 2;
  const Double range = along ? static_cast<Double>(scale_.XMax) - static_cast<Double>(scale_.XMin)
                             : static_cast<Double>(scale_.YMax) - static_cast<Double>(scale_.YMin);
  const Double step = range / 100.0;
  TextBox& box = *boxes[index];
  if (key == "Up") box.SetText(ScoreText(Val(box.Text()) + step));
  if (key == "Down") box.SetText(ScoreText(Val(box.Text()) - step));
}

}  // namespace Tarnwise
