// The four scores of the two alternatives, typed or stepped.
#pragma once

#include "tradeoffs/AlternativesChart.h"

namespace Tarnwise {

struct ScoreEntry {
  // The scale is the chart's: what scores are checked against, and a hundredth of it the changers' step.
  ScoreEntry(ScoreControls& controls, const ChartScale& scale);

  std::function<void()> Entered;  // the scores have passed their check

  void NameCriteria(const String& target, const String& reference);
  void Show(const ABPoint& point);
  void Show(bool forA, const String& first, const String& second);
  void ShowDifferences();

  // Into the points: what the boxes say, A without uncertainty. Its orientation is left alone.
  void TakeScores(ABPoint& point) const;

  Integer mScoresBad = 0;    // -1 after a failed check
  Integer mScoresDirty = 0;  // -1 when a score was touched since the target was shown

 private:
  void Connect(TextBox& box);
  void ScoreKey(KeyEvent& key, TextBox& box);
  bool CheckScore(TextBox& box, Single low, Single high);
  void CheckScores();
  void CommitScores();
  void ChangeScore(int index, const String& key);

  ScoreControls& controls_;
  const ChartScale& scale_;
  bool takingFocusBack_ = false;  // from the box that Return was pressed in to the wrong one: one message is enough
};

}  // namespace Tarnwise
