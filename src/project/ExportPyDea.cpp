#include "modelfiles/WholeFile.h"
#include "project/Exports.h"
#include "project/NumberText.h"
#include "project/Shown.h"

namespace Tarnwise {

namespace {

// What its restrictions and lists of names are put together with.
constexpr const char* kSigns = "/<>=*+;{}\n";

const String& NameIn(const JudgedProblem& judged, int column) {
  const String& name = judged.Problem.Columns[static_cast<std::size_t>(column)].Name;
  if (name.find_first_of(kSigns) != String::npos) {
    throw ModelFault("column " + ShownName(name) + ": pyDEA can't read a name with one of / < > = * + ; { } in it");
  }
  return name;
}

}  // namespace

String PyDeaText(const JudgedProblem& judged) {
  String text;
  for (const Dea::Equivalence& equivalence : judged.Equivalences) {
    const String ratio = NameIn(judged, equivalence.Column) + "/" + NameIn(judged, equivalence.Of);
    if (equivalence.Low > 0.0) text += ratio + " >= " + ShortestText(equivalence.Low) + "\n";
    if (equivalence.High) text += ratio + " <= " + ShortestText(*equivalence.High) + "\n";
  }
  return text;
}

}  // namespace Tarnwise
