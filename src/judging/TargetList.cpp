#include "judging/TargetList.h"

#include "judging/Intervals.h"
#include "runtime/Text.h"

namespace Tarnwise {

void FillTargetItems(ImageCombo& list, WizardData& data) {
  list.Clear();
  Integer counts[] = {0, 0};
  for (int i = 0; i < data.NumAtts(); ++i) {
    const bool benefit = data.IsBenefit(i);
    const int place = ++counts[benefit ? 0 : 1];
    const String picture = benefit ? "Smiling" : "Crying";
    const bool reference = i == ReferenceOf(data, i);
    list.Add({(benefit ? "Benefit" : "Cost") + std::to_string(place), Trim(data.AttName(i)),
              reference ? picture + "2" : picture, picture + (reference ? "2" : "1")});
  }
  data.BRankCount = counts[0];
  data.CRankCount = counts[1];
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (data.WeightDone[i] && !IsReference(data, i)) MarkJudged(list, data, i);
  }
}

void RestartTargets(ImageCombo& list, WizardData& data) {
  list.Clear();
  SetDefaultIntervals(data);
}

void MarkJudged(ImageCombo& list, const WizardData& data, int att) {
  list.SetItemText(att + 1, " ¤ " + data.AttName(att));
}

}  // namespace Tarnwise
