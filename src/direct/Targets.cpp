// Which pair the direct step shows: the list of targets, the two references, and what stands about the pair.
#include "direct/frmDirectB.h"
#include "judging/Intervals.h"
#include "judging/TargetList.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

void frmDirectB::FillTargetList() {
  Screen().SetPointer(kHourglass);
  FillTargetItems(imgcmbTargetAtt, data_);
  mTargetAtt = static_cast<Integer>(FirstTarget(data_));
  mRefAtt = ReferenceOf(data_, mTargetAtt);
  imgcmbTargetAtt.SelectedItem = mTargetAtt + 1;
  ShowPair();
  Raise(SendMasseges, " Indicate a value reference region on the two selected attributes.");
  Screen().SetPointer(kDefaultPointer);
}

void frmDirectB::imgcmbTargetAtt_Click() {
  if (mLoading == 1) return;
  const int k = imgcmbTargetAtt.SelectedItem - 1;
  const bool bothGroups = data_.BRankCount > 0 && data_.CRankCount > 0;
  if (bothGroups && IsReference(data_, k)) {
    ChooseReferencePair();
    return;
  }
  const Integer r = ReferenceOf(data_, k);
  if (data_.AttO[k] == data_.AttO[r]) {
    Screen().Beep();
    Screen().MessageBox(
        "The selected attribute has the same importance order as the reference attribute. It is not necessary to make "
        "tradeoffs between them.",
        kExclamation, kKesta);
    imgcmbTargetAtt.SelectedItem = mTargetAtt + 1;
    return;
  }
  mRefPairActive = 0;
  if (k == r) {  // never so: a reference has its own rank, and that was refused
    Screen().Beep();
    Screen().MessageBox("Please choose different attributes to make pairwise comparisons!", kExclamation, kKesta);
    return;
  }
  mTargetAtt = static_cast<Integer>(k);
  mRefAtt = r;
  ShowPair();
  ShowRegion(data_.WeightDone[k] ? mHandlePos[k] : RegionOf(k));
  ShowOrderPanel();
  cmdEnter.Enabled = true;
}

void frmDirectB::ChooseReferencePair() {
  mRefAtt = data_.BRefAttID;
  mTargetAtt = data_.CRefAttID;
  mRefPairActive = 1;
  ShowPair();
  ShowRefPairRegion();
  cmdEnter.Enabled = true;
}

void frmDirectB::ShowPair() {
  const int t = mTargetAtt;
  const int r = mRefAtt;
  Chart.lblChartTarAtt.Caption = Trim(data_.AttName(t));
  Chart.lblChartRefAtt.Caption = Trim(data_.AttName(r));
  lblTargetAtt.Caption = Chart.lblChartTarAtt.Caption();
  lblRefAtt.Caption = Chart.lblChartRefAtt.Caption();

  const bool benefitReference = r == data_.BRefAttID && data_.BRankCount > 0;
  const int targetMark = IsReference(data_, t) ? (benefitReference ? 3 : 1) : (benefitReference ? 0 : 2);
  Chart.imgRefAtt.Picture = Chart.imgMarks[benefitReference ? 1 : 3].Picture;
  Chart.imgTargetAtt.Picture = Chart.imgMarks[targetMark].Picture;
  Chart.imgRefAtt.ToolTipText = data_.AttDescription(r);
  Chart.imgTargetAtt.ToolTipText = data_.AttDescription(t);

  // It is the target alone that decides in which order the ranges are shown.
  const AttValueData& values = data_.AttValueData;
  const bool worstFirst = data_.IsBenefit(t);
  const Array<Double>& low = worstFirst ? values.WorstScore : values.BestScore;
  const Array<Double>& high = worstFirst ? values.BestScore : values.WorstScore;
  lblTarRangeLow.Caption = NumberText(low[t]);
  lblTarRangeHigh.Caption = NumberText(high[t]);
  lblRefRangeLow.Caption = NumberText(low[r]);
  lblRefRangeHigh.Caption = NumberText(high[r]);
}

void frmDirectB::ShowOrderPanel() {
  tsTab.SelectedItem = 1;
  Importance.BringToFront(data_.IsBenefit(mTargetAtt));
}

void frmDirectB::tsTab_Click() {
  if (tsTab.SelectedItem == 1) {
    ShowOrderPanel();
  } else if (tsTab.SelectedItem == 2) {
    framePerfRange.ZOrder();
  }
}

}  // namespace Tarnwise
