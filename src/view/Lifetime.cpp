#include "view/Lifetime.h"

#include "runtime/PerThread.h"
#include "view/Platform.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Tarnwise {

namespace {

struct Grave {
  std::function<void()> Destroy;
  int Depth = 0;  // how many entries were on the stack
};

struct Graveyard {
  int Depth = 0;
  std::vector<const Form*> Entered;  // the form of each entry, the outermost first
  std::vector<Grave> Graves;
  std::function<void()> Soon;
  bool AtOnce = false;
};

Graveyard& Yard() {
  static PerThread<Graveyard> yard;
  return yard.Get();
}

// The entry that has to end first, counted from 1.
int DepthFor(const Form* form) {
  const std::vector<const Form*>& entered = Yard().Entered;
  const auto first = std::find(entered.begin(), entered.end(), form);
  if (form != nullptr && first != entered.end()) return static_cast<int>(first - entered.begin()) + 1;
  return std::max(Yard().Depth, 1);
}

void DigSoon() {
  if (!Yard().Graves.empty() && Yard().Soon) Yard().Soon();
}

}  // namespace

Entry::Entry(Form& form) : form_(form.shared_from_this()) {
  ++Yard().Depth;
  Yard().Entered.push_back(&form);
}

Entry::~Entry() {
  form_.reset();
  --Yard().Depth;
  Yard().Entered.pop_back();
  DigSoon();
}

void Bury(std::function<void()> destroy, const Form* of) {
  Yard().Graves.push_back({std::move(destroy), DepthFor(of)});
  if (Yard().AtOnce && Yard().Depth == 0)
    Dig();
  else
    DigSoon();
}

void DigBy(std::function<void()> soon, bool atOnce) {
  Yard().Soon = std::move(soon);
  Yard().AtOnce = atOnce;
}

void Dig() {
  std::vector<Grave> ready;
  std::erase_if(Yard().Graves, [&ready](const Grave& grave) {
    if (Yard().Depth >= grave.Depth) return false;
    ready.push_back(grave);
    return true;
  });
  for (const Grave& grave : ready) grave.Destroy();
}

void DigAll() {
  for (const Grave& grave : std::exchange(Yard().Graves, {})) grave.Destroy();
}

bool IsDug() { return Yard().Graves.empty(); }

}  // namespace Tarnwise
