#include "forms/IniImpOrderForm.h"

namespace Tarnwise {

namespace {

constexpr Single kFrameWidth = (kFormWidth - 2 * kMargin - 240.0F) / 2.0F;
constexpr Single kFrameHeight = 6300.0F;
constexpr Single kViewportTop = 750.0F;
constexpr Single kViewportHeight = 4200.0F;  // of a stage 1 list
constexpr Single kListWidth = 3750.0F;
constexpr Single kRankLeft = 4050.0F;
constexpr Single kRankWidth = kFrameWidth - kRankLeft - 180.0F;

Single GroupLeft(bool benefit) { return benefit ? 0.0F : kFrameWidth + 240.0F; }

// Places in the tab order: list, rows, buttons, the benefit group first.
int TabPlace(bool benefit, int part) { return (benefit ? 0 : 400) + part * 50; }

void Button(CommandButton& button, const char* caption, Single left, Single width, int tabIndex) {
  button.Caption = caption;
  button.TabIndex = tabIndex;
  Place(button, left, kViewportTop + kViewportHeight + 240.0F, width, kButtonHeight);
}

void Heading(Label& label, const char* caption, Single left, Single top, Single width) {
  label.Caption = caption;
  label.Bold = true;
  Place(label, left, top, width, 255.0F);
}

}  // namespace

RankControls::RankControls(Form& form, Control& stage, bool benefit)
    : fmOA(form, &stage, benefit ? "fmBOA" : "fmCOA"),
      picAttPanel(form, &fmOA, Named("picAttPanel", benefit)),
      picAttPLst(form, &picAttPanel, Named("picAttPLst", benefit)),
      vsrAtt(form, &picAttPanel, Named("vsrAtt", benefit)),
      cmdAttA(form, &picAttPLst, Named("cmdAttA", benefit),
              [benefit](CommandButton& button) {
                Place(button, 420.0F, 120.0F, 1440.0F, kAttButtonHeight);
                button.BackColor = benefit ? kBenefitColour : kCostColour;
                button.DragAutomatic = true;
                button.TabIndex = TabPlace(benefit, 0);
                button.ToolTipText = "Drag it to its rank";
              }),
      optAttInfo(form, &picAttPLst, Named("optAttInfo", benefit),
                 [benefit](OptionButton& option) {
                   Place(option, 120.0F, 120.0F, 270.0F, kAttButtonHeight);
                   option.AccessibleName = benefit ? "Benefit attribute looked at" : "Cost attribute looked at";
                 }),
      lblAttName(form, &picAttPLst, Named("lblAttName", benefit),
                 [](Label& label) { Place(label, 1920.0F, 120.0F, kListWidth - 1920.0F - 330.0F, kAttButtonHeight); }),
      picOrderPanel(form, &fmOA, Named("picOrderPanel", benefit)),
      picOrderCon(form, &picOrderPanel, Named("picOrderCon", benefit)),
      vsrOrder(form, &picOrderPanel, Named("vsrOrder", benefit)),
      picOrder(form, &picOrderCon, Named("picOrder", benefit),
               [](PictureBox& row) {
                 Place(row, kRowLeft, 120.0F, kRankWidth - kRowLeft - kScrollBarWidth - 180.0F, kRowHeight);
                 row.BackColor = kRowColour;
                 row.Bordered = true;
                 row.AccessibleName = "Rank row";
               }),
      lblOrderID(form, &picOrderCon, Named("lblOrderID", benefit),
                 [](Label& label) {
                   Place(label, 90.0F, 120.0F, kRowLeft - 90.0F, kAttButtonHeight);
                   label.Alignment = Align::Centre;
                   label.Bold = true;
                 }),
      cmdAttB(form, &picOrderCon, Named("cmdAttB", benefit),
              [benefit](CommandButton& button) {
                Place(button, kRowLeft + 200.0F, 180.0F, kRankWidth - kRowLeft - kScrollBarWidth - 580.0F,
                      kAttButtonHeight);
                button.Visible = false;
                button.DragAutomatic = true;
                button.TabIndex = TabPlace(benefit, 1);
              }),
      cmdAdd(form, &fmOA, Named("cmdAdd", benefit)),
      cmdInsert(form, &fmOA, Named("cmdInsert", benefit)),
      cmdReset(form, &fmOA, benefit ? "cmdResetB" : "cmdResetC") {
  Place(fmOA, GroupLeft(benefit), 0.0F, kFrameWidth, kFrameHeight);
  fmOA.Caption = benefit ? "Benefit-oriented attributes:" : "Cost-oriented attributes:";
  PlaceViewport(picAttPanel, 180.0F, kViewportTop, kListWidth, kViewportHeight);
  Place(picAttPLst, 0.0F, 0.0F, kListWidth - kScrollBarWidth - 60.0F, kViewportHeight);
  picAttPLst.BackColor = kWhite;
  PlaceBar(vsrAtt, picAttPanel, static_cast<int>(kViewportHeight));
  vsrAtt.TabIndex = TabPlace(benefit, 0) + 49;
  vsrAtt.AccessibleName = "Scroll the attributes";
  PlaceViewport(picOrderPanel, kRankLeft, kViewportTop, kRankWidth, kViewportHeight);
  Place(picOrderCon, 0.0F, 0.0F, kRankWidth - kScrollBarWidth - 60.0F, kOrderContentHeight);
  picOrderCon.BackColor = kWhite;
  PlaceBar(vsrOrder, picOrderPanel, static_cast<int>(kOrderContentHeight));
  vsrOrder.TabIndex = TabPlace(benefit, 1) + 49;
  vsrOrder.AccessibleName = "Scroll the ranks";
  const Single width = (kRankWidth - 2 * 90.0F) / 3.0F;
  Button(cmdAdd, "&Add", kRankLeft, width, TabPlace(benefit, 2));
  Button(cmdInsert, "&Insert", kRankLeft + width + 90.0F, width, TabPlace(benefit, 2) + 1);
  Button(cmdReset, "Reset", kRankLeft + 2 * (width + 90.0F), width, TabPlace(benefit, 2) + 2);
  cmdAdd.ToolTipText = "A new rank after the last one";
  cmdInsert.ToolTipText = "A new rank in front of the selected one";
  cmdReset.ToolTipText = "Take all attributes of this group off their ranks";
}

ReferenceControls::ReferenceControls(Form& form, Control& stage, bool benefit)
    : Rows(form, stage, benefit, TabPlace(benefit, 4)), lblRefAtt(form, &stage, benefit ? "lblBRefAtt" : "lblCRefAtt") {
  PlaceDisplay(Rows, GroupLeft(benefit), 390.0F, kFrameWidth);
  Place(lblRefAtt, GroupLeft(benefit), kOrderFrameHeight + 1110.0F, kFrameWidth, 420.0F);
  lblRefAtt.Points = 12;
  lblRefAtt.AccessibleName = benefit ? "Benefit reference" : "Cost reference";
  lblRefAtt.Announces = Announce::Caption;
}

IniImpOrderForm::IniImpOrderForm(std::shared_ptr<Platform> platform)
    : WizardForm(std::move(platform), "frmIniImpOrder", "cmdHelp"),
      picPanel(
          *this, this, "picPanel",
          [](PictureBox& panel) { Place(panel, kMargin, kHeadingHeight, kFormWidth - 2 * kMargin, kContentHeight); }),
      BRank(*this, picPanel[0], true),
      CRank(*this, picPanel[0], false),
      BReference(*this, picPanel.Load(1), true),
      CReference(*this, picPanel[1], false),
      lblTitle(*this, &BRank.fmOA, "lblTitle", [](Label& /*label*/) {}),
      Label3(*this, &picPanel[1], "Label3", [](Label& /*label*/) {}),
      picIndicator(*this, &BReference.Rows.picOP, "picIndicator", [](PictureBox& mark) {
        Place(mark, 540.0F, 180.0F, 180.0F, 180.0F);
        mark.BackColor = 0x0000FF;
        mark.Visible = false;
      }) {
  Heading(lblTitle[0], "Rank order:", kRankLeft, 435.0F, kRankWidth);
  Heading(lblTitle.Load(1, &CRank.fmOA), "Rank order:", kRankLeft, 435.0F, kRankWidth);
  Heading(lblTitle.Load(2, &BRank.fmOA), "Attributes to rank:", 180.0F, 435.0F, kListWidth);
  Heading(lblTitle.Load(3, &CRank.fmOA), "Attributes to rank:", 180.0F, 435.0F, kListWidth);

  Heading(Label3[0], "Rank order of benefit-oriented attributes:", GroupLeft(true), 60.0F, kFrameWidth);
  Heading(Label3.Load(1), "Rank order of cost-oriented attributes:", GroupLeft(false), 60.0F, kFrameWidth);
  Heading(Label3.Load(2), "Reference for the benefit-oriented attributes:", GroupLeft(true), kOrderFrameHeight + 750.0F,
          kFrameWidth);
  Heading(Label3.Load(3), "Reference for the cost-oriented attributes:", GroupLeft(false), kOrderFrameHeight + 750.0F,
          kFrameWidth);
  picIndicator.Load(1, &CReference.Rows.picOP);
}

}  // namespace Tarnwise
