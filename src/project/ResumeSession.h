// Judgments of an earlier session for the wizard to begin with.
#pragma once

#include "project/SessionModel.h"

namespace Tarnwise {

// Whether the wizard can begin with the session: the references are in their groups and the ratios can be read on the
// scales of today.
bool CanResume(const Project& project, const SessionModel& model, std::size_t session);

// Puts the session's judgments, and its points where they still hold, into the model, and tells what is gone, new, not
// judged, converted, or comes back on one rank.
void Resume(const Project& project, std::size_t session, SessionModel& model);

}  // namespace Tarnwise
