// A project as the wizard gets it for one session of judgments, and the session that comes back.
#pragma once

#include "model/mdTRNMain.h"
#include "modelfiles/Judgments.h"
#include "project/Project.h"

namespace Tarnwise {

struct CodePage;

// An attribute that is handed over without a judgment of its own, and the three numbers in its place: none that a
// person enters is equal to them.
struct Placeholder {
  int Attribute = 0;
  double Low = 0.0;
  double Ratio = 0.0;
  double High = 0.0;
};

// The wizard's attributes are the project's used columns in their order, the scale that is shown is worst to best
// rounded outward, the curve the column's own or the straight line, and there are no alternatives.
struct SessionModel {
  WizardData Data;
  PointArrays Points;
  std::vector<String> Names;  // of the columns, by attribute
  std::vector<ColumnScale> Scales;
  std::optional<std::size_t> Resumed;  // the session that it begins with
  std::vector<Placeholder> Placeholders;
  std::vector<String> Notes;  // what the person should know before, a sentence each
};

// Which session the wizard begins with.
struct Beginning {
  bool Fresh = false;                  // none
  std::optional<std::size_t> Session;  // this one; else the latest that fits
};

// A ModelFault where there is nothing to judge or more than the wizard takes, where worst and best are the same, and
// where the session that was named does not fit.
SessionModel SessionModelOf(const Project& project, const Beginning& beginning, const CodePage& texts);

// What the wizard handed over; `after` is its data inside that event. What is marked there as not judged, or came back
// as it was handed over without a judgment, counts as not judged. `made`, `by` and `note` are the caller's to set.
JudgmentSession SessionOf(const SessionModel& model, const Judgments& judgments, const WizardData& after);

// The text with a question mark for each character that the code page lacks.
String InCodePage(const String& text, const CodePage& texts);

}  // namespace Tarnwise
