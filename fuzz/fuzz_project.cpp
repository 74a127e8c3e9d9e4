// Any text as a project's file. What was read is written and read again, to the same records and the same text; the
// checks say their faults and nothing else happens.
#include "Expect.h"
#include "modelfiles/WholeFile.h"
#include "project/ProjectChecks.h"
#include "project/ProjectFile.h"

namespace Tarnwise {
namespace {

std::optional<Project> Read(const String& text) {
  try {
    return ProjectFromText(text);
  } catch (const ModelFault& fault) {
    Expect(String(fault.what()).size() > 3, "refused without a word");
    return std::nullopt;
  }
}

bool Passes(void (*check)(const Project&), const Project& project) {
  try {
    check(project);
    return true;
  } catch (const ModelFault&) {
    return false;
  }
}

void CheckWritten(const Project& project) {
  const String text = ProjectText(project);
  const auto again = Read(text);
  Expect(again.has_value(), "written and refused");
  Expect(*again == project, "written and read otherwise");
  Expect(ProjectText(*again) == text, "written otherwise the second time");
}

void CheckBounds(const JudgmentSession& session, const SessionAttribute& attribute) {
  if (!IsJudged(session, attribute.Name)) return;
  Expect(attribute.Low && attribute.High, "judged without a bound");
  Expect(*attribute.Low >= 0.0 && *attribute.High >= 0.0, "a negative bound");
  Expect(*attribute.Low <= *attribute.High || *attribute.High == 0.0, "low above high");
}

// Of a project that passes every check results can be asked for.
void CheckChecks(const Project& project) {
  Expect(Passes(CheckRecords, project), "read, but its records are refused");
  const auto session = SessionInUse(project);
  Expect(!session || *session < project.Sessions.size(), "a session in use that is not there");
  for (std::size_t i = 0; i < project.Sessions.size(); ++i) (void)SessionNotes(project, i);
  for (const JudgmentSession& judged : project.Sessions) {
    for (const SessionAttribute& attribute : judged.Attributes) CheckBounds(judged, attribute);
  }
  if (!Passes(CheckProject, project)) return;
  for (const DataColumn& column : project.Columns) {
    Expect(column.Values.size() == project.Units.size(), "a column of another length");
    if (column.Role == Role::Unused) continue;
    for (const JudgmentSession& judged : project.Sessions) {
      const ColumnScale scale = ScaleOf(column, &judged);
      Expect(column.Role == Role::Input ? scale.Best <= scale.Worst : scale.Worst <= scale.Best, "a range that falls");
    }
  }
}

}  // namespace
}  // namespace Tarnwise

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace Tarnwise;
  const auto project = Read(String(reinterpret_cast<const char*>(bytes), size));
  if (!project) return 0;
  CheckWritten(*project);
  CheckChecks(*project);
  return 0;
}
