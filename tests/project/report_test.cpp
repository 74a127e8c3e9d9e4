// What a report says, as records and as HTML.
#include "HospitalsJudged.h"

#include "dea/Watch.h"
#include "project/Report.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Tarnwise {
namespace {

constexpr const char* kMade = "2024-06-01T08:15:00Z";

Wishes WishesFor(std::optional<std::size_t> session, ScoreForm form = ScoreForm::Ratio) {
  Wishes wishes;
  wishes.Session = session;
  wishes.NoSession = !session;
  wishes.Form = form;
  return wishes;
}

Report ReportFor(const Project& project, const Wishes& wishes) {
  return ReportOf(project, Evaluate(project, AskedOf(project, wishes), {}), kMade);
}

// All words of the report on one line each: rows of tables with " | " between their cells.
std::vector<String> LinesOf(const Report& report) {
  std::vector<String> lines;
  for (const ReportBlock& block : report.Blocks) {
    if (!block.Text.empty()) lines.push_back(block.Text);
    lines.insert(lines.end(), block.Items.begin(), block.Items.end());
    for (const auto& row : block.Table.Rows) {
      String line;
      for (const String& cell : row) line += (line.empty() ? "" : " | ") + cell;
      lines.push_back(line);
    }
  }
  return lines;
}

void ExpectLine(const Report& report, const String& line) {
  const std::vector<String> lines = LinesOf(report);
  String all;
  for (const String& has : lines) all += has + "\n";
  EXPECT_NE(lines.end(), std::find(lines.begin(), lines.end(), line)) << line << "\nis not in\n" << all;
}

std::vector<Drawing> ChartsOf(const Report& report) {
  std::vector<Drawing> charts;
  for (const ReportBlock& block : report.Blocks) {
    if (block.Kind == ReportBlock::Kind::Chart) charts.push_back(block.Chart);
  }
  return charts;
}

std::size_t TimesIn(const String& text, const String& what) {
  std::size_t count = 0;
  for (std::size_t at = text.find(what); at != String::npos; at = text.find(what, at + what.size())) ++count;
  return count;
}

TEST(Report, SaysWhoWasAskedAndWhat) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(0));
  EXPECT_EQ("Hospitals", report.Title);
  ExpectLine(report, "Report of 2024-06-01T08:15:00Z.");
  ExpectLine(report, "Judged by | Dr. Müller");
  ExpectLine(report, "On | 2024-05-18T10:00:00Z");
  ExpectLine(report, "Approach | direct comparisons with a reference");
  ExpectLine(report, "Remark | First try");
  ExpectLine(report, "Inputs | Doctors, Nurses");
  ExpectLine(report, "3 of 12 units are efficient without judgments, 1 with them.");
}

TEST(Report, HoldsTheDataAndTheirSource) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(0));
  ExpectLine(report, "File | hospitals.csv");
  ExpectLine(report, "SHA-256 of the file | 6f2c1b7e");
  ExpectLine(report, "F | 55 | 255 | 230 | 90");
}

TEST(Report, TellsEveryJudgedIntervalInOwnUnits) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(0));
  ExpectLine(report, "Doctors | Doctors from 55 to 19 is worth 3 to 4.09 times Nurses from 306 to 131. | 3 | 4.09");
  ExpectLine(report,
             "Inpatients | Inpatients from 50 to 147 is worth 2 to 2.5 times Outpatients from 94 to 260. | 2 | "
             "2.5");
  ExpectLine(report, "1 Doctors (posts) = 14.583 .. 19.882 Nurses");
  ExpectLine(report, "Nurses | the reference | 1 | 1");
}

TEST(Report, TellsMissingBoundsAndWhatWasNotJudged) {
  Project project = HospitalsJudged();
  project.Sessions[0].Attributes[0].High = 0.0;
  project.Sessions[0].Attributes[1].Judged = false;
  const Report report = ReportFor(project, WishesFor(0));
  ExpectLine(report, "Doctors | Doctors from 55 to 19 is worth 3 or more times Nurses from 306 to 131. | 3 | none");
  ExpectLine(report, "Inpatients | not judged: its weight is free | none | none");
  ExpectLine(report, "1 Doctors (posts) >= 14.583 Nurses");
}

// The scales of the day of the judgment, whatever the column says since.
TEST(Report, ShowsTheScalesThatWereJudgedOn) {
  Project project = HospitalsJudged();
  project.Sessions[0].Attributes[0].Snapshot = ColumnScale{60, 15, {}};
  const Report report = ReportFor(project, WishesFor(0));
  ExpectLine(report, "Doctors | input | posts | straight line | 60 | 15");
  ExpectLine(report, "Nurses | input | - | 120: 0, 320: 1 | 306 | 131");
}

TEST(Report, OfTheRatioFormTellsScoresAndReasons) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(0));
  ExpectLine(report, "B | 1.000 | 0.809 - 0.854 | - | 3-4");
  ExpectLine(report,
             "B: efficiency 0.809 - 0.854, without judgments 1.000, ranks 3-4. Held back by Inpatients >= 2.00 "
             "(0.146), Doctors >= 3.00 (0.053). Compared with A 0.787.");
  ExpectLine(report,
             "The ratio form does not use it: what all outputs are worth against all inputs scales every unit "
             "alike.");
}

TEST(Report, OfTheValueFormHoldsNoEfficiency) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(1, ScoreForm::Value));
  ExpectLine(report, "A | 0.617 - 0.657 | 0.00005 | 0.003 | 2");
  ExpectLine(report,
             "A: value 0.617 - 0.657, rank 2. Even at its best weights it is 0.00005 behind the best one. It "
             "loses at most 0.003.");
  ExpectLine(report,
             "B: value 0.617 - 0.660, rank 1. At its best weights it is 0.003 ahead of the next one. It loses "
             "at most 0.000.");
  for (const String& line : LinesOf(report)) EXPECT_EQ(String::npos, line.find("fficien")) << line;
}

