// Real mouse and key events to the real widgets: a script's user under the Qt toolkit.
#include "view/WindowedDriver.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKeys.h"
#include "view/qt/QtToolkit.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

namespace Tarnwise {

namespace {

QString TextOf(const KeyStroke& key) {
  if (key.Character < kBlank) return {};
  const auto code = static_cast<char32_t>(key.Character);
  return QString::fromUcs4(&code, 1);
}

void ClickAt(QWidget& widget, const QPoint& at) { QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at); }

class QtDriver : public WindowedDriver {
 public:
  QtDriver() : WindowedDriver(std::make_shared<Platform>(std::make_shared<QtToolkit>())) {}

 protected:
  void ClickOn(Control& control) override {
    QWidget& widget = *WidgetOf(control);
    QPoint at = widget.rect().center();
    if (control.Type == Kind::TextBox) at.setX(widget.rect().right() - 2);
    if (control.Type == Kind::OptionButton || control.Type == Kind::CheckBox) at.setX(8);
    ClickAt(widget, at);
  }

  void ClickPart(Control& control, int part) override {
    QWidget& widget = *WidgetOf(control);
    if (auto* const rows = qobject_cast<QListWidget*>(&widget)) {
      rows->scrollToItem(rows->item(part));
      ClickAt(*rows->viewport(), rows->visualItemRect(rows->item(part)).center());
    } else if (auto* const tabs = qobject_cast<QTabBar*>(&widget)) {
      ClickAt(*tabs, tabs->tabRect(part).center());
    } else {
      QTest::mouseClick(widget.findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly)[part], Qt::LeftButton);
    }
  }

  // By keys, as the release of the press that opens it may not choose at once.
  void ChooseFromOpened(Control& control, int row) override {
    const QPointer<QComboBox> combo(static_cast<QComboBox*>(WidgetOf(control)));
    QTest::mousePress(combo, Qt::LeftButton);
    if (combo.isNull() || !combo->view()->isVisible()) return;
    QTest::keyClick(combo->view(), Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
  }

  void PressKey(Form& form, const KeyStroke& key) override {
    const Qt::KeyboardModifiers held = ModifiersOf(key.Shift);
    for (const QTest::KeyAction action : {QTest::Press, QTest::Release}) {
      QWidget* const window = WidgetOf(form);
      if (window == nullptr) return;
      QWidget* const focus = window->focusWidget();
      QTest::sendKeyEvent(action, focus != nullptr ? focus : window, QtKeyOf(key.Code), TextOf(key), held);
    }
  }

  void PressOn(Control& source) override {
    grabbed_ = WidgetOf(source);
    QTest::mousePress(grabbed_, Qt::LeftButton, Qt::NoModifier, grabbed_->rect().center());
  }

  bool MoveOver(const Form& form, FormPoint at) override {
    if (grabbed_.isNull()) return false;
    const QPointF global = WidgetOf(form)->mapToGlobal(QtForm::InPixels(at));
    QMouseEvent move(QEvent::MouseMove, grabbed_->mapFromGlobal(global), global, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(grabbed_, &move);
    return true;
  }

  void LetGo() override {
    if (!grabbed_.isNull()) QTest::mouseRelease(grabbed_, Qt::LeftButton, Qt::NoModifier, QPoint(-1, -1));
  }

  void MoveThumb(const VScrollBar& bar, int value) override {
    static_cast<QScrollBar*>(WidgetOf(bar))->setValue(value);
  }
  void PressClose(Form& form) override { WidgetOf(form)->close(); }
  bool TakePicture(Form& form, const String& path) override {
    return WidgetOf(form)->grab().save(QString::fromStdString(path), "PNG");
  }

 private:
  QWidget* WidgetOf(const Control& control) const {
    const auto* const shown = static_cast<QtForm*>(Tools().MirrorOf(control.Owner));
    return shown == nullptr ? nullptr : shown->WidgetOf(control);
  }

  QPointer<QWidget> grabbed_;
};

}  // namespace

std::unique_ptr<Driver> MakeQtDriver() { return std::make_unique<QtDriver>(); }

}  // namespace Tarnwise
