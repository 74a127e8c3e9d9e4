// The window where there is no room, or where nothing may be written. The disks are small ones of our own: this
// program's main mounts them where no other program sees them.
#include "Disks.h"
#include "Window.h"
#include "support/FaultOf.h"
#include "workbench/FileActions.h"
#include "workbench/charts/BarChart.h"

#include <fstream>

namespace Tarnwise {
namespace {

namespace fs = std::filesystem;

// A window with a saved project on the disk, and a change that is not saved.
class OnADisk : public testing::Test {
 protected:
  void Begin(const String& folder) {
    path_ = FromText(folder + "/hospitals.tarnwise");
    open_.Window.Work().Save(path_);
    before_ = FileBytes(ToText(path_));
    open_.Window.Work().Edit("Note", [](Project& project) { project.Sessions[0].Note = "not saved yet"; });
  }
  // Ctrl+S, and what is said then.
  QString SaidToSaving() {
    QString said;
    AnswerNext("OK", [&said](QDialog& dialog) { said = static_cast<QMessageBox&>(dialog).text(); });
    open_.Window.activateWindow();
    QTest::keyClick(&open_.Window, Qt::Key_S, Qt::ControlModifier);
    return said;
  }
  void ExpectNothingIsLost() {
    EXPECT_EQ(FileBytes(ToText(path_)), before_);
    EXPECT_TRUE(open_.Window.isWindowModified());
    EXPECT_EQ(open_.Window.Work().Path(), path_);
    EXPECT_EQ(open_.Window.Work().Data().Sessions[0].Note, "not saved yet");
    EXPECT_TRUE(open_.Window.Work().CanUndo());
  }
  void ExpectItCanBeSavedElsewhere() {
    const QTemporaryDir elsewhere;
    const QString path = elsewhere.filePath("kept.tarnwise");
    AnswerNext("Save", [&path](QDialog& dialog) { Find<QLineEdit>(dialog, "fileNameEdit").setText(path); });
    EXPECT_TRUE(open_.Window.Files().AskAndSave());
    EXPECT_FALSE(open_.Window.isWindowModified());
    Document kept;
    kept.Open(path);
    EXPECT_EQ(kept.Data(), open_.Window.Work().Data());
  }

  OpenWindow open_;
  QString path_;
  std::vector<char> before_;
};

std::size_t FilesIn(const String& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

void FillUp(const String& folder) {
  std::ofstream filler(folder + "/filler", std::ios::binary);
  const std::vector<char> page(4096, 'x');
  while (filler.write(page.data(), static_cast<std::streamsize>(page.size())).flush()) {
  }
}

TEST_F(OnADisk, WithoutRoomSavingSaysSoAndNothingIsLost) {
  if (!HasDisks()) GTEST_SKIP() << WhyNoDisks();
  const String folder = SmallDisk();
  Begin(folder);
  FillUp(folder);
  const QString said = SaidToSaving();
  EXPECT_TRUE(said.contains("can't write " + path_ + ": No space left on device")) << said.toStdString();
  EXPECT_TRUE(said.contains("the project is still open here")) << said.toStdString();
  ExpectNothingIsLost();
  EXPECT_EQ(FilesIn(folder), 2U);  // no part of a new one
  ExpectItCanBeSavedElsewhere();
}

TEST_F(OnADisk, WithoutRoomPicturesAndReportsSaySoAndTheFormerOnesStay) {
  if (!HasDisks()) GTEST_SKIP() << WhyNoDisks();
  const String folder = SmallDisk();
  ASSERT_TRUE(AwaitResults(open_.Window));
  const QString picture = FromText(folder + "/ranges.svg");
  const QString report = FromText(folder + "/results.csv");
  open_.Window.Results().Ranges().SavePicture(picture);
  WriteReportFile(report, ReportKind::Table, open_.Window.Results().Newest());
  const std::vector<char> before = FileBytes(ToText(picture));
  const std::vector<char> tableBefore = FileBytes(ToText(report));
  FillUp(folder);
  const String full = ": No space left on device";
  EXPECT_EQ(FaultOf([&] { open_.Window.Results().Ranges().SavePicture(picture); }),
            "can't write " + ToText(picture) + full);
  EXPECT_EQ(FaultOf([&] { WriteReportFile(report, ReportKind::Table, open_.Window.Results().Newest()); }),
            "can't write " + ToText(report) + full);
  EXPECT_EQ(FileBytes(ToText(picture)), before);
  EXPECT_EQ(FileBytes(ToText(report)), tableBefore);
  EXPECT_EQ(FilesIn(folder), 3U);
}

TEST_F(OnADisk, InAReadOnlyFolderSavingSaysSoAndNothingIsLost) {
  if (!HasDisks()) GTEST_SKIP() << WhyNoDisks();
  const String folder = SmallDisk();
  Begin(folder);
  MakeReadOnly(folder);
  const QString said = SaidToSaving();
  EXPECT_TRUE(said.contains("can't write " + path_ + ": Read-only file system")) << said.toStdString();
  ExpectNothingIsLost();
  ExpectItCanBeSavedElsewhere();
}

// A limit to the size of files fails the write in the same place where no disk can be mounted.
TEST_F(OnADisk, WithALimitToFilesSavingSaysSoAndNothingIsLost) {
  const QTemporaryDir folder;
  Begin(ToText(folder.path()));
  const FileSizeLimit limit(100);
  const QString said = SaidToSaving();
  limit.End();
  EXPECT_TRUE(said.contains("can't write " + path_ + ": File too large")) << said.toStdString();
  ExpectNothingIsLost();
  EXPECT_EQ(FilesIn(ToText(folder.path())), 1U);
  ExpectItCanBeSavedElsewhere();
}

}  // namespace
}  // namespace Tarnwise
