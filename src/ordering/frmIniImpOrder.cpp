#include "ordering/frmIniImpOrder.h"

#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

constexpr Group kGroups[] = {Group::Benefit, Group::Cost};

}  // namespace

int AttOfTag(const String& tag) {
  if (tag.empty()) throw RuntimeError(13);
  return CheckedInteger(static_cast<int>(Val(tag.substr(1))));
}

frmIniImpOrder::frmIniImpOrder(std::shared_ptr<Platform> platform, WizardData& wizardData)
    : IniImpOrderForm(std::move(platform)), data_(wizardData) {
  for (const Group g : kGroups) {
    ConnectGroup(g);
    ConnectDrags(g);
  }
  DragOver = [](Control& source, Single /*x*/, Single /*y*/, DragState state) {
    if (state == DragState::Leave) source.MousePointer = 12;
    if (state == DragState::Enter) source.MousePointer = 0;
  };
  Timer1.Tick = [this] { Timer1_Timer(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  cmdBack.Click = [this] { cmdBack_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdHelp.Click = [this] { cmdHelp_Click(); };
}

void frmIniImpOrder::Disconnect() {
  UnloadTarnwise = nullptr;
  UnloadIniImpOrder = nullptr;
  ShowTRNDirectB = nullptr;
  ShowTRNSelMethod = nullptr;
  ShowTRNTradeOffsB = nullptr;
  SendMasseges = nullptr;
}

void frmIniImpOrder::ConnectGroup(Group g) {
  RankControls& rank = RankOf(g);
  ReferenceControls& reference = ReferenceOf(g);

  const auto scrolls = [](VScrollBar& bar, PictureBox& content) {
    const auto follow = [&bar, &content] { content.Top = static_cast<Single>(-bar.Value()); };
    bar.Change = follow;
    bar.Scroll = follow;
  };
  scrolls(rank.vsrAtt, rank.picAttPLst);
  scrolls(rank.vsrOrder, rank.picOrderCon);
  scrolls(reference.Rows.vsrO, reference.Rows.picOP);

  rank.cmdAdd.Click = [this, g] { AddRow(g); };
  rank.cmdInsert.Click = [this, g] { InsertRow(g); };
  rank.cmdReset.Click = [this, g] { ResetList(g); };
  rank.lblOrderID.Wire([this, g](Label& label) {
    label.Click = [this, g, &label] { SelectRank(g, static_cast<int>(Val(label.Tag()))); };
  });
  reference.Rows.cmdAttButtons.Wire(
      [this, g](CommandButton& button) { button.Click = [this, g, &button] { ChooseReference(g, button); }; });
}

void frmIniImpOrder::Load() {
  OpenRankOrder(order_, data_);
  cmdNext.Enabled = false;
  cmdFinish.Enabled = false;
  for (const Group g : kGroups) {
    BuildList(g);
    BuildFirstRow(g);
    EnableRowButtons(g, GroupSize(data_, g) > 1);
  }
  if (data_.HasStoredJudgments()) {
    RankFromSavedWeights(order_, data_);
    for (const Group g : kGroups) {
      if (AtRowLimit(order_, data_, g)) EnableRowButtons(g, false);
      RestorePanels(g);
    }
    cmdNext.Enabled = true;
  }
  ShowStage(0);
  Raise(SendMasseges, "Rank the attributes according to their relative importance.");
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

void frmIniImpOrder::cmdBack_Click() {
  if (Stage != 0) {
    BackOfStage2();
    return;
  }
  Raise(ShowTRNSelMethod);
  Raise(UnloadIniImpOrder);
}

void frmIniImpOrder::cmdCancel_Click() { Raise(UnloadTarnwise, data_.FileIndex, false); }

void frmIniImpOrder::cmdHelp_Click() { Screen().Help(*this, HelpPath(data_), kHelpShowContext, kHelpContext); }

}  // namespace Tarnwise
