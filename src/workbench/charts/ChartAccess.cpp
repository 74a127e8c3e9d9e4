#include "workbench/charts/Chart.h"

#include <QAccessibleWidget>

#include <map>
#include <memory>

namespace Tarnwise {

namespace {

class ItemAccess : public QAccessibleInterface {
 public:
  ItemAccess(Chart& chart, int place) : chart_(&chart), place_(place) {}

  bool isValid() const override { return chart_ && Item().has_value(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return chart_ ? chart_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(chart_); }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    const auto item = Item();
    if (!item) return {};
    return kind == QAccessible::Name ? item->Name : kind == QAccessible::Value ? item->Value : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override {
    const auto item = Item();
    return item ? QRect(chart_->mapToGlobal(item->Place.topLeft()), item->Place.size()) : QRect();
  }
  QAccessible::Role role() const override { return QAccessible::Graphic; }
  QAccessible::State state() const override { return {}; }

 private:
  std::optional<ChartItem> Item() const {
    if (!chart_) return std::nullopt;
    const std::vector<ChartItem> items = chart_->Items();
    if (static_cast<std::size_t>(place_) >= items.size()) return std::nullopt;
    return items[static_cast<std::size_t>(place_)];
  }

  QPointer<Chart> chart_;
  int place_;
};

class ChartAccess : public QAccessibleWidget {
 public:
  explicit ChartAccess(Chart& chart) : QAccessibleWidget(&chart, QAccessible::Chart), chart_(chart) {}
  ~ChartAccess() override {
    for (const QAccessible::Id id : children_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return static_cast<int>(chart_.Items().size()); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    while (children_.size() <= static_cast<std::size_t>(index)) {
      const int place = static_cast<int>(children_.size());
      children_.push_back(QAccessible::registerAccessibleInterface(new ItemAccess(chart_, place)));
    }
    return QAccessible::accessibleInterface(children_[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (this->child(i) == child) return i;
    }
    return -1;
  }

 private:
  Chart& chart_;
  mutable std::vector<QAccessible::Id> children_;
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  auto* const chart = qobject_cast<Chart*>(object);
  return chart == nullptr ? nullptr : new ChartAccess(*chart);
}

}  // namespace

void MakeChartsReadable() {
  static const bool made = [] {
    QAccessible::installFactory(Make);
    return true;
  }();
  (void)made;
}

}  // namespace Tarnwise
