// Real mouse and key events to the real widgets: a script's user under the Qt toolkit.
#include "view/Driver.h"
#include "view/Input.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKeys.h"
#include "view/qt/QtToolkit.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
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

class QtDriver : public Driver {
 public:
  QtDriver() {
    toolkit_->RealTimers = false;
    toolkit_->AutoAnswer = [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton); };
  }

  std::shared_ptr<Platform> Screen() override { return screen_; }
  void SetPump(std::function<bool()> pump) override { toolkit_->Pump = std::move(pump); }

  void Click(Control& control) override {
    const auto held = control.Owner.shared_from_this();
    QWidget* const widget = WidgetOf(control);
    if (widget == nullptr) return;
    QPoint at = widget->rect().center();
    if (control.Type == Kind::TextBox) at.setX(widget->rect().right() - 2);  // behind the text
    if (control.Type == Kind::OptionButton || control.Type == Kind::CheckBox) at.setX(8);
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
  }

  void Select(Control& list, int index) override {
    const auto held = list.Owner.shared_from_this();
    QWidget* const widget = WidgetOf(list);
    if (widget == nullptr) return;
    if (auto* const rows = dynamic_cast<QListWidget*>(widget)) {
      rows->scrollToItem(rows->item(index));
      QTest::mouseClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier,
                        rows->visualItemRect(rows->item(index)).center());
    } else if (auto* const tabs = dynamic_cast<QTabBar*>(widget)) {
      QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(index - 1).center());
    } else if (auto* const combo = dynamic_cast<QComboBox*>(widget)) {
      ChooseFromPopup(*combo, list.Type == Kind::ImageCombo ? index - 1 : index);
    }
  }

  void PressTool(Toolbar& toolbar, const String& key) override {
    const auto held = toolbar.Owner.shared_from_this();
    QWidget* const widget = WidgetOf(toolbar);
    auto* const tool = widget == nullptr ? nullptr : widget->findChild<QToolButton*>(QString::fromStdString(key));
    if (tool != nullptr) QTest::mouseClick(tool, Qt::LeftButton);
  }

  void Focus(Control& control) override {
    const auto held = control.Owner.shared_from_this();
    if (Input::MoveFocus(control)) Input::PutCaretAtEnd(control);
    screen_->SyncAll();
  }

  void Key(Form& form, const KeyStroke& key) override {
    const auto held = form.shared_from_this();
    const Qt::KeyboardModifiers modifiers = ((key.Shift & kShift) != 0 ? Qt::ShiftModifier : Qt::NoModifier) |
                                            ((key.Shift & kControl) != 0 ? Qt::ControlModifier : Qt::NoModifier);
    const Qt::Key code = QtKeyOf(key.Code);
    QWidget* widget = KeyboardOf(form);
    if (widget != nullptr) QTest::sendKeyEvent(QTest::Press, widget, code, TextOf(key), modifiers);
    widget = KeyboardOf(form);
    if (widget != nullptr) QTest::sendKeyEvent(QTest::Release, widget, code, TextOf(key), modifiers);
  }

  void Grab(Control& source) override {
    grabbed_ = WidgetOf(source);
    if (grabbed_.isNull()) return;
    QTest::mousePress(grabbed_, Qt::LeftButton, Qt::NoModifier, grabbed_->rect().center());
    screen_->Hand.BeginDrag();  // the first move may be as near as it likes
  }

  void Over(Control& target, ControlPoint at) override {
    const FormPoint onForm = OnForm(target, at);
    if (grabbed_.isNull() || DragTargetAt(target.Owner, onForm) != &target) {
      screen_->Drag.Over(target, at.X, at.Y);  // clipped by a viewport, or another one of the row stands in front
      return;
    }
    const QPointF inWindow(onForm.X / 15.0, onForm.Y / 15.0);
    const QPointF global = WidgetOf(target.Owner)->mapToGlobal(inWindow);
    QMouseEvent move(QEvent::MouseMove, grabbed_->mapFromGlobal(global), global, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(grabbed_, &move);
  }

  void OverNothing() override { screen_->Drag.OverNothing(); }

  void Drop() override {
    if (grabbed_.isNull()) {
      screen_->Drag.Drop();
      return;
    }
    const QPointer<QWidget> source = std::exchange(grabbed_, nullptr);
    QTest::mouseRelease(source, Qt::LeftButton, Qt::NoModifier, QPoint(-1, -1));
  }

  void Scroll(VScrollBar& bar, int value) override {
    const auto held = bar.Owner.shared_from_this();
    auto* const widget = static_cast<QScrollBar*>(WidgetOf(bar));
    if (widget == nullptr || !Input::Press(bar)) return;
    widget->setValue(value);
  }

  void Tick(Timer& timer) override {
    const auto held = timer.Owner.shared_from_this();
    Input::Tick(timer);
  }

  void Close(Form& form) override {
    const auto held = form.shared_from_this();
    if (QWidget* const window = WidgetOf(form)) window->close();
  }

  bool Shot(Form& form, const String& path) override {
    QWidget* const window = WidgetOf(form);
    if (window == nullptr) return false;
    QCoreApplication::processEvents();
    return window->grab().save(QString::fromStdString(path), "PNG");
  }

 private:
  QWidget* WidgetOf(const Control& control) const {
    QtForm* const shown = toolkit_->FormOf(control.Owner);
    return shown == nullptr ? nullptr : shown->WidgetOf(control);
  }

  QWidget* KeyboardOf(const Form& form) const {
    QtForm* const shown = toolkit_->FormOf(form);
    if (shown == nullptr) return nullptr;
    QWidget* const focus = shown->Window().focusWidget();
    return focus != nullptr ? focus : &shown->Window();
  }

  // Opens the list by a press and goes to the row by keys, as the release of that press may not choose at once.
  static void ChooseFromPopup(QComboBox& combo, int row) {
    const QPointer<QComboBox> alive(&combo);
    QTest::mousePress(&combo, Qt::LeftButton);
    if (alive.isNull() || !combo.view()->isVisible()) return;
    QTest::keyClick(combo.view(), Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Return);
  }

  std::shared_ptr<QtToolkit> toolkit_ = std::make_shared<QtToolkit>();
  std::shared_ptr<Platform> screen_ = std::make_shared<Platform>(toolkit_);
  QPointer<QWidget> grabbed_;
};

}  // namespace

std::unique_ptr<Driver> MakeQtDriver() { return std::make_unique<QtDriver>(); }

}  // namespace Tarnwise
