// A released form tells nobody anything more: its events lead nowhere, though a handler of it may still run.
#include "direct/frmDirectB.h"
#include "ordering/frmIniImpOrder.h"
#include "selection/frmTRNSelMethod.h"
#include "support/TestHost.h"
#include "tradeoffs/frmTradeOffsB.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

template <class StepForm>
std::shared_ptr<StepForm> Made(TestScreen& screen, WizardData& data) {
  const auto form = std::make_shared<StepForm>(screen.Screen, data);
  screen.Screen->Created(*form);
  form->UnloadTarnwise = [](Integer, Boolean) {};
  form->SendMasseges = [](const String&) {};
  return form;
}

TEST(ReleasedForm, OfTheFirstStepHasNoEvents) {
  TestScreen screen;
  WizardData data = ModelOf(2, 2);
  const auto form = Made<frmTRNSelMethod>(screen, data);
  form->ShowTRNIniImpOrder = [] {};
  screen.Screen->Release(*form);
  EXPECT_FALSE(form->UnloadTarnwise || form->SendMasseges || form->ShowTRNIniImpOrder);
}

TEST(ReleasedForm, OfTheOrderingStepHasNoEvents) {
  TestScreen screen;
  WizardData data = ModelOf(2, 2);
  const auto form = Made<frmIniImpOrder>(screen, data);
  form->UnloadIniImpOrder = form->ShowTRNDirectB = form->ShowTRNSelMethod = form->ShowTRNTradeOffsB = [] {};
  screen.Screen->Release(*form);
  EXPECT_FALSE(form->UnloadTarnwise || form->SendMasseges);
  EXPECT_FALSE(form->UnloadIniImpOrder || form->ShowTRNSelMethod);
  EXPECT_FALSE(form->ShowTRNDirectB || form->ShowTRNTradeOffsB);
}

TEST(ReleasedForm, OfTheDirectStepHasNoEvents) {
  TestScreen screen;
  WizardData data = ModelOf(2, 2);
  const auto form = Made<frmDirectB>(screen, data);
  form->UnloadDirectB = [] {};
  form->ExportDirectBW = [](auto&&...) {};
  screen.Screen->Release(*form);
  EXPECT_FALSE(form->UnloadTarnwise || form->SendMasseges);
  EXPECT_FALSE(form->UnloadDirectB || form->ExportDirectBW);
}

TEST(ReleasedForm, OfTheTradeOffStepHasNoEvents) {
  TestScreen screen;
  WizardData data = ModelOf(2, 2);
  const auto form = Made<frmTradeOffsB>(screen, data);
  form->UnloadTRNTradeOffsB = [] {};
  form->ExportTradeOffsBW = [](auto&&...) {};
  form->ExportABScores = [](PointArrays&) {};
  screen.Screen->Release(*form);
  EXPECT_FALSE(form->UnloadTarnwise || form->SendMasseges || form->UnloadTRNTradeOffsB);
  EXPECT_FALSE(form->ExportTradeOffsBW || form->ExportABScores);
}

}  // namespace
}  // namespace Tarnwise
