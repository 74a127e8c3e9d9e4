// What a project still lacks, as one sentence for the line at the top of the window, and where it is mended.
#pragma once

#include "project/Project.h"

#include <QString>

namespace Tarnwise {

enum class PageKind { Data, Attributes, Judgments, Results, Report };

struct Advice {
  QString Text;
  bool IsMissing = false;  // nothing can be worked out before it is mended
  PageKind Where = PageKind::Data;
};

Advice AdviceFor(const Project& project);

}  // namespace Tarnwise
