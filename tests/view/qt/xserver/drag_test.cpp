// The steps' own drags by the real mouse: what the pointer and the picture under it say on the way.
#include "Person.h"
#include "ordering/frmIniImpOrder.h"
#include "support/Models.h"
#include "tradeoffs/TradeOffs.h"
#include "tradeoffs/frmTradeOffsB.h"

#include <QLabel>

namespace Tarnwise {

template <class Step>
struct XDrag {
  explicit XDrag(const WizardData& model) : data(model), form(std::make_shared<Step>(platform, data)) {
    toolkit->RealTimers = false;
    platform->Created(*form);
    form->SendMasseges = [](const String&) {};
    form->Load();
    platform->Show(*form);
    Person::TurnTo(Window());
  }
  XDrag(const XDrag&) = delete;
  XDrag& operator=(const XDrag&) = delete;
  ~XDrag() { platform->Release(*form); }

  QWidget& Window() const { return toolkit->FormOf(*form)->Window(); }
  QWidget& WidgetOf(const Control& control) const { return *toolkit->FormOf(*form)->WidgetOf(control); }

  void PickUp(const Control& source) {
    person.MoveTo(WidgetOf(source), WidgetOf(source).rect().center());
    person.Press(1);
  }
  // What the pointer looks like over a point of the control.
  Qt::CursorShape Over(const Control& target, const QPoint& at) {
    person.MoveTo(WidgetOf(target), at);
    const QCursor* const shown = QApplication::overrideCursor();
    return shown == nullptr ? Qt::ArrowCursor : shown->shape();
  }
  // The picture under the pointer.
  QImage Carried() const {
    for (QLabel* label : Window().template findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (label->isVisible() && !label->pixmap().isNull()) return label->pixmap().toImage();
    }
    return {};
  }

  std::shared_ptr<QtToolkit> toolkit = std::make_shared<QtToolkit>();
  std::shared_ptr<Platform> platform = std::make_shared<Platform>(toolkit);
  WizardData data;
  std::shared_ptr<Step> form;
  Person person;
};

TEST(XDragOfAnAttribute, ThePointerSaysWhereItCanBeDropped) {
  XDrag<frmIniImpOrder> step(ModelOf(2, 2));
  const RankControls& benefit = step.form->BRank;
  const RankControls& cost = step.form->CRank;
  step.PickUp(benefit.cmdAttA[0]);
  EXPECT_EQ(step.Over(benefit.lblAttName[1], {20, 10}), Qt::ForbiddenCursor) << "a name of the list";
  EXPECT_EQ(step.Over(benefit.fmOA, {260, 40}), Qt::ForbiddenCursor) << "a gap";
  EXPECT_EQ(step.Over(benefit.picOrder[0], {40, 10}), Qt::ClosedHandCursor) << "a rank row";
  EXPECT_EQ(step.Over(benefit.picOrderCon, {60, 200}), Qt::ForbiddenCursor) << "below the rows";
  EXPECT_EQ(step.Over(cost.picOrder[0], {40, 10}), Qt::ForbiddenCursor) << "a row of the other group";
  EXPECT_EQ(step.Over(benefit.picOrder[0], {60, 10}), Qt::ClosedHandCursor);
  step.person.LetGo(1);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(benefit.cmdAttB[0].Tag(), "B0");
}

TEST(XDragOfAMark, ThePictureSaysWhichOneItIsOutsideTheChartToo) {
  XDrag<frmTradeOffsB> step(Ward());
  AlternativesControls& chart = step.form->Chart;
  QImage seen[2];
  for (PictureBox* const mark : {&chart.shpPCA, &chart.shpPCB}) {
    QImage& picture = seen[mark == &chart.shpPCA ? 0 : 1];
    step.PickUp(*mark);
    EXPECT_EQ(step.Over(chart.picTradeOffsRange, {140, 140}), Qt::ClosedHandCursor);
    picture = step.Carried();
    EXPECT_FALSE(picture.isNull());
    EXPECT_EQ(step.Over(step.form->lblTarget, {20, 5}), Qt::ForbiddenCursor);
    EXPECT_EQ(step.Carried(), picture) << "outside the chart";
    EXPECT_EQ(step.Over(chart.picPCGraph, {5, 100}), Qt::ForbiddenCursor) << "beside the plot it would beep";
    EXPECT_EQ(step.Carried(), picture);
    EXPECT_EQ(step.Over(chart.picTradeOffsRange, {mark == &chart.shpPCA ? 200 : 100, 120}), Qt::ClosedHandCursor);
    step.person.LetGo(1);
    EXPECT_TRUE(step.Carried().isNull());
  }
  EXPECT_NE(seen[0], seen[1]);
}

}  // namespace Tarnwise
