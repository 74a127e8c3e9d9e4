#include "view/qt/QtToolkit.h"

#include "view/Lifetime.h"
#include "view/qt/QtAccessible.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtPaint.h"

#include <tarnwise/Platform.h>

#include <QApplication>
#include <QEventLoop>
#include <QFontMetricsF>
#include <QScreen>
#include <QTimer>

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

QtToolkit::~QtToolkit() { SetPointer(0); }

QtForm* QtToolkit::FormOf(const Form& form) const { return static_cast<QtForm*>(MirrorOf(form)); }

const QIcon& QtToolkit::WindowIcon() {
  if (!icon_.isNull()) return icon_;
  for (const int side : {16, 24, 32, 48}) icon_.addPixmap(PicturePixmap("window", side, 1.0, kAsDrawn));
  return icon_;
}

std::shared_ptr<Mirror> QtToolkit::MakeMirror(Form& form) { return std::make_shared<QtForm>(form, *this); }

void QtToolkit::Bring(Mirror& shown, Showing how, Mirror* front) {
  QWidget& window = static_cast<QtForm&>(shown).Window();
  const Qt::WindowModality modality = how == Showing::Modal ? Qt::ApplicationModal : Qt::NonModal;
  if (window.windowModality() != modality) {
    window.hide();
    window.setWindowModality(modality);
  }
  shown.Sync();
  window.setAttribute(Qt::WA_ShowWithoutActivating, how == Showing::Blocked);
  window.show();
  if (Mirror* const top = how == Showing::Blocked ? front : &shown) {
    static_cast<QtForm*>(top)->Window().raise();
    static_cast<QtForm*>(top)->Window().activateWindow();
    top->FocusTree();
  }
}

void QtToolkit::Hide(Form& form) {
  if (QtForm* const shown = FormOf(form)) shown->Window().hide();
  Wake(form);
}

void QtToolkit::Wake(const Form& form) {
  for (ModalCall* const call : calls_) {
    if (call->On != &form) continue;
    call->Woken = true;
    call->Loop->quit();
  }
}

bool QtToolkit::WaitFor(const Form& form) {
  QEventLoop loop;
  ModalCall call{&form, &loop};
  calls_.push_back(&call);
  loop.exec();
  std::erase(calls_, &call);
  return call.Woken;
}

void QtToolkit::TakeEvents() { QCoreApplication::processEvents(); }

void QtToolkit::Beep() { QApplication::beep(); }

void QtToolkit::SetPointer(int pointer) {
  if (waiting_) QApplication::restoreOverrideCursor();
  waiting_ = pointer != 0;
  if (waiting_) QApplication::setOverrideCursor(CursorFor(pointer));
}

WindowHandle QtToolkit::WindowOf(const Form& form) {
  QtForm* const shown = FormOf(form);
  return shown == nullptr ? 0 : static_cast<WindowHandle>(shown->Window().winId());
}

Single QtToolkit::TextWidth(const String& text) {
  return static_cast<Single>(QFontMetricsF(FontOf()).horizontalAdvance(Text(text)) * kTwipsPerDesignPixel);
}

Single QtToolkit::ScreenWidth() {
  return static_cast<Single>(QApplication::primaryScreen()->geometry().width() * kTwipsPerDesignPixel);
}

Single QtToolkit::ScreenHeight() {
  return static_cast<Single>(QApplication::primaryScreen()->geometry().height() * kTwipsPerDesignPixel);
}

std::shared_ptr<Platform> MakeQtPlatform() { return std::make_shared<Platform>(std::make_shared<QtToolkit>()); }

}  // namespace Tarnwise
