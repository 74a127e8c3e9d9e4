#include "project/StoreSession.h"

#include "modelfiles/ModelWriter.h"
#include "project/ProjectFile.h"

#include <random>

namespace Tarnwise {

namespace fs = std::filesystem;

namespace {

class PrivateFolder {
 public:
  PrivateFolder() {
    constexpr int kAttempts = 100;
    std::error_code error;
    const fs::path base = fs::temp_directory_path(error);
    std::random_device random;
    for (int k = 0; k < kAttempts && !error; ++k) {
      path_ = base / ("tarnwise-" + std::to_string(random()));
      if (!fs::create_directory(path_, error)) continue;
      fs::permissions(path_, fs::perms::owner_all, error);
      if (!error) return;
      break;
    }
    throw ModelFault("can't make a folder for the wizard's model in " + TextFromPath(base));
  }
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;
  ~PrivateFolder() {
    std::error_code error;
    fs::remove_all(path_, error);
  }

  String File(const char* name) const { return TextFromPath(path_ / name); }

 private:
  fs::path path_;
};

}  // namespace

void WithModelFile(const SessionModel& model, const std::function<void(const String& path)>& load) {
  const PrivateFolder folder;
  const String path = folder.File("session.kst");
  WriteFileAtomically(path, ModelBytes(model.Data));
  load(path);
}

std::size_t AddSession(Project& project, const JudgmentSession& session) {
  project.Sessions.push_back(session);
  const std::size_t place = project.Sessions.size() - 1;
  if (project.Use && (project.Use->Session || project.Use->NoSession)) {
    project.Use->Session = place;
    project.Use->NoSession = false;
  }
  return place;
}

std::size_t StoreSession(const String& path, const JudgmentSession& session, std::optional<std::size_t> replaced) {
  Project project = ReadProject(path);
  std::size_t place = 0;
  if (replaced && *replaced < project.Sessions.size() && project.Sessions[*replaced].Made == session.Made) {
    place = *replaced;
    project.Sessions[place] = session;
  } else {
    place = AddSession(project, session);
  }
  WriteProject(path, project);
  return place;
}

}  // namespace Tarnwise