TEST(Report, WithoutJudgmentsSaysThatNobodyWasAsked) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(std::nullopt));
  ExpectLine(report, "Nobody was asked: these results hold without any judgment.");
  ExpectLine(report, "None: every weight is free.");
  ExpectLine(report, "A | 1.000 | 1.408");
}

TEST(Report, ListsWhatIsLeftOut) {
  Project project = HospitalsJudged();
  project.Columns[2].Values[4] = std::nullopt;
  const Report report = ReportFor(project, WishesFor(0));
  ExpectLine(report, "Unit E: no value in column Outpatients.");
  ExpectLine(report, "Column Beds is not used.");
  ExpectLine(report, "E | 22 | 158 | missing | 66");
}

TEST(Report, OffConstantReturnsSaysWhatIsNoNotionThere) {
  Wishes wishes = WishesFor(0);
  wishes.Returns = ScoreReturns::Vrs;
  const Report report = ReportFor(HospitalsJudged(), wishes);
  ExpectLine(report, "The least efficiency and the ranks, which are notions of constant returns to scale.");
}

// Seven columns of numbers have no room on a page: two tables, the units in both.
TEST(Report, WideTablesAreSplit) {
  Project project = HospitalsJudged();
  for (int k = 0; k < 3; ++k) {
    project.Columns.push_back(project.Columns[2]);
    project.Columns.back().Name = "More " + std::to_string(k);
  }
  const Report report = ReportFor(project, WishesFor(std::nullopt));
  ExpectLine(report, "F | 55 | 255 | 230");
  ExpectLine(report, "F | 90 | 230 | 230 | 230");
}

TEST(Report, EveryChartHasATitleAndADescription) {
  for (const Wishes& wishes : {WishesFor(0), WishesFor(1, ScoreForm::Value), WishesFor(std::nullopt)}) {
    const std::vector<Drawing> charts = ChartsOf(ReportFor(HospitalsJudged(), wishes));
    EXPECT_GE(charts.size(), 5U);
    for (const Drawing& chart : charts) {
      EXPECT_FALSE(chart.Title.empty());
      EXPECT_GT(chart.Description.size(), 10U) << chart.Title;
      EXPECT_FALSE(chart.Shapes.empty()) << chart.Title;
    }
  }
}

TEST(Report, ChartsStayWithinTheirEdges) {
  for (const Drawing& chart : ChartsOf(ReportFor(HospitalsJudged(), WishesFor(0)))) {
    for (const DrawnShape& shape : chart.Shapes) {
      for (const double x : {shape.X1, shape.X2}) EXPECT_TRUE(x >= 0.0 && x <= chart.Width) << chart.Title << x;
      for (const double y : {shape.Y1, shape.Y2}) EXPECT_TRUE(y >= 0.0 && y <= chart.Height) << chart.Title << y;
    }
  }
}

TEST(ReportHtml, IsOneFileWithChartsWithin) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(0));
  const String html = ReportHtml(report);
  EXPECT_EQ(ChartsOf(report).size(), TimesIn(html, "<svg "));
  EXPECT_EQ(ChartsOf(report).size(), TimesIn(html, "<desc id=\"chart-"));
  EXPECT_EQ(String::npos, html.find("src="));
  EXPECT_EQ(String::npos, html.find("href="));
  EXPECT_EQ(0U, html.find("<!DOCTYPE html>\n<html lang=\"en\">"));
}

TEST(ReportHtml, EscapesWhatComesFromTheProject) {
  Project project = HospitalsJudged();
  project.Name = "<b>A&\"B\"</b>";
  project.Units[3] = "<script>alert(1)</script>\x01";
  const Report report = ReportFor(project, WishesFor(0));
  for (const String& html : {ReportHtml(report), ReportRichText(report)}) {
    EXPECT_EQ(String::npos, html.find("<script"));
    EXPECT_NE(String::npos, html.find("&lt;script&gt;alert(1)&lt;/script&gt;\\x01"));
    EXPECT_NE(String::npos, html.find("<h1>&lt;b&gt;A&amp;&quot;B&quot;&lt;/b&gt;</h1>"));
  }
}

TEST(ReportHtml, RichTextHasAMarkForEachChart) {
  const Report report = ReportFor(HospitalsJudged(), WishesFor(0));
  const String text = ReportRichText(report);
  EXPECT_EQ(String::npos, text.find("<svg"));
  for (std::size_t k = 0; k < ChartsOf(report).size(); ++k) EXPECT_EQ(1U, TimesIn(text, ChartMark(k))) << k;
}

// Tables and charts show the first or the best, and say so.
TEST(Report, OfManyUnitsShowsSomeAndSaysSo) {
  Project project = HospitalsJudged();
  for (int k = 12; k < 1500; ++k) project.Units.push_back("Unit " + std::to_string(k));
  for (DataColumn& column : project.Columns) {
    for (std::size_t k = 12; k < 1500; ++k) column.Values.push_back(column.Values[k % 12].value_or(100.0) * 1.01);
  }
  const Report report = ReportFor(project, WishesFor(std::nullopt));
  ExpectLine(report, "The first 1000 of 1500 units are shown; the project holds all of them.");
  ExpectLine(report, "The first 1000 of 1500 units are shown; tarnwise solve --csv gives all of them.");
  ExpectLine(report, "The first 200 of 1500 units are shown; tarnwise solve --csv gives all of them.");
  for (const Drawing& chart : ChartsOf(report)) EXPECT_LT(chart.Height, 2000.0);
}

}  // namespace
}  // namespace Tarnwise
