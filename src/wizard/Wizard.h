// The class behind TRN_DEA: the four step forms and what their events lead to. It has no data of its own beside them;
// the steps share the wizard data.
#pragma once

#include "direct/frmDirectB.h"
#include "ordering/frmIniImpOrder.h"
#include "selection/frmTRNSelMethod.h"
#include "tradeoffs/frmTradeOffsB.h"

#include <tarnwise/TRN_DEA.h>

namespace Tarnwise {

struct TRN_DEA::Wizard : std::enable_shared_from_this<TRN_DEA::Wizard> {
  explicit Wizard(std::shared_ptr<Platform> platform) : Screen(std::move(platform)), Data(mdTRNMain()) {}

  // The step forms, empty until first shown and again once released.
  std::shared_ptr<frmTRNSelMethod> mSelMethod;
  std::shared_ptr<frmIniImpOrder> mIniImpOrder;
  std::shared_ptr<frmDirectB> mDirectB;
  std::shared_ptr<frmTradeOffsB> mTRNTradeOffsB;

  TRN_DEA_Events Events;
  const std::shared_ptr<Platform> Screen;
  WizardData& Data;

  void ShowTarnwise();
  void UnloadTarnwise();

  // Relays to the host.
  void RelaySendMasseges(const String& Msg);
  void RelayUnloadTarnwise(Integer fIndex, Boolean WeightsDone);
  void RelayExportDirectBW(const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                           Array<Variant>& Weights, Array<Variant>& WeightsH, Array<Variant>& WeightsL);
  void mTRNTradeOffsB_ExportABScores(PointArrays& points);

  // Navigation.
  void mSelMethod_ShowTRNIniImpOrder();
  void mIniImpOrder_ShowTRNSelMethod();
  void mIniImpOrder_ShowTRNDirectB();
  void mIniImpOrder_ShowTRNTradeOffsB();
  void mIniImpOrder_UnloadIniImpOrder();
  void mDirectB_UnloadDirectB();
  void mTRNTradeOffsB_UnloadTRNTradeOffsB();

 private:
  void ConnectSelMethod();
  void ConnectIniImpOrder();
  void ConnectDirectB();
  void ConnectTradeOffsB();
};

}  // namespace Tarnwise
