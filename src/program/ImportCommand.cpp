#include "program/ImportCommand.h"

#include "model/ModelFile.h"
#include "modelfiles/ModelJson.h"
#include "modelfiles/ModelWriter.h"
#include "modelfiles/PointsFile.h"
#include "program/Console.h"
#include "project/CsvDelimiter.h"
#include "project/ImportModel.h"
#include "project/ProjectChecks.h"
#include "project/ProjectFile.h"
#include "project/Sha256.h"
#include "project/Shown.h"

#include <array>
#include <ctime>
#include <ostream>

namespace Tarnwise {

namespace {

String PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

// A project and what the command says of how it came to be.
struct Made {
  struct Project Project;
  std::vector<String> Lines;
};

String CountsText(const std::vector<ColumnCount>& counts) {
  std::vector<String> items;
  items.reserve(counts.size());
  for (const ColumnCount& count : counts) items.push_back(ShownName(count.Column) + " " + std::to_string(count.Count));
  return Enumerated(items);
}

std::vector<String> LinesOf(const TableReport& report) {
  std::vector<String> lines;
  const char* const seen = report.Numbers.Seen ? "" : " (no number has one)";
  lines.push_back("delimiter " + NameOfDelimiter(report.Delimiter) + ", decimal sign " +
                  NameOfSign(report.Numbers.Format.Decimal) + seen + ", encoding " + NameOf(report.Encoding) +
                  (report.Header ? ", with a header" : ", without a header"));
  lines.push_back(CountOf(report.Rows, "row") + ", " + CountOf(report.Columns, "column") +
                  (report.BlankRows == 0 ? "" : "; " + CountOf(report.BlankRows, "empty row") + " passed over"));
  for (const String& name : report.Unnamed) lines.push_back("a column without a name is called " + Shown(name));
  if (!report.Missing.empty()) lines.push_back("missing values: " + CountsText(report.Missing));
  for (const UnreadCell& cell : report.Unread) {
    lines.push_back("not read: line " + std::to_string(cell.Line) + " (" + ShownName(cell.Unit) + "), " +
                    ShownName(cell.Column) + ": " + Shown(cell.Text) + "; it counts as missing");
  }
  if (!report.Texts.empty()) lines.push_back("no numbers, and not kept: " + CountsText(report.Texts));
  return lines;
}

Made MadeOfTable(std::vector<char> bytes, const ImportOptions& options) {
  ImportedTable imported = ImportTable(std::move(bytes), TableOptionsOf(options));
  ProjectSource source;
  source.Delimiter = String(1, imported.Report.Delimiter);
  source.Decimal = String(1, imported.Report.Numbers.Format.Decimal);
  source.Encoding = NameOf(imported.Report.Encoding);
  imported.Project.Source = source;
  return {std::move(imported.Project), LinesOf(imported.Report)};
}

String Lower(String text) {
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return text;
}

Made MadeOfModel(const WizardData& data, const ImportOptions& options) {
  RefuseTableOptions(options);
  const bool points = std::filesystem::exists(PathFromText(PointsPath(options.From)));
  ImportedModel imported = ImportModel(data, points ? PointsText(ReadPoints(options.From, data.NumAtts())) : String());
  imported.Project.Source = ProjectSource();
  return {std::move(imported.Project), std::move(imported.Notes)};
}

Made MadeOfFile(const std::vector<char>& bytes, const ImportOptions& options) {
  const String ending = Lower(PathText(PathFromText(options.From).extension()));
  if (ending == ".json") {
    return MadeOfModel(ModelFromJson(ParseDescription(String(bytes.begin(), bytes.end()))), options);
  }
  if (ending == ".tarnwise") throw ModelFault("it is a project already");
  if (ending != ".kst") return MadeOfTable(bytes, options);
  WizardData data;
  ReadModel(data, bytes);
  if (const auto difference = Difference(bytes, data)) throw ModelFault("it is no whole model file: " + *difference);
  return MadeOfModel(data, options);
}

// A column's role and range, and what a session judged.
std::vector<String> RoleLines(const Project& project) {
  std::vector<String> lines;
  for (const DataColumn& column : project.Columns) {
    String line = String(NameOf(column.Role)) + " " + ShownName(column.Name);
    if (column.Role != Role::Unused) {
      line += ", worst " + ShortestText(*column.Worst) + ", best " + ShortestText(*column.Best);
    }
    lines.push_back(line);
  }
  for (const JudgmentSession& session : project.Sessions) {
    lines.push_back("judgments of " + session.Approach + ", basis " + NameOf(session.Basis));
  }
  return lines;
}

void CheckTarget(const ImportOptions& options) {
  const auto from = PathFromText(options.From);
  const auto to = PathFromText(options.To);
  std::error_code error;
  if (std::filesystem::equivalent(from, to, error)) throw ModelFault("the project would overwrite " + options.From);
  if (!options.Force && std::filesystem::exists(to, error)) {
    throw ModelFault(options.To + " is there already; --force replaces it");
  }
}

Made MadeProject(const ImportOptions& options, const String& now) {
  const std::vector<char> bytes = FileBytes(options.From);
  try {
    Made made = MadeOfFile(bytes, options);
    CheckForResults(made.Project);
    made.Project.Name = options.Name.empty() ? PathText(PathFromText(options.From).stem()) : options.Name;
    made.Project.Source->File = PathText(PathFromText(options.From).filename());
    made.Project.Source->Sha256 = Sha256({bytes.data(), bytes.size()});
    made.Project.Source->Imported = now;
    return made;
  } catch (const ModelFault& fault) {
    throw ModelFault(options.From + ": " + fault.what());
  }
}

}  // namespace

int ImportProject(const ImportOptions& options, const String& now, std::ostream& out, std::ostream& err) {
  try {
    CheckTarget(options);
    const Made made = MadeProject(options, now);
    WriteProject(options.To, made.Project);
    for (const String& line : made.Lines) out << options.From << ": " << line << "\n";
    for (const String& line : RoleLines(made.Project)) out << options.To << ": " << line << "\n";
    out << options.To << ": " << CountOf(made.Project.Units.size(), "unit") << ", "
        << CountOf(ColumnsIn(made.Project, Role::Input).size(), "input") << ", "
        << CountOf(ColumnsIn(made.Project, Role::Output).size(), "output") << "\n";
    return 0;
  } catch (const ModelFault& fault) {
    err << fault.what() << "\n";
    return kRefused;
  }
}

String TimeNow() {
  const std::time_t now = std::time(nullptr);
  std::array<char, 32> text{};
  const std::size_t size = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&now));
  return {text.data(), size};
}

}  // namespace Tarnwise
