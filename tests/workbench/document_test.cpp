#include "Window.h"
#include "workbench/FileActions.h"

namespace Tarnwise {
namespace {

QString FileIn(const QTemporaryDir& folder) { return folder.filePath(QStringLiteral("hospitals.tarnwise")); }

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

TEST(Document, IsUnchangedWhereUndoLeadsBackToWhatWasSaved) {
  const QTemporaryDir folder;
  Document document;
  document.Replace(JudgedHospitals());
  EXPECT_TRUE(document.IsChanged());
  document.Save(FileIn(folder));
  EXPECT_FALSE(document.IsChanged());
  document.Edit("name", [](Project& project) { project.Name = "Other"; });
  EXPECT_TRUE(document.IsChanged());
  document.Undo();
  EXPECT_FALSE(document.IsChanged());
  document.Redo();
  EXPECT_EQ(document.Data().Name, "Other");
}

TEST(Document, RefusesWhatNoFileMayHoldAndStaysAsItWas) {
  Document document;
  document.Replace(JudgedHospitals());
  QSignalSpy refused(&document, &Document::Refused);
  EXPECT_FALSE(document.Edit("name", [](Project& project) { project.Units[3] = project.Units[4]; }));
  EXPECT_EQ(refused.count(), 1);
  EXPECT_EQ(document.Data().Units[3], "Hospital D");
  EXPECT_FALSE(document.CanUndo());
}

TEST(Document, ReadsBackWhatItSaved) {
  const QTemporaryDir folder;
  Document document;
  document.Replace(JudgedHospitals());
  document.Save(FileIn(folder));
  Document other;
  other.Open(FileIn(folder));
  EXPECT_EQ(other.Data(), document.Data());
}

TEST(Document, KnowsThatAnotherProgramChangedItsFile) {
  const QTemporaryDir folder;
  Document document;
  document.Replace(JudgedHospitals());
  document.Save(FileIn(folder));
  EXPECT_FALSE(document.IsChangedOutside());
  Write(FileIn(folder), "{}");
  EXPECT_TRUE(document.IsChangedOutside());
  document.KeepAgainstFile();
  EXPECT_FALSE(document.IsChangedOutside());
  EXPECT_TRUE(document.IsChanged());
}

TEST(Files, ChangedMeanwhileAreNotOverwrittenWithoutAsking) {
  const QTemporaryDir folder;
  OpenWindow open;
  open.Window.Work().Save(FileIn(folder));
  open.Window.Work().Edit("name", [](Project& project) { project.Name = "Mine"; });
  Write(FileIn(folder), "theirs");
  AnswerNext("Cancel");
  EXPECT_FALSE(open.Window.Files().Save());
  QFile file(FileIn(folder));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "theirs");
}

TEST(Files, ChangedMeanwhileAreReadAnewWhenAskedFor) {
  const QTemporaryDir folder;
  OpenWindow open;
  open.Window.Work().Save(FileIn(folder));
  Document other;
  other.Open(FileIn(folder));
  other.Edit("name", [](Project& project) { project.Name = "Theirs"; });
  other.Save(FileIn(folder));
  AnswerNext("Read it anew");
  open.Window.Files().LookAtFile();
  EXPECT_EQ(open.Window.Work().Data().Name, "Theirs");
}

TEST(Files, ThatCannotBeWrittenAreToldAndNothingIsLost) {
  const QTemporaryDir folder;
  OpenWindow open;
  AnswerNext(
      "OK", [](QDialog& dialog) { EXPECT_TRUE(static_cast<QMessageBox&>(dialog).text().contains("still open here")); });
  // A folder that is not there stands for one that may not be written: the tests may run as root.
  EXPECT_THROW(open.Window.Work().Save(folder.filePath("nowhere/project.tarnwise")), ModelFault);
  open.Window.Work().Save(FileIn(folder));
  open.Window.Work().Edit("name", [](Project& project) { project.Name = "Mine"; });
  ASSERT_TRUE(QDir(folder.path()).removeRecursively());
  EXPECT_FALSE(open.Window.Files().Save());
  EXPECT_EQ(open.Window.Work().Data().Name, "Mine");
  EXPECT_TRUE(open.Window.Work().IsChanged());
}

TEST(Window, AsksBeforeUnsavedChangesAreLost) {
  OpenWindow open;
  AnswerNext("Cancel");
  EXPECT_FALSE(open.Window.close());
  EXPECT_TRUE(open.Window.isVisible());
  AnswerNext("Discard");
  EXPECT_TRUE(open.Window.close());
}

TEST(Window, OpensAFileThatIsDroppedOnIt) {
  const QTemporaryDir folder;
  {
    Document document;
    document.Replace(JudgedHospitals());
    document.Save(FileIn(folder));
  }
  MainWindow window;
  window.show();
  QMimeData dragged;
  dragged.setUrls({QUrl::fromLocalFile(FileIn(folder))});
  QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &drop);
  EXPECT_TRUE(QTest::qWaitFor([&window] { return window.Work().Data().Units.size() == 12; }, kPatience));
}

TEST(Window, RemembersTheFilesThatWereOpenedLast) {
  const QTemporaryDir folder;
  OpenWindow open;
  open.Window.Work().Save(FileIn(folder));
  ASSERT_TRUE(open.Window.Open(FileIn(folder)));
  QMenu menu;
  open.Window.Files().FillRecent(menu);
  EXPECT_EQ(menu.actions().first()->text(), QDir::toNativeSeparators(FileIn(folder)));
}

TEST(Window, ShowsThePageThatWasOpenLastTime) {
  const QTemporaryDir folder;
  const QString path = FileIn(folder);
  {
    OpenWindow open;
    open.Window.Work().Save(path);
    open.Window.ShowPage(PageKind::Judgments);
    Find<QSplitter>(open.Window, "judgmentsSplitter").setSizes({400, 500});
    ASSERT_TRUE(open.Window.close());
  }
  MainWindow window;
  window.show();
  const QTabWidget& pages = Find<QTabWidget>(window, "pages");
  EXPECT_EQ(pages.currentIndex(), 0) << "with nothing open the first page leads on";
  ASSERT_TRUE(window.Open(path));
  EXPECT_EQ(pages.currentIndex(), static_cast<int>(PageKind::Judgments));
  const QList<int> sizes = Find<QSplitter>(window, "judgmentsSplitter").sizes();
  EXPECT_GT(sizes[0], 300);
  QSettings().clear();
}

TEST(Window, LeavesThePageWhereSomebodyWentMeanwhile) {
  const QTemporaryDir folder;
  const QString path = FileIn(folder);
  QSettings().setValue("page", static_cast<int>(PageKind::Judgments));
  OpenWindow open;
  open.Window.ShowPage(PageKind::Attributes);
  open.Window.Work().Save(path);
  EXPECT_EQ(Find<QTabWidget>(open.Window, "pages").currentIndex(), static_cast<int>(PageKind::Attributes));
  QSettings().clear();
}

}  // namespace
}  // namespace Tarnwise
