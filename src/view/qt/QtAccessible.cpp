#include "view/qt/QtAccessible.h"

#include "view/Platform.h"
#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <array>

namespace Tarnwise {

namespace {

enum class Axis { Across, Down };

Single MiddleOf(const Control& control, Axis axis) {
  return axis == Axis::Across ? control.Left + control.Width / 2.0F : control.Top + control.Height / 2.0F;
}

// One coordinate of a drag source in the scale of what it stands in. Setting it is a drag like any other.
class AxisInterface : public QAccessibleInterface, public QAccessibleValueInterface {
 public:
  AxisInterface(QtBox* box, Axis axis) : box_(box), axis_(axis) {}

  bool isValid() const override { return Source() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return box_.isNull() ? nullptr : QAccessible::queryAccessibleInterface(box_.data());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text what) const override {
    if (what == QAccessible::Name) return axis_ == Axis::Across ? "Horizontal position" : "Vertical position";
    return what == QAccessible::Value ? currentValue().toString() : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    QAccessibleInterface* const around = parent();
    return around == nullptr ? QRect() : around->rect();
  }
  QAccessible::Role role() const override { return QAccessible::Slider; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.disabled = Source() == nullptr || !IsUsable(*Source());
    state.invisible = Source() == nullptr || !IsOnScreen(*Source());
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
  }

  QVariant currentValue() const override { return Source() == nullptr ? QVariant() : MiddleOf(*Source(), axis_); }
  QVariant minimumValue() const override { return 0.0F; }
  QVariant maximumValue() const override {
    if (Source() == nullptr) return {};
    return axis_ == Axis::Across ? Source()->Parent->Width() : Source()->Parent->Height();
  }
  QVariant minimumStepSize() const override { return 1.0F; }
  void setCurrentValue(const QVariant& value) override;

 private:
  Control* Source() const { return box_.isNull() ? nullptr : box_->Source(); }

  QPointer<QtBox> box_;
  const Axis axis_;
};

void AxisInterface::setCurrentValue(const QVariant& value) {
  Control* const source = Source();
  if (source == nullptr) return;
  const Single to = value.toFloat();
  const Single x = axis_ == Axis::Across ? to : MiddleOf(*source, Axis::Across);
  const Single y = axis_ == Axis::Down ? to : MiddleOf(*source, Axis::Down);
  source->Owner.Screen().Hand.CarriedTo(*source, x, y);
}

class SourceInterface : public QAccessibleWidget {
 public:
  explicit SourceInterface(QtBox& box) : QAccessibleWidget(&box, QAccessible::Indicator) {
    for (const Axis axis : {Axis::Across, Axis::Down}) {
      ids_[static_cast<std::size_t>(axis)] = QAccessible::registerAccessibleInterface(new AxisInterface(&box, axis));
    }
  }
  ~SourceInterface() override {
    for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
  }
  SourceInterface(const SourceInterface&) = delete;
  SourceInterface& operator=(const SourceInterface&) = delete;

  int childCount() const override { return static_cast<int>(ids_.size()); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (this->child(i) == child) return i;
    }
    return -1;
  }
  QString text(QAccessible::Text what) const override {
    if (what != QAccessible::Value) return QAccessibleWidget::text(what);
    return child(0)->text(QAccessible::Value) + ", " + child(1)->text(QAccessible::Value);
  }

 private:
  std::array<QAccessible::Id, 2> ids_{};
};

QAccessibleInterface* MakeInterface(const QString& className, QObject* object) {
  if (className != "QWidget") return nullptr;
  auto* const box = dynamic_cast<QtBox*>(object);
  if (box == nullptr || box->Source() == nullptr) return nullptr;
  const Control& control = *box->Source();
  if (control.DragAutomatic && control.KeyboardDrag == DragBy::Units) return new SourceInterface(*box);
  const bool chart = control.Type == Kind::PictureBox && !control.AccessibleName().empty();
  return new QAccessibleWidget(box, chart ? QAccessible::Graphic : QAccessible::Grouping);
}

}  // namespace

void InstallAccessibility() {
  static bool installed = false;
  if (!installed) QAccessible::installFactory(MakeInterface);
  installed = true;
}

}  // namespace Tarnwise
