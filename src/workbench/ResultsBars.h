// Results as rows of bars for the chart beside their table.
#pragma once

#include "workbench/ResultsModel.h"
#include "workbench/charts/BarChart.h"

namespace Tarnwise {

// Scores: from least to greatest, with a tick for the score without judgments. Ranks: those that the judgments leave
// open, and below them, hatched, those seen in weights drawn from them where that are fewer.
enum class BarKind { Scores, Ranks };

bool HasRanks(const Evaluation& evaluation);
BarRow BarRowOf(const Evaluation& evaluation, const Dea::UnitResult& unit, BarKind kind);

// The ends that all bars lie in; scores from 0 on, factors and ranks from 1.
std::pair<double, double> BarsShown(const std::vector<BarRow>& rows, const Evaluation& evaluation, BarKind kind);
QString BarsLabel(const Evaluation& evaluation, BarKind kind);

}  // namespace Tarnwise
