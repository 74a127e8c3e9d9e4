// What the disk does to a model while it is saved or read.
#include "model/ModelFile.h"
#include "modelfiles/ModelWriter.h"
#include "modelfiles/SaveModel.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <chrono>
#include <csignal>
#include <fstream>
#include <random>

namespace Tarnwise {
namespace {

namespace fs = std::filesystem;

void SaveOnes(const String& path, Double ratio) {
  WizardData model;
  ReadModel(model, FileBytes(path));
  const VariantArray ones(static_cast<std::size_t>(model.NumAtts()), Variant(ratio));
  SaveJudgments(path, model, kDirectType, 0, 2, Variant(ratio), ones, ones, ones);
}

std::size_t FilesIn(const String& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

// Saves without end, the one judgment and then the other, until it is killed.
pid_t StartSaving(const String& path) {
  const pid_t child = fork();
  if (child != 0) return child;
  for (int k = 0;; ++k) SaveOnes(path, k % 2 == 0 ? 0.25 : 4.0);
}

TEST(KilledWhileSaving, LeavesTheOldModelOrTheNewOneAndNoPart) {
  const TemporaryFolder folder;
  const String path = folder.File("model.kst");
  WriteModel(path, ModelOf(2, 2));
  SaveOnes(path, 4.0);
  const std::vector<char> one = FileBytes(path);
  SaveOnes(path, 0.25);
  const std::vector<char> other = FileBytes(path);
  const auto began = std::chrono::steady_clock::now();
  SaveOnes(path, 0.25);
  const std::chrono::microseconds once =
      std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - began);
  std::mt19937 random(20261121);
  int replaced = 0;
  for (int time = 0; time < 200; ++time) {
    const std::vector<char> before = FileBytes(path);
    const pid_t child = StartSaving(path);
    ASSERT_GT(child, 0);
    // Anywhere within the first few savings, however long they take on this machine.
    usleep(static_cast<useconds_t>(random() % static_cast<unsigned long>(3 * once.count() + 1000)));
    ASSERT_EQ(kill(child, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
    const std::vector<char> after = FileBytes(path);
    ASSERT_TRUE(after == one || after == other) << "killed the " << time << "th time";
    replaced += after != before ? 1 : 0;
  }
  EXPECT_GT(replaced, 0) << "no saving ever came so far: the test has shown nothing";
  // What was killed on its way may have left its temporary file, and only that.
  EXPECT_LE(FilesIn(folder.Path()), 201U);
  SaveOnes(path, 4.0);
  EXPECT_EQ(FileBytes(path), one);
}

TEST(FileThatVanished, IsNotMadeBySaving) {
  const TemporaryFolder folder;
  const String path = folder.File("model.kst");
  const WizardData model = ModelOf(2, 2);
  const VariantArray ones(4, Variant(1.0));
  EXPECT_THROW(SaveJudgments(path, model, kDirectType, 0, 2, Variant(1.0), ones, ones, ones), ModelFault);
  EXPECT_EQ(FilesIn(folder.Path()), 0U);
}

TEST(FileThatVanished, WhileTheWizardRunsChangesNothingForTheUser) {
  TestHost host(ModelOf(2, 2));
  host.Load();
  fs::remove(host.Folder.File("model.kst"));
  host.Run({[&] { host.Wizard->ShowTarnwise(); }, [&] { host.Click("cmdNext"); },
            [&] { host.Drag("cmdAttA(0)", "picOrder(0)"); }, [&] { host.Click("cmdCancel"); }});
  EXPECT_EQ(host.Notes.back(), "release frmIniImpOrder");
  EXPECT_EQ(mdTRNMain().NumAtts(), 4);
}

// Acts as an ordinary user where the test runs as the superuser, whom no permission stops.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() : former_(geteuid()) {
    if (former_ == 0) worked_ = seteuid(65534) == 0;
  }
  AsOrdinaryUser(const AsOrdinaryUser&) = delete;
  AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;
  ~AsOrdinaryUser() {
    if (former_ == 0 && worked_) worked_ = seteuid(former_) == 0;
  }
  bool Worked() const { return worked_; }

 private:
  uid_t former_;
  bool worked_ = true;
};

TEST(ReadOnlyFolder, KeepsTheModelAndTheFaultSaysWhy) {
  const TemporaryFolder folder;
  const String path = folder.File("model.kst");
  WriteModel(path, ModelOf(2, 2));
  const std::vector<char> before = FileBytes(path);
  ASSERT_EQ(chmod(path.c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.Path().c_str(), 0555), 0);
  String fault;
  {
    const AsOrdinaryUser user;
    ASSERT_TRUE(user.Worked());
    try {
      SaveOnes(path, 2.0);
    } catch (const ModelFault& what) {
      fault = what.what();
    }
  }
  ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
  EXPECT_EQ(fault, "can't write " + path + ": Permission denied");
  EXPECT_EQ(FileBytes(path), before);
  EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(ReadOnlyFolder, AMissingModelInItIsTold) {
  TestHost host(ModelOf(2, 2));
  host.Load();
  const String missing = host.Folder.File("other.kst");
  ASSERT_EQ(chmod(host.Folder.Path().c_str(), 0555), 0);
  host.TakeNotes();
  {
    const AsOrdinaryUser user;
    ASSERT_TRUE(user.Worked());
    host.Wizard->GetCurFileData(String("C:/KESTA"), 3, missing);
  }
  ASSERT_EQ(chmod(host.Folder.Path().c_str(), 0755), 0);
  EXPECT_EQ(host.Notes, (Lines{"beep", "msgbox There are problems in accessing the relevant data.", "pointer 0"}));
  EXPECT_EQ(mdTRNMain().NumAtts(), 4);
}

}  // namespace
}  // namespace Tarnwise
