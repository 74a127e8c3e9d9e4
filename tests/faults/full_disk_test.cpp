// A disk without room: a very small one of our own, mounted where only a child process sees it.
#include "model/ModelFile.h"
#include "modelfiles/ModelWriter.h"
#include "modelfiles/SaveModel.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <fstream>

namespace Tarnwise {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPage = 4096;  // a disk in memory hands out its room in pages

bool MountSmallDisk(const String& folder) {
  if (unshare(CLONE_NEWNS) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("none", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
}

String SaveOnes(const String& path) {
  try {
    WizardData model;
    ReadModel(model, FileBytes(path));
    const VariantArray ones(static_cast<std::size_t>(model.NumAtts()), Variant(0.25));
    SaveJudgments(path, model, kDirectType, 0, 2, Variant(0.25), ones, ones, ones);
    return "saved";
  } catch (const ModelFault& fault) {
    return fault.what();
  }
}

void Fill(const String& path) {
  std::ofstream filler(path, std::ios::binary);
  const std::vector<char> page(kPage, 'x');
  while (filler.write(page.data(), static_cast<std::streamsize>(page.size())).flush()) {
  }
}

// Saves with no room at all and then with a page more each time, until it works; what happened, a line each.
String SaveOnAFullDisk(const String& folder) {
  if (!MountSmallDisk(folder)) return "no disk\n";
  const String path = folder + "/model.kst";
  const String filler = folder + "/filler";
  WriteModel(path, ModelOf(2, 2));
  const std::vector<char> before = FileBytes(path);
  Fill(filler);
  String told;
  for (String said; said != "saved";) {
    said = SaveOnes(path);
    told += said + "\n";
    if (said != "saved" && FileBytes(path) != before) told += "the model has changed\n";
    if (std::distance(fs::directory_iterator(folder), fs::directory_iterator()) != 2) told += "a file was left\n";
    const std::size_t size = fs::file_size(filler);
    if (size < kPage) break;
    fs::resize_file(filler, size - kPage);
  }
  WizardData model;
  ReadModel(model, FileBytes(path));
  return told + model.SavedJudgments.RJType + "\n";
}

TEST(FullDisk, KeepsTheModelAndTheFaultSaysWhyUntilThereIsRoom) {
  const TemporaryFolder folder;
  int ends[2] = {};
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const String told = SaveOnAFullDisk(folder.Path());
    const bool written = write(ends[1], told.data(), told.size()) == static_cast<ssize_t>(told.size());
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  String told;
  char some[4096];
  for (ssize_t count = 0; (count = read(ends[0], some, sizeof some)) > 0;)
    told.append(some, static_cast<std::size_t>(count));
  close(ends[0]);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_EQ(status, 0) << told;
  if (told == "no disk\n") GTEST_SKIP() << "no disk may be mounted here";
  const String full = "can't write " + folder.File("model.kst") + ": No space left on device\n";
  std::size_t refused = 0;
  while (told.compare(0, full.size(), full) == 0) {
    told.erase(0, full.size());
    ++refused;
  }
  EXPECT_GE(refused, 2U);
  EXPECT_EQ(told, "saved\nDEA_DIRECT\n");
}

}  // namespace
}  // namespace Tarnwise
