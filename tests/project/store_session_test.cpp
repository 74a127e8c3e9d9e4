#include "project/StoreSession.h"

#include "Hospitals.h"
#include "model/ModelFile.h"
#include "modelfiles/WholeFile.h"
#include "runtime/CodePage.h"
#include "support/FaultOf.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

JudgmentSession SessionMade(const String& made) {
  JudgmentSession session = Hospitals().Sessions[0];
  session.Made = made;
  return session;
}

TEST(StoreSession, GoesBehindTheOthersAndIsUsedFromNowOn) {
  const TemporaryFolder folder;
  const String path = folder.Write("a.tarnwise", String(kHospitals));
  EXPECT_EQ(StoreSession(path, SessionMade("now")), 2U);
  Project expected = Hospitals();
  expected.Sessions.push_back(SessionMade("now"));
  expected.Use->Session = 2;
  EXPECT_EQ(ReadProject(path), expected);
}

TEST(StoreSession, WithoutAUseTheLastSessionIsInUseAnyway) {
  Project project = Hospitals();
  project.Use.reset();
  EXPECT_EQ(AddSession(project, SessionMade("now")), 2U);
  EXPECT_FALSE(project.Use);
  EXPECT_EQ(SessionInUse(project), 2U);
}

TEST(StoreSession, AProjectThatUsedNoneUsesTheNewOne) {
  Project project = Hospitals();
  project.Use->Session.reset();
  project.Use->NoSession = true;
  AddSession(project, SessionMade("now"));
  EXPECT_EQ(SessionInUse(project), 2U);
}

TEST(StoreSession, ThePointsThatFollowTakeThePlaceOfTheSameSession) {
  const TemporaryFolder folder;
  const String path = folder.Write("a.tarnwise", String(kHospitals));
  JudgmentSession session = SessionMade("now");
  session.Points.clear();
  const std::size_t place = StoreSession(path, session);
  session.Points = R"({"AX":[1.5]})";
  EXPECT_EQ(StoreSession(path, session, place), place);
  EXPECT_EQ(ReadProject(path).Sessions.size(), 3U);
  EXPECT_EQ(ReadProject(path).Sessions[2].Points, session.Points);
}

TEST(StoreSession, AnotherSessionThatTookThePlaceMeanwhileIsKept) {
  const TemporaryFolder folder;
  const String path = folder.Write("a.tarnwise", String(kHospitals));
  EXPECT_EQ(StoreSession(path, SessionMade("now"), 1U), 2U);
  EXPECT_EQ(ReadProject(path).Sessions[1], Hospitals().Sessions[1]);
}

TEST(StoreSession, AFileThatIsGoneIsAFault) {
  const TemporaryFolder folder;
  const String path = folder.File("gone.tarnwise");
  EXPECT_NE(FaultOf([&] { StoreSession(path, SessionMade("now")); }).find("gone.tarnwise"), String::npos);
  EXPECT_EQ(folder.CountFiles(), 0U);
}

TEST(StoreSession, TheModelFileIsThereForTheCallOnlyAndInAFolderOfItsOwn) {
  const SessionModel model = SessionModelOf(Hospitals(), {}, CodePage1252());
  std::filesystem::path seen;
  WithModelFile(model, [&](const String& path) {
    seen = PathFromText(path);
    WizardData read;
    ReadModel(read, FileBytes(path));
    EXPECT_EQ(read.NumAtts(), 4);
    EXPECT_EQ(String(read.AttName(3)), "Inpatients");
    EXPECT_EQ(read.AttValueData.WorstScore[0], 60.0);
#ifndef _WIN32
    using std::filesystem::perms;
    const perms others = perms::group_all | perms::others_all;
    EXPECT_EQ(std::filesystem::status(seen.parent_path()).permissions() & others, perms::none);
#endif
  });
  EXPECT_FALSE(std::filesystem::exists(seen.parent_path()));
}

}  // namespace
}  // namespace Tarnwise
