#include "project/Report.h"

#include <cstddef>

namespace Tarnwise {

namespace {

constexpr std::size_t kMostColumns = 6;  // beside the first; more of them have no room on a page

template <class Cell>
std::vector<Cell> PartOf(const std::vector<Cell>& row, std::size_t from, std::size_t stop) {
  std::vector<Cell> part{row.front()};
  part.insert(part.end(), row.begin() + static_cast<std::ptrdiff_t>(from),
              row.begin() + static_cast<std::ptrdiff_t>(stop));
  return part;
}

// A table of many columns of numbers as several, equally wide as far as that goes, the first column in each.
std::vector<ReportTable> PartsOf(ReportTable table) {
  const std::size_t columns = table.Header.size() - 1;
  if (columns <= kMostColumns || table.Texts != 1) return {std::move(table)};
  const std::size_t count = (columns + kMostColumns - 1) / kMostColumns;
  std::vector<ReportTable> parts;
  for (std::size_t k = 0; k < count; ++k) {
    const std::size_t from = 1 + columns * k / count;
    const std::size_t stop = 1 + columns * (k + 1) / count;
    ReportTable part;
    part.Caption = table.Caption + " (" + std::to_string(k + 1) + " of " + std::to_string(count) + ")";
    part.Header = PartOf(table.Header, from, stop);
    for (const auto& row : table.Rows) part.Rows.push_back(PartOf(row, from, stop));
    parts.push_back(std::move(part));
  }
  return parts;
}

ReportBlock BlockOf(enum ReportBlock::Kind kind, const String& text) {
  ReportBlock block;
  block.Kind = kind;
  block.Text = text;
  return block;
}

}  // namespace

void Report::Section(const String& title, bool onOwnPage) {
  Blocks.push_back(BlockOf(ReportBlock::Kind::Section, title));
  Blocks.back().OnOwnPage = onOwnPage;
}

void Report::Subsection(const String& title) { Blocks.push_back(BlockOf(ReportBlock::Kind::Subsection, title)); }
void Report::Paragraph(const String& text) { Blocks.push_back(BlockOf(ReportBlock::Kind::Paragraph, text)); }
void Report::Formula(const String& text) { Blocks.push_back(BlockOf(ReportBlock::Kind::Formula, text)); }

void Report::List(std::vector<String> items) {
  if (items.empty()) return;
  Blocks.push_back(BlockOf(ReportBlock::Kind::List, {}));
  Blocks.back().Items = std::move(items);
}

void Report::Add(ReportTable table) {
  std::vector<ReportTable> parts = PartsOf(std::move(table));
  for (ReportTable& part : parts) {
    Blocks.push_back(BlockOf(ReportBlock::Kind::Table, {}));
    Blocks.back().Table = std::move(part);
  }
}

void Report::Add(Drawing chart, const String& below) {
  Blocks.push_back(BlockOf(ReportBlock::Kind::Chart, below));
  Blocks.back().Chart = std::move(chart);
}

Report ReportOf(const Project& project, const Evaluation& evaluation, const String& made) {
  Report report;
  report.Title = project.Name.empty() ? String("Efficiencies") : project.Name;
  AddAsked(project, evaluation, made, report);
  AddData(project, evaluation, report);
  AddScales(project, evaluation, report);
  AddJudgments(project, evaluation, report);
  AddScores(evaluation, report);
  AddReasons(evaluation, report);
  AddMethod(evaluation, report);
  AddLeftOut(project, evaluation, report);
  return report;
}

}  // namespace Tarnwise
