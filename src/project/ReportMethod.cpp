// What a report says of the method, and of what it leaves out.
#include "project/Report.h"
#include "project/Shown.h"

namespace Tarnwise {

namespace {

void AddRegion(Report& report) {
  report.Paragraph(
      "A judged ratio compares steps of value: what it says is turned into prices of raw units by the "
      "chord of the value curve over the performance range, S = |best - worst|, dV = the values between.");
  report.Formula(
      "basis range:  p(j) / p(ref) = ratio * S(ref) / S(j)\n"
      "basis scale:  p(j) / p(ref) = ratio * (dV(j) / S(j)) / (dV(ref) / S(ref))\n"
      "basis unit:   p(j) / p(ref) = ratio");
  report.Paragraph(
      "All ratios of a group go to one reference, so the prices that the judgments allow are a box around "
      "it: L(j) p(ref) <= p(j) <= H(j) p(ref).");
}

void AddRatioMethod(const Evaluation& evaluation, Report& report) {
  const bool out = evaluation.How.Orientation == ScoreOrientation::Out;
  report.Paragraph(
      "Each unit o is shown at the prices u of outputs y and v of inputs x that are best for it, within the "
      "box, as long as no unit k gets more than 1:");
  report.Formula(out ? "least v.x(o) - u0   with u.y(o) = 1,  u.y(k) - v.x(k) + u0 <= 0 for all k,  u, v >= 0"
                     : "greatest u.y(o) + u0   with v.x(o) = 1,  u.y(k) - v.x(k) + u0 <= 0 for all k,  u, v >= 0");
  report.Paragraph(
      "u0 = 0 for constant returns to scale (crs), free for variable (vrs), at most 0 for non-increasing "
      "(nirs), at least 0 for non-decreasing ones (ndrs). It is the assurance region of data envelopment "
      "analysis (Thompson et al. 1986, 1990), here with judged bounds.");
  report.Paragraph(
      "The least efficiency over the box, with constant returns, is the product of two linear fractions, "
      "since the groups are independent of each other:");
  report.Formula("min over k of [ min u.y(o) / u.y(k) ] * [ min v.x(k) / v.x(o) ]");
  report.Paragraph(
      "A unit dominates another where that product, with the two alone, is above 1. A unit's rank is "
      "surely no better than 1 + the units that dominate it, and no worse than all units less those that "
      "it dominates. The ranks seen are those under weights drawn from the box. A unit is held back by a "
      "bound by as much as its greatest efficiency gains when this bound alone is dropped. Super: the "
      "score of an efficient unit that does not count among the k.");
}

void AddValueMethod(Report& report) {
  report.Paragraph(
      "A unit's goodness in an attribute is its value V of an output, and 1 - V of an input. Values are "
      "added up with weights t on the scale of values, the outputs' reference at 1, the inputs' weights "
      "times the cross ratio R, all of them as shares:");
  report.Formula(
      "value of o at t:    sum t(j) g(o,j) / sum t(j)\n"
      "loses at most:      greatest over k and t of  sum t(j) (g(k,j) - g(o,j)) / sum t(j)\n"
      "distance of o:      least d with  sum t(j) (g(k,j) - g(o,j)) <= d for all k but o,  sum t(j) = 1");
  report.Paragraph(
      "A distance of 0 or less says that the unit is best for some of the weights, and minus the distance "
      "is its lead there (Gouveia, Dias and Antunes 2008). Values, distances and losses are shares of the "
      "way from all worst to all best. A unit dominates another whose value is below its own at all "
      "weights; ranks follow from that, and the ranks seen from weights drawn.");
  report.Paragraph(
      "Where the cross ratio has a band b, it lies from R / b to R b; extremes lie at the ends. Where it "
      "was not judged, inputs and outputs count in any relation.");
}

}  // namespace

void AddMethod(const Evaluation& evaluation, Report& report) {
  report.Section("Method", true);
  AddRegion(report);
  if (evaluation.How.Form == ScoreForm::Value) {
    AddValueMethod(report);
  } else {
    AddRatioMethod(evaluation, report);
  }
  report.Paragraph(
      "The linear programs were solved by the simplex method, and every answer was checked: worst violation "
      "of any condition " +
      SignificantText(evaluation.Results.WorstViolation, 2) + ".");
}

void AddLeftOut(const Project& project, const Evaluation& evaluation, Report& report) {
  report.Section("What was left out");
  std::vector<String> items;
  for (const Dea::LeftOut& left : evaluation.Results.LeftOut) {
    items.push_back("Unit " + evaluation.Problem.Units[static_cast<std::size_t>(left.Unit)] + ": " + left.Reason + ".");
  }
  for (const std::size_t j : ColumnsIn(project, Role::Unused)) {
    items.push_back("Column " + project.Columns[j].Name + " is not used.");
  }
  for (const Dea::Note& note : evaluation.Results.Notes) items.push_back(note.Text);
  if (evaluation.How.Form == ScoreForm::Ratio && evaluation.How.Session &&
      evaluation.How.Returns != ScoreReturns::Crs) {
    items.emplace_back("The least efficiency and the ranks, which are notions of constant returns to scale.");
  }
  if (items.empty()) report.Paragraph("Nothing: all units and all columns count.");
  report.List(std::move(items));
}

}  // namespace Tarnwise
