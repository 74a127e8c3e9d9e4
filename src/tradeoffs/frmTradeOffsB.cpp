#include "tradeoffs/frmTradeOffsB.h"

#include "judging/Intervals.h"
#include "judging/JudgmentLights.h"
#include "judging/ResultsGrids.h"
#include "judging/TargetList.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

constexpr const char* kJudgmentTitle = "Tarnwise: Give your preference between the two selected criteria";
constexpr const char* kResultsTitle = "Tarnwise: Results of the value judgments";
constexpr int kHourglass = 11;
constexpr Colour kWhite = 0xFFFFFF;

// The points that were worked on, with the orientations as they came from the host.
PointArrays ExportedPoints(const WizardData& data) {
  Array<ABPoint> points;
  points.Allocate(data.NumAtts());
  for (int i = 0; i < points.Count(); ++i) {
    points[i] = data.ABPoints2[i];
    points[i].AOrientation = data.ABPoints1[i].AOrientation;
  }
  return ArraysOf(points);
}

}  // namespace

frmTradeOffsB::frmTradeOffsB(std::shared_ptr<Platform> platform, WizardData& wizardData)
    : TradeOffsBForm(std::move(platform)), data_(wizardData) {
  ConnectChart();
  ConnectScores();
  ConnectUncertainty();
  imgcmbTargetAtt.Click = [this] { imgcmbTargetAtt_Click(); };
  tbsTradeOffs.Click = [this] { tbsTradeOffs_Click(); };
  Results.tsWeightRatios.Click = [this] { tsWeightRatios_Click(); };
  cmdEnter.Click = [this] { cmdEnter_Click(); };
  cmdReStart.Click = [this] { cmdReStart_Click(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  cmdBack.Click = [this] { cmdBack_Click(); };
  cmdFinish.Click = [this] { cmdFinish_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdHelp.Click = [this] { cmdTarnwiseHelp_Click(); };
  cmdTarnwisePrint.Click = [this] { cmdTarnwisePrint_Click(); };
}

void frmTradeOffsB::Disconnect() {
  UnloadTarnwise = nullptr;
  UnloadTRNTradeOffsB = nullptr;
  ExportTradeOffsBW = nullptr;
  ExportABScores = nullptr;
  SendMasseges = nullptr;
}

void frmTradeOffsB::Load() {
  Screen().SetPointer(kHourglass);
  mLoading = 1;
  mScoresDirty = 0;
  cmdNext.Enabled = false;
  cmdFinish.Enabled = false;
  cmdReStart.Enabled = false;
  NamePage(1);
  picTabs[0].ZOrder();
  Scores.framePCNumericalC.ZOrder();
  bool judged = true;
  if (data_.RJType() == kTradeOffsType && !data_.OrderChanged) {
    ResumeTradeOffs();
  } else if (data_.RJType() == kDirectType) {
    ResumeFromDirect();
  } else {
    StartFresh();
    judged = false;
  }
  cmdNext.Enabled = judged;
  if (judged) cmdFinish.Enabled = true;
  ShowLightsFor(Lights, data_.IncnsistCtrl != 0);
  mScoresBad = 0;
  mLoading = 0;
  Raise(SendMasseges, " Give your preference between the two selected criteria.");
  Screen().SetPointer(0);
}

void frmTradeOffsB::StartFresh() {
  SuggestAll(data_);
  FillTargetList();
}

void frmTradeOffsB::ResumeTradeOffs() { FillTargetList(); }

void frmTradeOffsB::ResumeFromDirect() {
  SuggestFromIntervals(data_);
  FillTargetList();
}

void frmTradeOffsB::FillTargetList() {
  FillTargetItems(imgcmbTargetAtt, data_);
  mTargetAtt = static_cast<Integer>(FirstTarget(data_));
  mRefAtt = ReferenceOf(data_, mTargetAtt);
  imgcmbTargetAtt.SelectedItem = mTargetAtt + 1;
  ShowFirstTarget();
}

void frmTradeOffsB::ShowFirstTarget() {
  mScoresDirty = 0;
  EnableToolbars();
  LoadABRecord(mTargetAtt);
  ShowCriteria();
  BuildChart();
  ShowScores(mTargetAtt);
  ShowDifferences();
  SetUncertaintyTools(Points.AOrientation);
  FillChangeSteps();
  ShowLampsAtRest(Lights);
  PlaceABMarks();
  DrawUncertaintyLine();
  cmdEnter.Enabled = true;
}

void frmTradeOffsB::LoadABRecord(int att) { Points = data_.ABPoints2[att]; }

void frmTradeOffsB::ShowCriteria() {
  Scores.labPCCriterion1.Caption = Trim(data_.AttName(mTargetAtt));
  Scores.labPCCriterion2.Caption = Trim(data_.AttName(mRefAtt));
}

void frmTradeOffsB::imgcmbTargetAtt_Click() {
  if (mLoading == 1) return;
  mScoresDirty = 0;
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
  EnableToolbars();
  LoadABRecord(mTargetAtt);
  ShowCriteria();
  BuildChart();
  PlaceABMarks();
  ShowScores(mTargetAtt);
  ShowDifferences();
  if (IsRefPair()) {
    Chart.picTradeOffsRange.Cls();
  } else {
    SetUncertaintyTools(Points.AOrientation);
    FillChangeSteps();
    DrawUncertaintyLine();
  }
  cmdEnter.Enabled = true;
  Screen().SetPointer(0);
}

void frmTradeOffsB::RefuseTarget(bool benefit) {
  Screen().Beep();
  Screen().MessageBox(String("The selected attribute is in the same group with the reference attribute for the ") +
                          (benefit ? "benefit-oriened" : "cost-oriented") +
                          " ones. It is not necessary to make tradeoffs between them.",
                      kExclamation, kKesta);
  imgcmbTargetAtt.SelectedItem = mTargetAtt + 1;
}

void frmTradeOffsB::cmdEnter_Click() {
  Screen().SetPointer(kHourglass);
  data_.ABPoints2[mTargetAtt] = Points;
  if (IsRefPair()) {
    data_.RefAttWR = StrictNumber(RefPairRatio(data_, mTargetAtt, mRefAtt, Points.AX, Points.AY, Points.BX, Points.BY));
  } else {
    CommitJudgment(mTargetAtt);
  }
  Screen().SetPointer(0);
}

void frmTradeOffsB::CommitJudgment(int att) {
  const TradeOffRatios ratios = RatiosOf(data_, mTargetAtt, mRefAtt, Points);
  CommitTradeOff(data_, att, ratios, [this](int k) { MarkJudged(imgcmbTargetAtt, data_, k); });
  cmdEnter.Enabled = false;
  cmdReStart.Enabled = true;
  if (AllJudged(data_)) {
    cmdFinish.Enabled = true;
    cmdNext.Enabled = true;
  }
}

void frmTradeOffsB::cmdReStart_Click() {
  Screen().SetPointer(kHourglass);
  imgcmbTargetAtt.Clear();
  SetDefaultIntervals(data_);
  StartFresh();
  cmdEnter.Enabled = true;
  cmdReStart.Enabled = false;
  cmdNext.Enabled = false;
  Screen().SetPointer(0);
}

void frmTradeOffsB::NamePage(int page) {
  mPage = static_cast<Integer>(page);
  if (page == 1) {
    Caption = kJudgmentTitle;
    SetHeading("When are A and B equally good to you?",
               "Drag A and B on the chart, or change their scores, until you would not mind which one you get; then "
               "press Enter.");
  } else {
    Caption = kResultsTitle;
    SetHeading("These are your judgments", "Go back to change one, or finish to hand them over.");
  }
}

void frmTradeOffsB::cmdNext_Click() {
  NamePage(2);
  cmdBack.Enabled = true;
  cmdFinish.Enabled = true;
  cmdNext.Enabled = false;
  ShowResults(Results.gridBRJ, Results.gridCRJ, data_);
  picTabs[1].ZOrder();
}

void frmTradeOffsB::cmdBack_Click() {
  if (mPage == 1) {
    Screen().Hide(*this);
    Raise(UnloadTRNTradeOffsB);
    return;
  }
  NamePage(1);
  cmdFinish.Enabled = false;
  cmdNext.Enabled = true;
  picTabs[0].ZOrder();
}

void frmTradeOffsB::cmdFinish_Click() {
  Screen().SetPointer(kHourglass);
  Raise(ExportTradeOffsBW, kTradeOffsType, data_.BRefAttID, data_.CRefAttID, data_.RefAttWR, data_.Weights,
        data_.WeightsH, data_.WeightsL);
  PointArrays points = ExportedPoints(data_);  // as they stand after the host had the weights
  Raise(ExportABScores, points);
  Screen().SetPointer(0);
  Raise(UnloadTarnwise, data_.FileIndex, true);
}

void frmTradeOffsB::cmdCancel_Click() { Raise(UnloadTarnwise, data_.FileIndex, false); }

void frmTradeOffsB::cmdTarnwiseHelp_Click() { Screen().Help(*this, HelpPath(data_), kHelpShowContext, kHelpContext); }

// Nothing goes to a printer; a print command may be added between the two halves.
void frmTradeOffsB::cmdTarnwisePrint_Click() {
  Screen().SetPointer(kHourglass);
  Frame& frame = Scores.framePCNumericalC;
  Chart.picTradeOffsRange.BackColor = kWhite;
  frame.Left = 0.0F;
  frame.Top = 0.0F;
  Chart.picTradeOffsRange.BackColor = 0;
  frame.Left = 3855.0F;
  frame.Top = 2700.0F;
  Screen().SetPointer(0);
}

void frmTradeOffsB::tbsTradeOffs_Click() {
  if (tbsTradeOffs.SelectedItem == 1) Scores.framePCNumericalC.ZOrder();
  if (tbsTradeOffs.SelectedItem == 2) Uncertainty.frameJdgUnctn.ZOrder();
}

void frmTradeOffsB::tsWeightRatios_Click() {
  if (Results.tsWeightRatios.SelectedItem == 1) Results.gridBRJ.ZOrder();
  if (Results.tsWeightRatios.SelectedItem == 2) Results.gridCRJ.ZOrder();
}

}  // namespace Tarnwise
