// Message boxes and help.
#include "view/qt/QtForm.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtToolkit.h"

#include <QAbstractButton>
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
void PutOver(QMessageBox& box, const QWidget& window) {
  box.winId();
  window.winId();
  box.windowHandle()->setTransientParent(window.windowHandle());
  box.adjustSize();
  const QRect place(QPoint(), box.sizeHint());
  box.move(window.frameGeometry().center() - place.center());
}

}  // namespace

void QtToolkit::Ask(Mirror* over, const String& text, int style, const String& title) {
  QMessageBox box(IconFor(style), Text(title), Text(text), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.setWindowIcon(WindowIcon());
  box.setWindowModality(Qt::ApplicationModal);
  if (over != nullptr) PutOver(box, static_cast<QtForm*>(over)->Window());
  if (AutoAnswer) QTimer::singleShot(0, &box, [&box] { box.button(QMessageBox::Ok)->click(); });
  box.exec();
}

void QtToolkit::OpenHelp(Form& form, const String& path, int /*command*/, int /*context*/) {
  QString file = Text(path);
  file.replace('\\', '/');
  if (QFileInfo(file).isFile())
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
  else
    form.Screen().MessageBox("There is no help file " + path + ".", kInformation, "KESTA");
}

}  // namespace Tarnwise
