#include "dea/Watch.h"

namespace Tarnwise::Dea {

void Watch::Report(Double share) const {
  LookAtFlag();
  if (Progress) Progress(share);
}

void Watch::Report(int done, int all) const { Report(static_cast<Double>(done) / static_cast<Double>(all)); }

void Watch::LookAtFlag() const {
  if (Cancel != nullptr && Cancel->load(std::memory_order_relaxed)) throw Cancelled();
}

Watch Watch::Part(Double from, Double to) const {
  Watch part;
  part.Cancel = Cancel;
  if (Progress) {
    part.Progress = [whole = Progress, from, to](Double share) { whole(from + (to - from) * share); };
  }
  return part;
}

}  // namespace Tarnwise::Dea
