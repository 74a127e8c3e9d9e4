// A session of judgments on its way: its model to the wizard, and the session into the project's file.
#pragma once

#include "project/SessionModel.h"

#include <functional>

namespace Tarnwise {

// Calls `load` with the path of a model file that holds the model. The file stands in a private folder, and both are
// gone when the call returns. A ModelFault where it can't be written.
void WithModelFile(const SessionModel& model, const std::function<void(const String& path)>& load);

// Puts the session behind the others and makes it the one that is used. Returns its place.
std::size_t AddSession(Project& project, const JudgmentSession& session);

// The same in the project's file as it stands now, where others may have changed it meanwhile. `replaced` is a session
// of this wizard whose place it takes instead. A ModelFault where the file can't be read or written, which then is as
// it was.
std::size_t StoreSession(const String& path, const JudgmentSession& session,
                         std::optional<std::size_t> replaced = std::nullopt);

}  // namespace Tarnwise
