#include "selection/frmTRNSelMethod.h"

#include "view/Platform.h"

namespace Tarnwise {

namespace {

constexpr int kDirect = 0;
constexpr int kTradeOffs = 1;

// The trailing blank of the first is part of the text.
const char* AboutMethod(int method) {
  return method == kTradeOffs
             ? "Elict attribute weights by numerical trade-off between two random alternatives. The weight will be "
               "infered by ratio value judgments."
             : "Give attribute weights by directly presenting ranges of the weight ratios ";
}

}  // namespace

frmTRNSelMethod::frmTRNSelMethod(std::shared_ptr<Platform> platform, WizardData& wizardData)
    : SelMethodForm(std::move(platform)), data_(wizardData) {
  lstMethods.Click = [this] { lstMethods_Click(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdHelp.Click = [this] { cmdHelp_Click(); };
}

void frmTRNSelMethod::Disconnect() {
  UnloadTarnwise = nullptr;
  ShowTRNIniImpOrder = nullptr;
  SendMasseges = nullptr;
}

void frmTRNSelMethod::Load() {
  cmdBack.Enabled = false;
  cmdFinish.Enabled = false;
  lstMethods.List = std::vector<String>{"Direct Pairwise Comparisons", "Numerial Pairwise TradeOffs"};
  lstMethods.ListIndex = data_.RJType() == kTradeOffsType ? kTradeOffs : kDirect;
  lstMethods_Click();
  chkIncnsistCtrl.Value = 1;
  data_.IncnsistCtrl = 1;
  Raise(SendMasseges, "Select a method to make value judgments between the attributes.");
}

void frmTRNSelMethod::Activate() {
  cmdBack.Enabled = false;
  cmdFinish.Enabled = false;
}

void frmTRNSelMethod::lstMethods_Click() {
  const int method = lstMethods.ListIndex;
  if (method != kDirect && method != kTradeOffs) return;
  lblDescription.Caption = AboutMethod(method);
  picPicture.Picture = imgPicture[method].Picture;
}

void frmTRNSelMethod::cmdNext_Click() {
  data_.IncnsistCtrl = chkIncnsistCtrl.Value == 1 ? 1 : 0;
  data_.MethodIndex = static_cast<Integer>(lstMethods.ListIndex());
  if (data_.MethodIndex != kDirect && data_.MethodIndex != kTradeOffs) return;
  Raise(ShowTRNIniImpOrder);
}

void frmTRNSelMethod::cmdCancel_Click() { Raise(UnloadTarnwise, data_.FileIndex, false); }

void frmTRNSelMethod::cmdHelp_Click() { Screen().Help(*this, HelpPath(data_), kHelpShowContext, kHelpContext); }

}  // namespace Tarnwise
