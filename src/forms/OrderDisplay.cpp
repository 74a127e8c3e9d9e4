#include "forms/OrderDisplay.h"

namespace Tarnwise {

namespace {

constexpr Single kFirstButtonTop = 180.0F;

Single RowWidth(const OrderDisplay& display) { return display.picOP.Width - kRowLeft - 120.0F; }

void PlaceButton(const OrderDisplay& display, CommandButton& button, Single top) {
  Place(button, 770.0F, top, RowWidth(display) - 580.0F, kAttButtonHeight);
}

}  // namespace

String Named(const char* name, bool benefit) { return benefit ? name : String(name) + "1"; }

OrderDisplay::OrderDisplay(Form& form, Control& stage, bool benefit, int tabIndex)
    : picOrderFrame(form, &stage, Named("picOrderFrame", benefit)),
      picOP(form, &picOrderFrame, Named("picOP", benefit)),
      vsrO(form, &picOrderFrame, Named("vsrO", benefit)),
      picO(form, &picOP, Named("picO", benefit),
           [](PictureBox& row) {
             row.BackColor = kRowColour;
             row.Bordered = true;
             row.Visible = false;
           }),
      lblOID(form, &picOP, Named("lblOID", benefit),
             [](Label& label) {
               Place(label, 90.0F, 120.0F, kRowLeft - 90.0F, kAttButtonHeight);
               label.Alignment = Align::Centre;
               label.Bold = true;
               label.Visible = false;
             }),
      cmdAttButtons(form, &picOP, Named("cmdAttButtons", benefit), [this, benefit, tabIndex](CommandButton& button) {
        PlaceButton(*this, button, kFirstButtonTop);
        button.BackColor = benefit ? kBenefitColour : kCostColour;
        button.Visible = false;
        button.TabIndex = tabIndex;
      }) {
  vsrO.TabIndex = tabIndex + 1;
  vsrO.AccessibleName = "Scroll the ranks";
}

void PlaceViewport(PictureBox& box, Single left, Single top, Single width, Single height) {
  Place(box, left, top, width, height);
  box.BackColor = kWhite;
  box.Bordered = true;
}

void PlaceBar(VScrollBar& bar, const Control& viewport, int max) {
  Place(bar, viewport.Width - kScrollBarWidth - 30.0F, 0.0F, kScrollBarWidth, viewport.Height - 60.0F);
  bar.Max = max;
  bar.SmallChange = 100;
  bar.LargeChange = 500;
}

void Scrolls(VScrollBar& bar, PictureBox& content) {
  const auto follow = [&bar, &content] { content.Top = static_cast<Single>(-bar.Value()); };
  bar.Change = follow;
  bar.Scroll = follow;
}

void PlaceDisplay(OrderDisplay& display, Single left, Single top, Single width) {
  PlaceViewport(display.picOrderFrame, left, top, width, kOrderFrameHeight);
  Place(display.picOP, 0.0F, 0.0F, width - kScrollBarWidth - 60.0F, kOrderContentHeight);
  display.picOP.BackColor = kWhite;
  PlaceButton(display, display.cmdAttButtons[0], kFirstButtonTop);
  PlaceBar(display.vsrO, display.picOrderFrame, static_cast<int>(kOrderContentHeight));
}

Single LayOutRows(OrderDisplay& display, const std::vector<FinishedRank>& ranks) {
  const Single width = RowWidth(display);
  Single bottom = 0.0F;
  for (int k = 0; k < static_cast<int>(ranks.size()); ++k) {
    PictureBox& row = display.picO.Has(k) ? display.picO[k] : display.picO.Load(k);
    Label& label = display.lblOID.Has(k) ? display.lblOID[k] : display.lblOID.Load(k);
    const FinishedRank& rank = ranks[static_cast<std::size_t>(k)];
    Place(row, kRowLeft, bottom + 120.0F, width, static_cast<Single>(rank.Size) * kAttButtonHeight + 140.0F);
    row.Tag = std::to_string(k + 1);
    row.Visible = true;
    row.ZOrder();
    label.Top = row.Top();
    label.Tag = row.Tag();
    label.Caption = row.Tag();
    label.Visible = true;
    for (std::size_t j = 0; j < rank.Atts.size(); ++j) {
      display.cmdAttButtons.Each([&](CommandButton& button) {
        if (button.Tag().empty() || button.Tag().substr(1) != std::to_string(rank.Atts[j])) return;
        PlaceButton(display, button, row.Top + 60.0F + static_cast<Single>(j) * kAttButtonHeight);
        button.Visible = true;
        button.ZOrder();
      });
    }
    bottom = row.Top + row.Height;
  }
  return bottom;
}

}  // namespace Tarnwise
