// Message boxes and help.
#include "view/qt/QtForm.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtToolkit.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>
#include <QUrl>
#include <QWindow>

namespace Tarnwise {

namespace {

constexpr int kInformation = 64;

QMessageBox::Icon IconFor(int style) {
  switch (style & 0x70) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    case 64: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

// Over the middle of the form. Not a child of its window: that may go while the box is up.
void PutOver(QMessageBox& box, QtForm& form) {
  box.winId();
  form.Window().winId();
  box.windowHandle()->setTransientParent(form.Window().windowHandle());
  box.adjustSize();
  const QRect place(QPoint(), box.sizeHint());
  box.move(form.Window().frameGeometry().center() - place.center());
}

}  // namespace

void QtToolkit::MessageBox(Form* over, const String& text, int style, const String& title) {
  QtForm* const shown = over != nullptr ? FormOf(*over) : nullptr;
  const std::shared_ptr<Form> held = over != nullptr ? over->shared_from_this() : nullptr;
  QMessageBox box(IconFor(style), Text(title), Text(text), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.setWindowIcon(WindowIcon());
  box.setWindowModality(Qt::ApplicationModal);
  if (shown != nullptr && over->Visible) PutOver(box, *shown);
  if (AutoAnswer)
    QTimer::singleShot(0, &box, [this, &box] { AutoAnswer(box); });
  else if (over != nullptr)
    over->Screen().Hand.CancelDrag();  // the release goes to the box
  box.exec();
}

void QtToolkit::Help(Form& form, const String& path, int /*command*/, int /*context*/) {
  if (AutoAnswer) return;
  QString file = Text(path);
  file.replace('\\', '/');
  if (QFileInfo(file).isFile())
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
  else
    form.Screen().MessageBox("There is no help file " + path + ".", kInformation, "KESTA");
}

WindowHandle QtToolkit::WindowOf(const Form& form) {
  QtForm* const shown = FormOf(form);
  return shown == nullptr ? 0 : static_cast<WindowHandle>(shown->Window().winId());
}

}  // namespace Tarnwise
