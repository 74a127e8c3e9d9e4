// The file of a project: JSON, one unit and one column a line. docs/project-format.md tells its keys. Reading is
// strict: what is not understood is a ModelFault that names the field, and whose. Keys that this program does not know
// are kept and written back.
#pragma once

#include "project/Project.h"

#include <string_view>

namespace Tarnwise {

// The project that the text of a file holds; everything in it is as CheckRecords wants it.
Project ProjectFromText(const String& text);

// The text of the project's file. It depends on the records alone, and reading it gives the same records; numbers are
// the shortest decimals that do. A ModelFault where a number is none.
String ProjectText(const Project& project);

// One session as it stands in that text.
String SessionJson(const JudgmentSession& session);

// A file that is there as a whole, and its replacement as a whole or not at all. Faults begin with the path.
Project ReadProject(const String& path);
Project ReadProjectForResults(const String& path);  // passes CheckProject too
void WriteProject(const String& path, const Project& project);

}  // namespace Tarnwise
