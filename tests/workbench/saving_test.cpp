#include "Window.h"
#include "project/ProjectFile.h"

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <random>

namespace Tarnwise {
namespace {

// Whoever saves is killed somewhere in between: what stands in the file is one of the projects, whole.
TEST(Saving, LeavesAWholeProjectWheneverTheProgramIsKilled) {
  const QTemporaryDir folder;
  const String path = ToText(folder.filePath("hospitals.tarnwise"));
  Project project = JudgedHospitals();
  WriteProject(path, project);
  std::mt19937 random(20240517);
  std::uniform_int_distribution<int> microseconds(0, 12000);
  int rounds = 0;
  for (; rounds < 40; ++rounds) {
    const pid_t saver = fork();
    ASSERT_GE(saver, 0);
    if (saver == 0) {
      for (int i = 0;; ++i) {
        project.Name = "Hospitals " + std::to_string(i);
        WriteProject(path, project);
      }
    }
    usleep(static_cast<useconds_t>(microseconds(random)));
    kill(saver, SIGKILL);
    waitpid(saver, nullptr, 0);
    Project read = ReadProject(path);
    ASSERT_EQ(read.Name.compare(0, 9, "Hospitals"), 0);
    read.Name = project.Name;
    ASSERT_EQ(read, project);
  }
  EXPECT_EQ(rounds, 40);
}

}  // namespace
}  // namespace Tarnwise
