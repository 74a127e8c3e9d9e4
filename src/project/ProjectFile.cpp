#include "project/ProjectFile.h"

#include "modelfiles/WholeFile.h"
#include "project/ProjectChecks.h"

namespace Tarnwise {

namespace {

// What the call gives back; a fault in it begins with the path.
template <class Call>
auto Of(const String& path, Call call) {
  try {
    return call();
  } catch (const ModelFault& fault) {
    throw ModelFault(path + ": " + fault.what());
  }
}

}  // namespace

Project ReadProject(const String& path) {
  const std::vector<char> bytes = FileBytes(path);
  return Of(path, [&bytes] { return ProjectFromText(String(bytes.begin(), bytes.end())); });
}

Project ReadProjectForResults(const String& path) {
  Project project = ReadProject(path);
  Of(path, [&project] { CheckProject(project); });
  return project;
}

void WriteProject(const String& path, const Project& project) {
  const String text = Of(path, [&project] {
    CheckRecords(project);
    return ProjectText(project);
  });
  WriteFileAtomically(path, {text.begin(), text.end()});
}

}  // namespace Tarnwise
