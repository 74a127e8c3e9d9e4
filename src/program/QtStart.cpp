#include "program/QtStart.h"

namespace Tarnwise {

namespace {

QtMessageHandler former = nullptr;

bool IsChatter(const QString& text) {
  return text.startsWith("This plugin does not support ") || text.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set");
}

void Tell(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!IsChatter(text)) former(type, context, text);
}

}  // namespace

void LeaveChatterOut() {
  if (former == nullptr) former = qInstallMessageHandler(Tell);
}

std::unique_ptr<QApplication> StartQt(int& argc, char** argv) {
  LeaveChatterOut();
  return std::make_unique<QApplication>(argc, argv);
}

}  // namespace Tarnwise
