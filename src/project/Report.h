// The report of a project's results: what was asked and of whom, the data and their source, scales and curves, every
// judged interval in own units, scores with charts, the reasons unit by unit, the method, and what was left out.
#pragma once

#include "project/Drawing.h"
#include "project/Evaluation.h"

namespace Tarnwise {

constexpr std::size_t kMostUnitsShown = 1000;  // in a table of units

struct ReportTable {
  String Caption;
  std::vector<String> Header;
  std::vector<std::vector<String>> Rows;  // the first cell names its row
  std::size_t Texts = 1;                  // so many columns of words come first; numbers stand at the right
};

// One part of a section. What is not of its kind is empty.
struct ReportBlock {
  enum class Kind { Section, Subsection, Paragraph, Formula, List, Table, Chart };
  enum Kind Kind = Kind::Paragraph;
  String Text;                // of a heading, a paragraph, formulas (a line each); of a chart what stands below it
  bool OnOwnPage = false;     // of a section, on paper
  std::vector<String> Items;  // of a list
  ReportTable Table;
  Drawing Chart;
};

struct Report {
  String Title;
  std::vector<ReportBlock> Blocks;

  void Section(const String& title, bool onOwnPage = false);
  void Subsection(const String& title);
  void Paragraph(const String& text);
  void Formula(const String& text);
  void List(std::vector<String> items);  // nothing where there are none
  void Add(ReportTable table);           // one with many columns of numbers as several
  void Add(Drawing chart, const String& below);
};

// `project` is the one that was evaluated; `made` is the time, as it is to stand in the report.
Report ReportOf(const Project& project, const Evaluation& evaluation, const String& made);

// One file that needs nothing beside it; charts are SVG within.
String ReportHtml(const Report& report);

// The same for a reader of plain rich text without SVG: where a chart belongs there is a paragraph with the text
// ChartMark(n), n counting the charts from 0.
String ReportRichText(const Report& report);
String ChartMark(std::size_t chart);

// The parts of a report, as ReportOf puts them together.
void AddAsked(const Project& project, const Evaluation& evaluation, const String& made, Report& report);
void AddData(const Project& project, const Evaluation& evaluation, Report& report);
void AddScales(const Project& project, const Evaluation& evaluation, Report& report);
void AddJudgments(const Project& project, const Evaluation& evaluation, Report& report);
void AddScores(const Evaluation& evaluation, Report& report);
void AddReasons(const Evaluation& evaluation, Report& report);
void AddMethod(const Evaluation& evaluation, Report& report);
void AddLeftOut(const Project& project, const Evaluation& evaluation, Report& report);

}  // namespace Tarnwise
