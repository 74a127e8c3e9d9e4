#include "Opening.h"

namespace Tarnwise {
namespace {

namespace fs = std::filesystem;

TEST_F(OpenModelFile, WholeFileIsReadUnderTheHourglass) {
  Read(WholeFile());
  ExpectReadQuietly();
  ExpectEarlierModel();
}

TEST_F(OpenModelFile, MissingFileComesToBeEmptyAndIsAnEmptyModel) {
  Read(WholeFile());
  const String path = folder.File("new.kst");
  Read(path);
  ExpectReadQuietly();
  ASSERT_TRUE(fs::exists(path));
  EXPECT_EQ(fs::file_size(path), 0U);
  EXPECT_EQ(data.NumAtts(), 0);
  EXPECT_EQ(data.RJType(), "");
  EXPECT_EQ(data.AttName(30), "");
}

TEST_F(OpenModelFile, EmptyFileIsAnEmptyModel) {
  Read(WholeFile());
  Read(folder.Write("empty.kst", ""));
  ExpectReadQuietly();
  EXPECT_EQ(data.NumAtts(), 0);
  EXPECT_EQ(data.AttName(0), "");
}

TEST_F(OpenModelFile, MissingFolderIsToldAndKeepsTheEarlierModel) {
  Read(WholeFile());
  const String path = folder.File("nowhere") + "/model.kst";
  Read(path);
  ExpectRefused();
  ExpectEarlierModel();
  EXPECT_FALSE(fs::exists(folder.File("nowhere")));
}

TEST_F(OpenModelFile, FolderInPlaceOfAFileIsTold) {
  Read(WholeFile());
  fs::create_directory(folder.File("folder.kst"));
  Read(folder.File("folder.kst"));
  ExpectRefused();
  ExpectEarlierModel();
}

TEST_F(OpenModelFile, EmptyPathIsTold) {
  Read(WholeFile());
  Read("");
  ExpectRefused();
  ExpectEarlierModel();
}

TEST_F(OpenModelFile, ReadOnlyFileIsReadAndStaysAsItIs) {
  const String path = WholeFile();
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  Read(path);
  ExpectReadQuietly();
  ExpectEarlierModel();
  EXPECT_EQ(TemporaryFolder::Read(path), ModelFileBytes().Whole().Bytes);
}

TEST_F(OpenModelFile, FileThatMayNotBeReadIsTold) {
  const String secret = folder.Write("secret.kst", ModelFileBytes().Whole(3).Bytes);
  fs::permissions(secret, fs::perms::none);
  if (std::ifstream(secret)) GTEST_SKIP() << "this user may read every file";
  Read(WholeFile());
  Read(secret);
  ExpectRefused();
  ExpectEarlierModel();
}

TEST_F(OpenModelFile, FileIsNotChangedByReading) {
  const String path = WholeFile();
  Read(path);
  EXPECT_EQ(TemporaryFolder::Read(path), ModelFileBytes().Whole().Bytes);
}

TEST_F(OpenModelFile, PathMayHoldAnyLetter) {
  const String path = folder.Write("Müller ład.kst", ModelFileBytes().Whole(5).Bytes);
  Read(path);
  ExpectReadQuietly();
  EXPECT_EQ(data.NumAtts(), 5);
}

TEST_F(OpenModelFile, NothingDiffersFromAFileJustRead) {
  data.OrderChanged = true;
  Read(WholeFile());
  EXPECT_FALSE(data.OrderChanged);
}

TEST_F(OpenModelFile, ReferencesOfARunningSessionOutliveTheReading) {
  data.BRefAttID = 3;
  data.CRefAttID = 4;
  Read(WholeFile());
  EXPECT_EQ(data.BRefAttID, 3);
  EXPECT_EQ(data.CRefAttID, 4);
}

TEST_F(OpenModelFile, FailedOpenKeepsWhatSpeaksOfTheFormerFile) {
  data.OrderChanged = true;
  data.BRefAttID = 3;
  data.CRefAttID = 4;
  Read(folder.File("nowhere") + "/model.kst");
  EXPECT_TRUE(data.OrderChanged);
  EXPECT_EQ(data.BRefAttID, 3);
  EXPECT_EQ(data.CRefAttID, 4);
}

TEST_F(OpenModelFile, ReadingLeavesTheRankingAndTheJudgmentsAlone) {
  data.AttO.Allocate(2);
  data.AttO[1] = 2;
  data.RefAttWR = 0.8;
  Read(WholeFile());
  EXPECT_EQ(data.AttO.Count(), 2);
  EXPECT_EQ(data.AttO[1], 2);
  EXPECT_EQ(data.RefAttWR, Variant(0.8));
}

TEST_F(OpenModelFile, FileLongerThanAnyModelIsReadAllTheSame) {
  const String path = WholeFile();
  fs::resize_file(path, 400'000'000U);  // a hole, it takes no room
  Read(path);
  ExpectReadQuietly();
  ExpectEarlierModel();
}

}  // namespace
}  // namespace Tarnwise
