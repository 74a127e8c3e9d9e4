#include "program/QtStart.h"
#include "program/Workbench.h"
#include "workbench/MainWindow.h"
#include "workbench/ResultsPage.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdlib>
#include <stdexcept>

namespace Tarnwise {

namespace {

bool HasScreen() {
  for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

void LetWork(const ResultsPage& results) {
  constexpr int kPatience = 60000;  // milliseconds
  QElapsedTimer clock;
  clock.start();
  do {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  } while (results.IsBusy() && clock.elapsed() < kPatience);
  QCoreApplication::processEvents();
}

int TakePictures(MainWindow& window, const String& folder) {
  const QString into = QString::fromStdString(folder);
  QDir().mkpath(into);
  window.resize(1180, 760);
  LetWork(window.Results());
  const std::pair<PageKind, const char*> pages[] = {{PageKind::Data, "1-data.png"},
                                                    {PageKind::Attributes, "2-attributes.png"},
                                                    {PageKind::Judgments, "3-judgments.png"},
                                                    {PageKind::Results, "4-results.png"},
                                                    {PageKind::Report, "5-report.png"}};
  for (const auto& [page, name] : pages) {
    window.ShowPage(page);
    LetWork(window.Results());
    if (!window.grab().save(into + QLatin1Char('/') + QLatin1String(name))) {
      throw std::runtime_error("can't write pictures into " + folder);
    }
  }
  return 0;
}

}  // namespace

int OpenWorkbench(const OpenOptions& options, int& argc, char** argv) {
  if (!HasScreen()) throw std::runtime_error("there is no screen here; tarnwise --help lists what works without one");
  const auto application = StartQt(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Tarnwise"));
  QApplication::setApplicationName(QStringLiteral("Tarnwise"));
  MainWindow window;
  window.show();
  if (!options.File.empty() && !window.Open(QString::fromStdString(options.File)) && !options.Pictures.empty())
    return 2;
  if (!options.Pictures.empty()) return TakePictures(window, options.Pictures);
  return QApplication::exec();
}

}  // namespace Tarnwise
