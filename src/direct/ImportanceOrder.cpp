#include "direct/ImportanceOrder.h"

#include "runtime/Text.h"

namespace Tarnwise {

ImportanceOrder::ImportanceOrder(OrderDisplay& benefit, OrderDisplay& cost) : benefit_(benefit), cost_(cost) {
  for (OrderDisplay* order : {&benefit_, &cost_}) Scrolls(order->vsrO, order->picOP);
}

void ImportanceOrder::Build(const WizardData& data) {
  BuildAttributeButtons(data);
  BuildOrderPanel(data, Group::Benefit);
  BuildOrderPanel(data, Group::Cost);
}

void ImportanceOrder::BringToFront(bool benefit) { Of(benefit).picOrderFrame.ZOrder(); }

void ImportanceOrder::BuildAttributeButtons(const WizardData& data) {
  int places[] = {0, 0};
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (!data.IsBenefit(i) && !data.IsCost(i)) continue;
    const bool benefit = data.IsBenefit(i);
    OrderDisplay& order = Of(benefit);
    const int k = places[benefit ? 0 : 1]++;
    CommandButton& button = k == 0 ? order.cmdAttButtons[0] : order.cmdAttButtons.Load(k);
    button.Caption = Trim(data.AttName(i));
    button.Tag = (benefit ? "A" : "C") + std::to_string(i);
    button.BackColor = benefit ? kBenefitColour : kCostColour;
    button.TabIndex = -1;
    button.Top = order.cmdAttButtons[0].Top + static_cast<Single>(k) * (button.Height + 30.0F);
  }
}

void ImportanceOrder::BuildOrderPanel(const WizardData& data, Group g) {
  OrderDisplay& order = Of(g == Group::Benefit);
  order.vsrO.Visible = false;
  order.vsrO.SetValue(0);
  order.vsrO.Height = order.picOrderFrame.Height - 60.0F;
  if (LayOutRows(order, FinishedRanks(data, g)) <= order.picOrderFrame.Height + 20.0F) return;
  order.vsrO.Visible = true;
  order.vsrO.Min = 0;
  order.vsrO.Max = static_cast<int>(order.picOP.Height());
  order.vsrO.LargeChange = 500;
  order.vsrO.SmallChange = 100;
}

}  // namespace Tarnwise
