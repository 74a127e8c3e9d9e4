#include "direct/frmDirectB.h"

#include "judging/JudgmentLights.h"
#include "judging/ResultsGrids.h"
#include "judging/TargetList.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

constexpr const char* kJudgmentTitle = "Tarnwise: Estimate intervals of the weight ratios";
constexpr const char* kResultsTitle = "Tarnwise: Results of the value judgments";
constexpr int kHourglass = 11;

}  // namespace

frmDirectB::frmDirectB(std::shared_ptr<Platform> platform, WizardData& wizardData)
    : DirectBForm(std::move(platform)), data_(wizardData) {
  ConnectChart();
  ConnectEntryBox(txtWRLower, kLowerBox);
  ConnectEntryBox(txtWRUpper, kUpperBox);
  for (OrderDisplay* order : {&BOrder, &COrder}) {
    const auto follow = [order] { order->picOP.Top = static_cast<Single>(-order->vsrO.Value()); };
    order->vsrO.Change = follow;
    order->vsrO.Scroll = follow;
  }
  imgcmbTargetAtt.Click = [this] { imgcmbTargetAtt_Click(); };
  tsTab.Click = [this] { tsTab_Click(); };
  Results.tsWeightRatios.Click = [this] { tsWeightRatios_Click(); };
  cmdEnter.Click = [this] { cmdEnter_Click(); };
  cmdReStart.Click = [this] { cmdReStart_Click(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  cmdBack.Click = [this] { cmdBack_Click(); };
  cmdFinish.Click = [this] { cmdFinish_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdHelp.Click = [this] { cmdHelp_Click(); };
}

void frmDirectB::Disconnect() {
  UnloadTarnwise = nullptr;
  UnloadDirectB = nullptr;
  ExportDirectBW = nullptr;
  SendMasseges = nullptr;
}

void frmDirectB::Load() {
  mLoading = 1;
  mHandlePos.Allocate(data_.NumAtts());
  NameStage(0);
  picPanel[0].ZOrder();
  BuildAttributeButtons();
  BuildOrderPanel(Group::Benefit);
  BuildOrderPanel(Group::Cost);
  FillTargetList();
  if (data_.HasStoredJudgments()) {
    for (int i = 0; i < data_.NumAtts(); ++i) ComputeStoredRegion(i);
    ShowDefaultRegion(mTargetAtt);
    cmdNext.Enabled = true;
    cmdFinish.Enabled = true;
  } else {
    ShowDefaultRegion(mTargetAtt);
    cmdNext.Enabled = false;
  }
  ShowLightsFor(Lights, data_.IncnsistCtrl != 0);
  ShowOrderPanel();
  mLoading = 0;
}

void frmDirectB::NameStage(int stage) {
  mResultsStage = static_cast<Integer>(stage);
  if (stage == 0) {
    Caption = kJudgmentTitle;
    SetHeading("How important is each attribute, compared with its reference?",
               "Drag the two handles until the region holds every weight ratio that you find reasonable, or type the "
               "interval; then press Enter.");
  } else {
    Caption = kResultsTitle;
    SetHeading("These are your judgments", "Go back to change one, or finish to hand them over.");
  }
}

void frmDirectB::BuildAttributeButtons() {
  int places[] = {0, 0};
  for (int i = 0; i < data_.NumAtts(); ++i) {
    if (!data_.IsBenefit(i) && !data_.IsCost(i)) continue;
    const bool benefit = data_.IsBenefit(i);
    OrderDisplay& order = benefit ? BOrder : COrder;
    const int k = places[benefit ? 0 : 1]++;
    CommandButton& button = k == 0 ? order.cmdAttButtons[0] : order.cmdAttButtons.Load(k);
    button.Caption = Trim(data_.AttName(i));
    button.Tag = (benefit ? "A" : "C") + std::to_string(i);
    button.BackColor = benefit ? kBenefitColour : kCostColour;
    button.TabIndex = -1;  // only to look at
    button.Top = order.cmdAttButtons[0].Top + static_cast<Single>(k) * (button.Height + 30.0F);
  }
}

void frmDirectB::BuildOrderPanel(Group g) {
  OrderDisplay& order = g == Group::Benefit ? BOrder : COrder;
  order.vsrO.Visible = false;
  order.vsrO.SetValue(0);
  order.vsrO.Height = order.picOrderFrame.Height - 60.0F;
  if (LayOutRows(order, FinishedRanks(data_, g)) <= order.picOrderFrame.Height + 20.0F) return;
  order.vsrO.Visible = true;
  order.vsrO.Min = 0;
  order.vsrO.Max = static_cast<int>(order.picOP.Height());
  order.vsrO.LargeChange = 500;
  order.vsrO.SmallChange = 100;
}

void frmDirectB::FillTargetList() {
  Screen().SetPointer(kHourglass);
  FillTargetItems(imgcmbTargetAtt, data_);
  mTargetAtt = static_cast<Integer>(FirstTarget(data_));
  mRefAtt = ReferenceOf(data_, mTargetAtt);
  imgcmbTargetAtt.SelectedItem = mTargetAtt + 1;
  ShowPair();
  Raise(SendMasseges, " Indicate a value reference region on the two selected attributes.");
  Screen().SetPointer(0);
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
  if (data_.WeightDone[k]) {
    ShowStoredRegion(k);
  } else {
    ShowDefaultRegion(k);
  }
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
  (data_.IsBenefit(mTargetAtt) ? BOrder : COrder).picOrderFrame.ZOrder();
}

void frmDirectB::tsTab_Click() {
  if (tsTab.SelectedItem == 1) {
    ShowOrderPanel();
  } else if (tsTab.SelectedItem == 2) {
    framePerfRange.ZOrder();
  }
}

void frmDirectB::tsWeightRatios_Click() {
  const int tab = Results.tsWeightRatios.SelectedItem;
  if (tab != 1 && tab != 2) return;
  Results.gridBRJ.Visible = tab == 1;
  Results.gridCRJ.Visible = tab == 2;
}

void frmDirectB::cmdEnter_Click() {
  Screen().SetPointer(kHourglass);
  if (IsReferencePair(data_, mTargetAtt, mRefAtt)) {
    data_.RefAttWR = Val(txtWRLower.Text());
  } else {
    mHandlePos[mTargetAtt] = HandleCentres();
    CommitJudgment(mTargetAtt);
  }
  Screen().SetPointer(0);
}

// What the boxes show is what is stored, two decimals and not the handle's full precision.
void frmDirectB::CommitJudgment(int att) {
  CommitInterval(data_, att, Val(txtWRLower.Text()), Val(txtWRUpper.Text()), [this, att](int k) {
    mHandlePos[k] = mHandlePos[att];
    MarkJudged(imgcmbTargetAtt, data_, k);
  });
  cmdEnter.Enabled = false;
  cmdReStart.Enabled = true;
  if (AllJudged(data_)) {
    cmdFinish.Enabled = true;
    cmdNext.Enabled = true;
  }
}

void frmDirectB::cmdReStart_Click() {
  ResetJudgments();
  cmdEnter.Enabled = true;
  cmdReStart.Enabled = false;
  cmdNext.Enabled = false;
}

void frmDirectB::ResetJudgments() {
  Screen().SetPointer(kHourglass);
  imgcmbTargetAtt.Clear();
  SetDefaultIntervals(data_);
  FillTargetList();
  ShowDefaultRegion(mTargetAtt);
  if (tsTab.SelectedItem == 1) ShowOrderPanel();  // else the ranges stay in front
  Screen().SetPointer(0);
}

void frmDirectB::cmdNext_Click() {
  NameStage(1);
  cmdBack.Enabled = true;
  cmdFinish.Enabled = true;
  cmdNext.Enabled = false;
  ShowResults(Results.gridBRJ, Results.gridCRJ, data_);
  picPanel[1].ZOrder();
  Results.gridBRJ.ZOrder();
}

void frmDirectB::cmdBack_Click() {
  if (mResultsStage == 0) {
    Raise(UnloadDirectB);
    return;
  }
  NameStage(0);
  cmdFinish.Enabled = false;
  cmdNext.Enabled = true;
  picPanel[0].ZOrder();
}

void frmDirectB::cmdFinish_Click() {
  Screen().SetPointer(kHourglass);
  Raise(ExportDirectBW, kDirectType, data_.BRefAttID, data_.CRefAttID, data_.RefAttWR, data_.Weights, data_.WeightsH,
        data_.WeightsL);
  Screen().SetPointer(0);
  Raise(UnloadTarnwise, data_.FileIndex, true);
}

void frmDirectB::cmdCancel_Click() { Raise(UnloadTarnwise, data_.FileIndex, false); }

void frmDirectB::cmdHelp_Click() { Screen().Help(*this, HelpPath(data_), kHelpShowContext, kHelpContext); }

}  // namespace Tarnwise
