// The finished rank orders as the direct step shows them, only to look at.
#pragma once

#include "forms/OrderDisplay.h"

namespace Tarnwise {

struct ImportanceOrder {
  ImportanceOrder(OrderDisplay& benefit, OrderDisplay& cost);

  void Build(const WizardData& data);
  void BringToFront(bool benefit);

 private:
  void BuildAttributeButtons(const WizardData& data);
  void BuildOrderPanel(const WizardData& data, Group g);
  OrderDisplay& Of(bool benefit) { return benefit ? benefit_ : cost_; }

  OrderDisplay& benefit_;
  OrderDisplay& cost_;
};

}  // namespace Tarnwise
