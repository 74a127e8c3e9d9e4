#include "program/Pdf.h"
#include "program/QtStart.h"
#include "workbench/ReportDocument.h"

#include <QGuiApplication>

#include <array>

namespace Tarnwise {

namespace {

// Fonts want an application; none is there for commands without a screen.
std::unique_ptr<QGuiApplication> ApplicationForFonts() {
  if (QCoreApplication::instance() != nullptr) return nullptr;
  LeaveChatterOut();
  static std::array<char, 9> name{"tarnwise"};
  static std::array<char, 10> option{"-platform"};
  static std::array<char, 10> platform{"offscreen"};
  static std::array<char*, 4> arguments{name.data(), option.data(), platform.data(), nullptr};
  static int count = 3;
  return std::make_unique<QGuiApplication>(count, arguments.data());
}

}  // namespace

String PdfOf(const Report& report) {
  const std::unique_ptr<QGuiApplication> application = ApplicationForFonts();
  return ReportPdf(report);
}

}  // namespace Tarnwise
