#include "ordering/frmIniImpOrder.h"

#include "judging/Intervals.h"
#include "runtime/Numbers.h"
#include "view/Platform.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr Colour kRed = 255;
constexpr Colour kBlue = 16711680;

}  // namespace

frmIniImpOrder::frmIniImpOrder(std::shared_ptr<Platform> platform, WizardData& wizardData)
    : IniImpOrderForm(std::move(platform)),
      data_(wizardData),
      benefitRanks_(Group::Benefit, BRank, BRank, *this, order_, data_),
      costRanks_(Group::Cost, CRank, BRank, *this, order_, data_),
      benefitReference_(Group::Benefit, BReference, picIndicator[0], data_),
      costReference_(Group::Cost, CReference, picIndicator[1], data_) {
  for (ReferencePanel* panel : {&benefitReference_, &costReference_}) {
    panel->Chosen = [this] {
      if (benefitReference_.HasName() && costReference_.HasName()) cmdNext.Enabled = true;
    };
  }
  DragOver = [](Control& source, Single /*x*/, Single /*y*/, DragState state) {
    if (state == DragState::Leave) source.MousePointer = kNoDrop;
    if (state == DragState::Enter) source.MousePointer = kDefaultPointer;
  };
  Timer1.Tick = [this] { Timer1_Timer(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  cmdBack.Click = [this] { cmdBack_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdHelp.Click = [this] { Screen().Help(*this, HelpPath(data_), kHelpShowContext, kHelpContext); };
}

void frmIniImpOrder::Disconnect() {
  UnloadTarnwise = nullptr;
  UnloadIniImpOrder = nullptr;
  ShowTRNDirectB = nullptr;
  ShowTRNSelMethod = nullptr;
  ShowTRNTradeOffsB = nullptr;
  SendMasseges = nullptr;
}

void frmIniImpOrder::Load() {
  OpenRankOrder(order_, data_);
  cmdNext.Enabled = false;
  cmdFinish.Enabled = false;
  for (const Group g : {Group::Benefit, Group::Cost}) {
    RankPanel& ranks = g == Group::Benefit ? benefitRanks_ : costRanks_;
    BuildLists(g);
    ranks.BuildFirstRow();
    ranks.EnableRowButtons(GroupSize(data_, g) > 1);
  }
  if (data_.HasStoredJudgments()) {
    RankFromSavedWeights(order_, data_);
    for (const Group g : {Group::Benefit, Group::Cost}) {
      RankPanel& ranks = g == Group::Benefit ? benefitRanks_ : costRanks_;
      if (AtRowLimit(order_, data_, g)) ranks.EnableRowButtons(false);
      ranks.RestorePanels();
    }
    cmdNext.Enabled = true;
  }
  ShowStage(0);
  Raise(SendMasseges, "Rank the attributes according to their relative importance.");
}

void frmIniImpOrder::BuildLists(Group g) {
  const bool benefit = g == Group::Benefit;
  RankPanel& ranks = benefit ? benefitRanks_ : costRanks_;
  int k = 0;
  for (int i = 0; i < data_.NumAtts(); ++i) {
    if (!InGroup(data_, i, g)) continue;
    ranks.AddToList(k, i);
    (benefit ? benefitReference_ : costReference_).AddButton(k, (benefit ? BRank : CRank).cmdAttA[k]);
    ++k;
  }
  ranks.FinishList(k);
}

void frmIniImpOrder::ShowStage(int stage) {
  Stage = CheckedInteger(stage);
  picPanel[stage].ZOrder();
  Timer1.Interval = stage == 0 ? 0 : 300;
  if (stage == 0) {
    Caption = "Tarnwise: Give rank orders of the attirbutes";
    SetHeading("Which attributes matter more?",
               "Drag each attribute onto a rank; rank 1 is the most important. Attributes on one rank matter equally.");
  } else {
    Caption = "Tarnwise: Designate reference attributes";
    SetHeading("What shall the attributes be compared with?",
               "Click one attribute in each group. All weights of the group will be judged against it.");
  }
}

void frmIniImpOrder::cmdNext_Click() {
  if (Stage == 0) {
    NextOfStage1();
  } else {
    NextOfStage2();
  }
}

void frmIniImpOrder::NextOfStage1() {
  CommitRankOrder(order_, data_);
  for (ReferencePanel* panel : {&benefitReference_, &costReference_}) panel->BuildDisplay();
  if (data_.HasStoredJudgments()) {
    for (ReferencePanel* panel : {&benefitReference_, &costReference_}) panel->ChooseSavedReference();
    cmdNext.Enabled = true;
  } else {
    for (ReferencePanel* panel : {&benefitReference_, &costReference_}) panel->ForgetName();
  }
  ShowStage(1);
}

void frmIniImpOrder::NextOfStage2() {
  if (!data_.OrderChanged && data_.HasStoredJudgments()) {
    RestoreRatios();
  } else {
    SeedRatios();
  }
  if (data_.MethodIndex == 0) {
    Raise(ShowTRNDirectB);
  } else if (data_.MethodIndex == 1) {
    Raise(ShowTRNTradeOffsB);
  }
}

void frmIniImpOrder::SeedRatios() {
  SeedIntervals(data_);
  data_.RefAttWR = Integer(1);
}

void frmIniImpOrder::RestoreRatios() {
  const SavedJudgments& saved = data_.SavedJudgments;
  for (int i = 0; i < data_.NumAtts(); ++i) {
    StoreInterval(data_, i, {saved.SavedWeightsL[i], saved.SavedWeights[i], saved.SavedWeightsH[i]});
    data_.WeightDone[i] = true;
  }
  data_.RefAttWR = saved.SavedRefAttWR;
}

void frmIniImpOrder::cmdBack_Click() {
  if (Stage != 0) {
    BackOfStage2();
    return;
  }
  Raise(ShowTRNSelMethod);
  Raise(UnloadIniImpOrder);
}

void frmIniImpOrder::BackOfStage2() {
  benefitReference_.Hide(data_.BAttCount);
  costReference_.Hide(data_.CAttCount);
  order_.BLoadedRows = std::max(order_.BLoadedRows, data_.BAttCount);
  order_.CLoadedRows = std::max(order_.CLoadedRows, data_.CAttCount);
  ShowStage(0);
  cmdNext.Enabled = true;
}

void frmIniImpOrder::cmdCancel_Click() { Raise(UnloadTarnwise, data_.FileIndex, false); }

void frmIniImpOrder::Timer1_Timer() {
  picIndicator.Each([](PictureBox& mark) { mark.BackColor = mark.BackColor == kRed ? kBlue : kRed; });
}

}  // namespace Tarnwise
