// What has to hold in a project. Every fault is a ModelFault that names the column, unit or session, and the field.
#pragma once

#include "project/Project.h"

namespace Tarnwise {

// Wizard and judgments have room for so many inputs and outputs.
constexpr std::size_t kMostAttributes = 31;

// What has to hold for a project to be written and read: no name empty or there twice, a value for each unit, finite
// numbers, a range for each used column, worst and best the right way round, curves of 2 to 11 ascending points, in the
// judgments no bound negative and none low above high (0 is no bound), the cross ratio above 0, a session in use that
// is there.
void CheckRecords(const Project& project);

// What has to hold besides for results: at least one input or output, at most 31 of them, at least one unit with a
// value in all of them.
void CheckForResults(const Project& project);

// What has to hold for results with a session: in each group of more than one attribute its reference, and every
// reference in its group.
void CheckSession(const Project& project, std::size_t session);

// All of these, and CheckSession of all sessions.
void CheckProject(const Project& project);

// The attributes of a session that are passed over, since they are no used columns, a sentence each.
std::vector<String> SessionNotes(const Project& project, std::size_t session);

}  // namespace Tarnwise
