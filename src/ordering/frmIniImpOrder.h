// The second step: rank orders by drag and drop (stage 1), then a reference attribute for each group (stage 2).
#pragma once

#include "model/StepEvents.h"
#include "ordering/RankPanel.h"
#include "ordering/ReferencePanel.h"

namespace Tarnwise {

struct frmIniImpOrder : IniImpOrderForm {
  frmIniImpOrder(std::shared_ptr<Platform> platform, WizardData& wizardData);

  std::function<void(Integer fIndex, Boolean WeightsDone)> UnloadTarnwise;
  std::function<void()> UnloadIniImpOrder;
  std::function<void()> ShowTRNDirectB;
  std::function<void()> ShowTRNSelMethod;
  std::function<void()> ShowTRNTradeOffsB;
  std::function<void(const String& Msg)> SendMasseges;

  void Load() override;
  void CloseBox() override { cmdCancel_Click(); }
  void Disconnect() override;

  Integer Stage = 0;

 private:
  void BuildLists(Group g);
  void ShowStage(int stage);
  void NextOfStage1();
  void NextOfStage2();
  void BackOfStage2();
  void SeedRatios();
  void RestoreRatios();

  void cmdNext_Click();
  void cmdBack_Click();
  void cmdCancel_Click();
  void Timer1_Timer();

  WizardData& data_;
  RankOrder order_;
  RankPanel benefitRanks_;
  RankPanel costRanks_;
  ReferencePanel benefitReference_;
  ReferencePanel costReference_;
};

}  // namespace Tarnwise
