#include "view/qt/QtLifetime.h"

#include "view/Platform.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <utility>
#include <vector>

namespace Tarnwise {

namespace {

struct Grave {
  QPointer<QObject> Object;
  int Depth;  // how many entries were on the stack
};

int depth = 0;
bool digging = false;

std::vector<Grave>& Graves() {
  static std::vector<Grave> graves;
  return graves;
}

void DigAll();

void Dig() {
  digging = false;
  qRemovePostRoutine(DigAll);
  std::vector<Grave> ready;
  std::erase_if(Graves(), [&ready](const Grave& grave) {
    if (depth >= grave.Depth) return false;
    ready.push_back(grave);
    return true;
  });
  for (const Grave& grave : ready) delete grave.Object.data();
}

// The application ends before an event loop could do it.
void DigAll() {
  digging = false;
  for (const Grave& grave : std::exchange(Graves(), {})) delete grave.Object.data();
}

void DigLater() {
  if (digging || Graves().empty() || qApp == nullptr) return;
  digging = true;
  qAddPostRoutine(DigAll);
  QTimer::singleShot(0, qApp, Dig);
}

}  // namespace

QtEntry::QtEntry(Form& form) : form_(form.shared_from_this()) { ++depth; }

QtEntry::~QtEntry() {
  form_.reset();
  --depth;
  DigLater();
}

void Bury(QObject* object) {
  Graves().push_back({object, std::max(depth, 1)});
  DigLater();
}

}  // namespace Tarnwise
