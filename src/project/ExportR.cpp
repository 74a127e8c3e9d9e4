#include "modelfiles/WholeFile.h"
#include "project/Exports.h"
#include "project/JsonMembers.h"
#include "runtime/At.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

// No bound: as far above the price that makes both columns worth the same.
constexpr double kFarAbove = 1e9;

// R reads JSON's numbers; what is none is not available.
String Number(const std::optional<double>& number) {
  String text;
  PutFull(text, number);
  return text == "null" ? "NA" : text;
}

// R's strings take the escapes of JSON, but for that of the slash, which is never written.
String Quoted(const String& text) { return JsonQuotes(text, "name"); }

struct RWriter {
  const Evaluation& From;
  String Text;

  const Dea::Column& Column(int column) const { return From.Problem.Columns[At(column)]; }
  int ReferenceOf(Dea::Role use) const;
  std::vector<int> Group(Dea::Role use) const;
  double MeanOf(int column) const;
  void PutVector(const String& name, const std::vector<String>& items);
  void PutMatrix(const String& name, const std::vector<int>& columns);
  String BoundsOf(int column, int reference) const;
  bool PutDual();
  void PutAll();
};

int RWriter::ReferenceOf(Dea::Role use) const {
  if (!From.Problem.Session) return -1;
  return (use == Dea::Role::Input ? From.Problem.Session->CostReference : From.Problem.Session->BenefitReference)
      .value_or(-1);
}

// The reference first.
std::vector<int> RWriter::Group(Dea::Role use) const {
  std::vector<int> columns;
  for (int j = 0; At(j) < From.Problem.Columns.size(); ++j) {
    if (Column(j).Use == use) columns.push_back(j);
  }
  const auto reference = std::find(columns.begin(), columns.end(), ReferenceOf(use));
  if (reference != columns.end()) std::rotate(columns.begin(), reference, reference + 1);
  return columns;
}

double RWriter::MeanOf(int column) const {
  double sum = 0.0;
  for (const Dea::UnitResult& unit : From.Results.Units) sum += Column(column).Values[At(unit.Unit)];
  return sum > 0.0 ? sum / static_cast<double>(From.Results.Units.size()) : 1.0;
}

void RWriter::PutVector(const String& name, const std::vector<String>& items) {
  Text += name + " <- c(";
  for (std::size_t k = 0; k < items.size(); ++k) Text += (k == 0 ? "\n  " : ",\n  ") + items[k];
  Text += ")\n";
}

// A group without columns is one of 1 for everybody.
void RWriter::PutMatrix(const String& name, const std::vector<int>& columns) {
  std::vector<String> rows;
  for (const Dea::UnitResult& unit : From.Results.Units) {
    String row;
    for (const int j : columns) row += (row.empty() ? "" : ", ") + Number(Column(j).Values[At(unit.Unit)]);
    rows.push_back(columns.empty() ? "1" : row);
  }
  PutVector(name, rows);
  const std::size_t count = std::max<std::size_t>(columns.size(), 1);
  Text += name + " <- matrix(" + name + ", ncol = " + std::to_string(count) + ", byrow = TRUE)\n";
  Text += "rownames(" + name + ") <- units\n";
  if (columns.empty()) return;
  String names;
  for (const int j : columns) names += (names.empty() ? "" : ", ") + Quoted(Column(j).Name);
  Text += "colnames(" + name + ") <- c(" + names + ")\n";
}

String RWriter::BoundsOf(int column, int reference) const {
  double low = 0.0;
  double high = kFarAbove * MeanOf(reference) / MeanOf(column);
  for (const Dea::Equivalence& equivalence : From.Results.Equivalences) {
    if (equivalence.Column != column) continue;
    low = equivalence.Low;
    high = equivalence.High.value_or(std::fmax(high, low));
  }
  return Number(low) + ", " + Number(high);
}

// False where nothing is bounded.
bool RWriter::PutDual() {
  if (From.Results.Equivalences.empty()) return false;
  std::vector<String> rows;
  for (const Dea::Role use : {Dea::Role::Input, Dea::Role::Output}) {
    const std::vector<int> columns = Group(use);
    for (std::size_t c = 1; c < columns.size(); ++c) rows.push_back(BoundsOf(columns[c], columns[0]));
  }
  Text += "# Least and greatest price of one unit of each column, in units of its group's first column. A bound that\n";
  Text += "# was not judged is 0, or far above everything.\n";
  PutVector("DUAL", rows);
  Text += "DUAL <- matrix(DUAL, ncol = 2, byrow = TRUE)\n";
  return true;
}

const char* ReturnsInR(ScoreReturns returns) {
  switch (returns) {
    case ScoreReturns::Crs: return "crs";
    case ScoreReturns::Vrs: return "vrs";
    case ScoreReturns::Nirs: return "drs";
    case ScoreReturns::Ndrs: return "irs";
  }
  return "crs";
}

void RWriter::PutAll() {
  std::vector<String> units;
  std::vector<String> scores;
  for (const Dea::UnitResult& unit : From.Results.Units) {
    units.push_back(Quoted(From.Problem.Units[At(unit.Unit)]));
    scores.push_back(Number(unit.Max));
  }
  Text += "# The greatest scores once more, by dea.dual of the package Benchmarking:\n";
  Text += "#   install.packages(\"Benchmarking\")\n";
  Text += "library(Benchmarking)\n\n";
  PutVector("units", units);
  PutMatrix("X", Group(Dea::Role::Input));
  PutMatrix("Y", Group(Dea::Role::Output));
  const bool dual = PutDual();
  Text += "\ne <- dea.dual(X, Y, RTS = \"" + String(ReturnsInR(From.How.Returns)) + "\", ORIENTATION = \"" +
          NameOf(From.How.Orientation) + "\"" + (dual ? ", DUAL = DUAL" : "") + ")\n\n";
  PutVector("ours", scores);
  const bool all = std::all_of(From.Results.Units.begin(), From.Results.Units.end(),
                               [](const Dea::UnitResult& unit) { return unit.Max.has_value(); });
  Text += "print(data.frame(units, theirs = e$eff, ours))\n";
  Text +=
      all ? "stopifnot(max(abs(e$eff - ours)) < 1e-6)\n" : "stopifnot(max(abs(e$eff - ours)[!is.na(ours)]) < 1e-6)\n";
}

}  // namespace

String RScript(const Evaluation& evaluation) {
  if (evaluation.How.Form != ScoreForm::Ratio) throw ModelFault("an R script is there for the ratio form only");
  RWriter writer{evaluation, {}};
  writer.PutAll();
  return writer.Text;
}

}  // namespace Tarnwise
