#include "view/qt/QtToolkit.h"

#include "view/Lifetime.h"
#include "view/qt/QtAccessible.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtPaint.h"

#include <QApplication>
#include <QEventLoop>
#include <QFontMetricsF>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>

namespace Tarnwise {

namespace {

void DigSoon() {
  static bool digging = false;
  if (digging || qApp == nullptr) return;
  digging = true;
  const auto dig = [] {
    digging = false;
    qRemovePostRoutine(DigAll);
    Dig();
  };
  qAddPostRoutine(DigAll);  // the application may end before an event loop could do it
  QTimer::singleShot(0, qApp, dig);
}

}  // namespace

QtToolkit::QtToolkit() {
  DigBy(DigSoon, false);
  InstallAccessibility();
}

QtToolkit::~QtToolkit() {
  SetPointer(0);
  for (auto& [form, window] : forms_) {
    window->Orphan();
    Bury([gone = QPointer<QtForm>(window.release())] { delete gone.data(); });
  }
}

QtForm* QtToolkit::FormOf(const Form& form) const {
  const auto found = forms_.find(&form);
  return found == forms_.end() ? nullptr : found->second.get();
}

QtForm& QtToolkit::Window(Form& form) {
  auto& window = forms_[&form];
  if (!window) window = std::make_unique<QtForm>(form, *this);
  return *window;
}

void QtToolkit::Show(Form& form, Showing how) {
  QtForm& shown = Window(form);
  QWidget& window = shown.Window();
  const Qt::WindowModality modality = how == Showing::Modal ? Qt::ApplicationModal : Qt::NonModal;
  if (window.windowModality() != modality) {
    window.hide();
    window.setWindowModality(modality);
  }
  shown.Sync();
  window.setAttribute(Qt::WA_ShowWithoutActivating, how == Showing::Blocked);
  window.show();
  const Form* const front = how == Showing::Blocked ? form.Screen().ActiveForm() : &form;
  if (QtForm* const top = front != nullptr ? FormOf(*front) : nullptr) {
    top->Window().raise();
    top->Window().activateWindow();
    top->FocusTree();
  }
}

void QtToolkit::Hide(Form& form) {
  if (QtForm* const shown = FormOf(form)) shown->Window().hide();
  Wake(form);
}

void QtToolkit::Release(Form& form) {
  const auto found = forms_.find(&form);
  if (found != forms_.end()) {
    found->second->Release();
    Bury([gone = QPointer<QtForm>(found->second.release())] { delete gone.data(); });
    forms_.erase(found);
  }
  Wake(form);
}

void QtToolkit::Wake(const Form& form) {
  for (ModalCall* const call : calls_) {
    if (call->On != &form) continue;
    call->Woken = true;
    if (call->Loop != nullptr) call->Loop->quit();
  }
}

void QtToolkit::ControlUnloaded(Control& control) {
  if (QtForm* const shown = FormOf(control.Owner)) shown->Forget(control);
}

void QtToolkit::Sync(Form& form) {
  if (QtForm* const shown = FormOf(form)) shown->Sync();
}

void QtToolkit::RunModal(Form& form) {
  const auto held = form.shared_from_this();
  ModalCall call{&form};
  calls_.push_back(&call);
  while (form.Visible && !form.Released) {
    if (Pump) {
      QCoreApplication::processEvents();
      if (!form.Visible || form.Released || !Pump()) break;
      continue;
    }
    QEventLoop loop;
    call.Loop = &loop;
    call.Woken = false;
    loop.exec();
    call.Loop = nullptr;
    if (!call.Woken) break;  // the application ends
  }
  calls_.erase(std::remove(calls_.begin(), calls_.end(), &call), calls_.end());
}

void QtToolkit::Beep() { QApplication::beep(); }

void QtToolkit::SetPointer(int pointer) {
  if (waiting_) QApplication::restoreOverrideCursor();
  waiting_ = pointer != 0;
  if (waiting_) QApplication::setOverrideCursor(CursorFor(pointer));
}

void QtToolkit::Focus(Control& control) {
  // What the program has just enabled or shown must be so on the screen before it can take the keyboard.
  if (QtForm* const shown = FormOf(control.Owner)) shown->Sync();
}

void QtToolkit::AnnounceChange(Label& label) {
  if (QtForm* const shown = FormOf(label.Owner)) TellOf(*shown, label);
}

Single QtToolkit::TextWidth(const String& text) {
  return static_cast<Single>(QFontMetricsF(BaseFont()).horizontalAdvance(Text(text)) * kTwipsPerDesignPixel);
}

Single QtToolkit::ScreenWidth() {
  return static_cast<Single>(QApplication::primaryScreen()->geometry().width() * kTwipsPerDesignPixel);
}

Single QtToolkit::ScreenHeight() {
  return static_cast<Single>(QApplication::primaryScreen()->geometry().height() * kTwipsPerDesignPixel);
}

}  // namespace Tarnwise
