#include "project/ProjectFile.h"

#include "host/WholeFile.h"
#include "project/ProjectChecks.h"

namespace Tarnwise {

Project ReadProject(const String& path) {
  const std::vector<char> bytes = FileBytes(path);
  try {
    return ProjectFromText(String(bytes.begin(), bytes.end()));
  } catch (const ModelFault& fault) {
    throw ModelFault(path + ": " + fault.what());
  }
}

void WriteProject(const String& path, const Project& project) {
  String text;
  try {
    CheckRecords(project);
    text = ProjectText(project);
  } catch (const ModelFault& fault) {
    throw ModelFault(path + ": " + fault.what());
  }
  WriteFileAtomically(path, {text.begin(), text.end()});
}

}  // namespace Tarnwise
