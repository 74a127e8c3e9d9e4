// The first step: which approach, and whether consistency is controlled.
#pragma once

#include "forms/SelMethodForm.h"
#include "model/StepEvents.h"
#include "model/mdTRNMain.h"

namespace Tarnwise {

struct frmTRNSelMethod : SelMethodForm {
  frmTRNSelMethod(std::shared_ptr<Platform> platform, WizardData& wizardData);

  std::function<void(Integer fIndex, Boolean WeightsDone)> UnloadTarnwise;
  std::function<void()> ShowTRNIniImpOrder;
  std::function<void(const String& Msg)> SendMasseges;

  void Load() override;
  void Activate() override;
  void CloseBox() override { cmdCancel_Click(); }
  void Disconnect() override;

 private:
  void lstMethods_Click();
  void cmdNext_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();

  WizardData& data_;
};

}  // namespace Tarnwise
