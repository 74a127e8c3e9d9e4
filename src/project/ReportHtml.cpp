#include "project/Report.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr double kWide = 400.0;  // narrower charts stand two side by side

constexpr const char* kStyle = R"(
body { font-family: sans-serif; line-height: 1.4; color: #000; background: #fff; max-width: 52em; margin: 2em auto;
  padding: 0 1em; }
h1 { font-size: 1.7em; } h2 { font-size: 1.3em; margin-top: 2em; border-bottom: 1px solid #888; }
h3 { font-size: 1.05em; margin-bottom: 0.3em; }
table { border-collapse: collapse; margin: 1em 0; font-size: 0.9em; }
caption { text-align: left; font-weight: bold; padding: 0.3em 0; }
th, td { border: 1px solid #999; padding: 0.2em 0.6em; text-align: right; vertical-align: top; }
thead th { background: #eee; } .words { text-align: left; } tbody th { font-weight: normal; }
figure { margin: 1em 1em 1em 0; break-inside: avoid; display: inline-block; vertical-align: top; max-width: 100%; }
figure.small { width: 45%; min-width: 20em; } figure svg { max-width: 100%; height: auto; }
svg text { font-family: sans-serif; }
figcaption { font-size: 0.9em; }
.formula { font-family: monospace; margin: 0.5em 2em; white-space: pre-wrap; }
.wide { overflow-x: auto; }
@page { margin: 18mm; }
h2.page { break-before: page; }
@media print { body { margin: 0; max-width: none; font-size: 10pt; } h2, h3 { break-after: avoid; }
  tr { break-inside: avoid; } thead { display: table-header-group; } .wide { overflow: visible; } }
)";

String Element(const char* name, const String& text) {
  return String("<") + name + ">" + Escaped(text) + "</" + name + ">";
}

bool IsSmallChart(const ReportBlock& block) {
  return block.Kind == ReportBlock::Kind::Chart && block.Chart.Width < kWide;
}

// The formulas of a block, a line each.
String LinesOf(const String& text) {
  String lines;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t stop = std::min(text.find('\n', from), text.size());
    lines += (from == 0 ? "" : "<br>") + Escaped(text.substr(from, stop - from));
    from = stop + 1;
  }
  return lines;
}

const char* ClassOf(const ReportTable& table, std::size_t column) {
  return column < table.Texts ? " class=\"words\"" : "";
}

void PutCell(const ReportTable& table, std::size_t column, const String& text, String& out) {
  const String cell = column == 0 ? "th" : "td";
  out += "<" + cell + (column == 0 ? " scope=\"row\"" : "") + ClassOf(table, column) + ">" + Escaped(text) + "</" +
         cell + ">";
}

void PutTable(const ReportTable& table, String& out) {
  out += "<div class=\"wide\">\n<table>\n";
  if (!table.Caption.empty()) out += Element("caption", table.Caption) + "\n";
  out += "<thead>\n<tr>";
  for (std::size_t j = 0; j < table.Header.size(); ++j) {
    out += String("<th scope=\"col\"") + ClassOf(table, j) + ">" + Escaped(table.Header[j]) + "</th>";
  }
  out += "</tr>\n</thead>\n<tbody>\n";
  for (const auto& row : table.Rows) {
    out += "<tr>";
    for (std::size_t j = 0; j < row.size(); ++j) PutCell(table, j, row[j], out);
    out += "</tr>\n";
  }
  out += "</tbody>\n</table>\n</div>\n";
}

void PutRichTable(const ReportTable& table, String& out) {
  if (!table.Caption.empty()) out += "<p><b>" + Escaped(table.Caption) + "</b></p>\n";
  out += "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\"><thead><tr>";
  for (std::size_t j = 0; j < table.Header.size(); ++j) {
    out += String("<th bgcolor=\"#eeeeee\" align=\"") + (j < table.Texts ? "left" : "right") + "\">" +
           Escaped(table.Header[j]) + "</th>";
  }
  out += "</tr></thead>\n";
  for (const auto& row : table.Rows) {
    out += "<tr>";
    for (std::size_t j = 0; j < row.size(); ++j) {
      out += String("<td align=\"") + (j < table.Texts ? "left" : "right") + "\">" + Escaped(row[j]) + "</td>";
    }
    out += "</tr>\n";
  }
  out += "</table>\n";
}

void PutList(const std::vector<String>& items, String& out) {
  out += "<ul>\n";
  for (const String& item : items) out += Element("li", item) + "\n";
  out += "</ul>\n";
}

void PutWords(const ReportBlock& block, const char* ownPage, String& out) {
  switch (block.Kind) {
    case ReportBlock::Kind::Section:
      out += String("<h2") + (block.OnOwnPage ? ownPage : "") + ">" + Escaped(block.Text) + "</h2>\n";
      break;
    case ReportBlock::Kind::Subsection: out += Element("h3", block.Text) + "\n"; break;
    case ReportBlock::Kind::List: PutList(block.Items, out); break;
    default: out += Element("p", block.Text) + "\n";
  }
}

String Head(const Report& report, const char* style) {
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n" +
         Element("title", report.Title) + "\n<style>" + style + "</style>\n</head>\n<body>\n" +
         Element("h1", report.Title) + "\n";
}

}  // namespace

String ReportHtml(const Report& report) {
  String out = Head(report, kStyle);
  std::size_t charts = 0;
  for (const ReportBlock& block : report.Blocks) {
    if (block.Kind == ReportBlock::Kind::Table) {
      PutTable(block.Table, out);
    } else if (block.Kind == ReportBlock::Kind::Chart) {
      out += String(IsSmallChart(block) ? "<figure class=\"small\">\n" : "<figure>\n") +
             SvgOf(block.Chart, "chart-" + std::to_string(charts++)) + Element("figcaption", block.Text) +
             "\n</figure>\n";
    } else if (block.Kind == ReportBlock::Kind::Formula) {
      out += "<p class=\"formula\">" + LinesOf(block.Text) + "</p>\n";
    } else {
      PutWords(block, " class=\"page\"", out);
    }
  }
  return out + "</body>\n</html>\n";
}

String ChartMark(std::size_t chart) { return "\xE2\x9F\xA6" + std::to_string(chart) + "\xE2\x9F\xA7"; }

String ReportRichText(const Report& report) {
  String out = Head(report, "");
  std::size_t charts = 0;
  bool isBeside = false;  // the last block was the first of two small charts in a row
  for (std::size_t k = 0; k < report.Blocks.size(); ++k) {
    const ReportBlock& block = report.Blocks[k];
    if (IsSmallChart(block)) {
      out += (isBeside ? String() : String("<table width=\"100%\"><tr>")) + "<td>" + ChartMark(charts++) + "<br>" +
             Escaped(block.Text) + "</td>";
      isBeside = !isBeside && k + 1 < report.Blocks.size() && IsSmallChart(report.Blocks[k + 1]);
      if (!isBeside) out += "</tr></table>\n";
    } else if (block.Kind == ReportBlock::Kind::Table) {
      PutRichTable(block.Table, out);
    } else if (block.Kind == ReportBlock::Kind::Chart) {
      out += Element("p", ChartMark(charts++)) + "\n" + Element("p", block.Text) + "\n";
    } else if (block.Kind == ReportBlock::Kind::Formula) {
      out += "<p style=\"margin-left:24px\"><tt>" + LinesOf(block.Text) + "</tt></p>\n";
    } else {
      PutWords(block, " style=\"page-break-before:always\"", out);
    }
  }
  return out + "</body>\n</html>\n";
}

}  // namespace Tarnwise
