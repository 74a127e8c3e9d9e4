#include "modelfiles/WholeFile.h"

#include "support/FaultOf.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/resource.h>

#include <unistd.h>
#include <csignal>
#endif

namespace Tarnwise {
namespace {

namespace fs = std::filesystem;

class WholeFile : public testing::Test {
 protected:
  TemporaryFolder folder;
  const std::vector<char> bytes{'n', 'e', 'w', '\0', '\n', '\r'};

  String FaultOfWriting(const String& path) {
    return FaultOf([&] { WriteFileAtomically(path, bytes); });
  }
};

TEST_F(WholeFile, NewFileHasTheBytesAndNothingElseIsLeft) {
  WriteFileAtomically(folder.File("a.kst"), bytes);
  EXPECT_EQ(FileBytes(folder.File("a.kst")), bytes);
  EXPECT_EQ(folder.CountFiles(), 1U);
}

TEST_F(WholeFile, OldFileIsReplacedWholly) {
  const String path = folder.Write("a.kst", String(5000, 'o'));
  WriteFileAtomically(path, bytes);
  EXPECT_EQ(FileBytes(path), bytes);
  EXPECT_EQ(folder.CountFiles(), 1U);
}

TEST_F(WholeFile, EmptyContentsMakeAnEmptyFile) {
  WriteFileAtomically(folder.File("a.kst"), {});
  EXPECT_EQ(fs::file_size(folder.File("a.kst")), 0U);
}

TEST_F(WholeFile, NameMayHoldAnyLetter) {
  WriteFileAtomically(folder.File("Zürich Łódź.kst"), bytes);
  EXPECT_EQ(FileBytes(folder.File("Zürich Łódź.kst")), bytes);
}

TEST_F(WholeFile, MissingFolderIsAFaultThatNamesThePathAndTheReason) {
  const String path = folder.File("nowhere") + "/a.kst";
  EXPECT_EQ(FaultOfWriting(path), "can't write " + path + ": No such file or directory");
}

TEST_F(WholeFile, FolderIsNotReplaced) {
  fs::create_directory(folder.File("a.kst"));
  EXPECT_EQ(FaultOfWriting(folder.File("a.kst")), "can't write " + folder.File("a.kst") + ": it is a folder");
  EXPECT_EQ(folder.CountFiles(), 1U);
}

TEST_F(WholeFile, ReadOnlyFileIsLeftAlone) {
  const String path = folder.Write("a.kst", "old");
  fs::permissions(path, fs::perms::owner_read);
  EXPECT_EQ(FaultOfWriting(path), "can't write " + path + ": it is read-only");
  EXPECT_EQ(FileBytes(path), (std::vector<char>{'o', 'l', 'd'}));
  EXPECT_EQ(folder.CountFiles(), 1U);
}

TEST_F(WholeFile, MissingFileIsAFaultAndStaysMissing) {
  const String path = folder.File("a.kst");
  EXPECT_EQ(FaultOf([&] { (void)FileBytes(path); }), "there is no file " + path);
  EXPECT_EQ(folder.CountFiles(), 0U);
}

TEST_F(WholeFile, FolderIsNotReadAsAFile) {
  const String path = folder.File("");
  EXPECT_EQ(FaultOf([&] { (void)FileBytes(path); }), "can't read " + path + ": it is a folder");
}

#ifndef _WIN32
// Ends the process, with 0 where the write failed as it should.
[[noreturn]] void WriteBeyondTheLimit(const String& path) {
  rlimit limit{};
  limit.rlim_cur = limit.rlim_max = 1000;
  (void)signal(SIGXFSZ, SIG_IGN);
  (void)setrlimit(RLIMIT_FSIZE, &limit);
  const String fault = FaultOf([&] { WriteFileAtomically(path, std::vector<char>(100000, 'x')); });
  _exit(fault == "can't write " + path + ": File too large" ? 0 : 1);
}

TEST_F(WholeFile, PermissionsOfTheOldFileStay) {
  const String path = folder.Write("a.kst", "old");
  const fs::perms kept = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(path, kept);
  WriteFileAtomically(path, bytes);
  EXPECT_EQ(fs::status(path).permissions(), kept);
}

TEST_F(WholeFile, NewFileHasTheUsualPermissions) {
  const fs::perms usual = fs::status(folder.Write("usual", "")).permissions();
  WriteFileAtomically(folder.File("a.kst"), bytes);
  EXPECT_EQ(fs::status(folder.File("a.kst")).permissions(), usual);
}

TEST_F(WholeFile, LinkStaysALinkAndItsFileIsReplaced) {
  const String file = folder.Write("file.kst", "old");
  fs::create_symlink("file.kst", folder.File("link.kst"));
  WriteFileAtomically(folder.File("link.kst"), bytes);
  EXPECT_TRUE(fs::is_symlink(folder.File("link.kst")));
  EXPECT_EQ(FileBytes(file), bytes);
}

TEST_F(WholeFile, DeviceIsNotReplaced) {
  EXPECT_EQ(FaultOfWriting("/dev/null"), "can't write /dev/null: it is not an ordinary file");
}

TEST_F(WholeFile, FullDiskIsAFaultThatLeavesTheOldFileAndNoOther) {
  // A file size limit stands in for a full disk: it fails the write in the same place.
  const String path = folder.Write("a.kst", "old");
  ASSERT_EXIT(WriteBeyondTheLimit(path), testing::ExitedWithCode(0), "");
  EXPECT_EQ(FileBytes(path), (std::vector<char>{'o', 'l', 'd'}));
  EXPECT_EQ(folder.CountFiles(), 1U);
}
#endif

}  // namespace
}  // namespace Tarnwise
