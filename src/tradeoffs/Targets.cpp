// Which pair the trade-off step shows: the list of targets, and what follows a choice in it.
#include "judging/Intervals.h"
#include "judging/JudgmentLights.h"
#include "judging/TargetList.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Platform.h"

namespace Tarnwise {

void frmTradeOffsB::FillTargetList() {
  FillTargetItems(imgcmbTargetAtt, data_);
  mTargetAtt = static_cast<Integer>(FirstTarget(data_));
  mRefAtt = ReferenceOf(data_, mTargetAtt);
  imgcmbTargetAtt.SelectedItem = mTargetAtt + 1;
  Entry.mScoresDirty = 0;
  ShowTarget();
  Entry.Show(data_.ABPoints2[mTargetAtt]);
  Entry.ShowDifferences();
  ShowTools();
  ShowLampsAtRest(Lights);
  PlaceABMarks();
  Plot.DrawUncertaintyLine(Points);
  cmdEnter.Enabled = true;
}

void frmTradeOffsB::imgcmbTargetAtt_Click() {
  if (mLoading == 1) return;
  Entry.mScoresDirty = 0;
  const int i = imgcmbTargetAtt.SelectedItem - 1;
  const bool bothGroups = data_.BRankCount > 0 && data_.CRankCount > 0;
  const Integer r = ReferenceOf(data_, i);
  const bool pairOfReferences = i == r && bothGroups;
  if (!pairOfReferences && data_.AttO[i] == data_.AttO[r]) {
    RefuseTarget(data_.IsBenefit(i));
    return;
  }
  Screen().SetPointer(kHourglass);
  mTargetAtt = pairOfReferences ? data_.CRefAttID : static_cast<Integer>(i);
  mRefAtt = pairOfReferences ? data_.BRefAttID : r;
  ShowTarget();
  PlaceABMarks();
  Entry.Show(data_.ABPoints2[mTargetAtt]);
  Entry.ShowDifferences();
  if (IsRefPair()) {
    Plot.Clear();
  } else {
    ShowTools();
    Plot.DrawUncertaintyLine(Points);
  }
  cmdEnter.Enabled = true;
  Screen().SetPointer(kDefaultPointer);
}

void frmTradeOffsB::RefuseTarget(bool benefit) {
  Screen().Beep();
  Screen().MessageBox(String("The selected attribute is in the same group with the reference attribute for the ") +
                          (benefit ? "benefit-oriened" : "cost-oriented") +
                          " ones. It is not necessary to make tradeoffs between them.",
                      kExclamation, kKesta);
  imgcmbTargetAtt.SelectedItem = mTargetAtt + 1;
}

// The pair of both references is never uncertain.
void frmTradeOffsB::ShowTarget() {
  Tools.EnableToolbars(!IsRefPair());
  LoadABRecord(mTargetAtt);
  Entry.NameCriteria(data_.AttName(mTargetAtt), data_.AttName(mRefAtt));
  Plot.Build(mTargetAtt, mRefAtt);
}

void frmTradeOffsB::ShowTools() {
  Tools.Show(Points.AOrientation);
  Tools.FillChangeSteps(data_.AttValueData, mTargetAtt, mRefAtt);
}

void frmTradeOffsB::LoadABRecord(int att) { Points = data_.ABPoints2[att]; }

}  // namespace Tarnwise
