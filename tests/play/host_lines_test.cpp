// What the host does in a session script, and what is printed of the wizard's events.
#include "play/Played.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace Tarnwise {
namespace {

const char* const kFirstPrompt =
    R"({"event":"SendMasseges","Msg":"Select a method to make value judgments between the attributes."})";

TEST(HostLoad, ReadsTheModelFromTheScriptsFolderAndDefaultsTheRest) {
  const TemporaryFolder folder;
  WriteModel(folder.File("model.kst"), ModelOf(2, 2));
  const Played played =
      PlayIn(folder.Path(), "host load model.kst\ndata KestaDir\ndata FileIndex\ndata PathAndFileName\ndata NumAtts");
  EXPECT_EQ(played.Out,
            (Lines{R"({"pointer":11})", R"({"pointer":0})", R"({"data":"KestaDir","value":")" + folder.Path() + "\"}",
                   R"({"data":"FileIndex","value":1})",
                   R"({"data":"PathAndFileName","value":")" + folder.File("model.kst") + "\"}",
                   R"({"data":"NumAtts","value":4})"}));
}

TEST(HostLoad, TakesAnAbsolutePathADirectoryAndAnIndex) {
  const TemporaryFolder folder;
  WriteModel(folder.File("a model.kst"), ModelOf(1, 2));
  const Played played = PlayIn("elsewhere", "host load \"" + folder.File("a model.kst") +
                                                "\" \"C:/My KESTA\" -7\ndata KestaDir\ndata FileIndex\ndata NumAtts");
  EXPECT_EQ(Lines(played.Out.begin() + 2, played.Out.end()),
            (Lines{R"({"data":"KestaDir","value":"C:/My KESTA"})", R"({"data":"FileIndex","value":-7})",
                   R"({"data":"NumAtts","value":3})"}));
}

TEST(HostLoad, OfAnIndexPastSixteenBitsOverflows) {
  for (const char* index : {"32768", "-32769", "70000"}) {
    const Played played = Play("host load model.kst C:/KESTA " + String(index));
    EXPECT_EQ(played.Out, Lines{R"({"runtime_error":6,"description":"Overflow","in":"TRN_DEA.GetCurFileData"})"})
        << index;
    EXPECT_EQ(played.Status, 0) << index;
  }
  EXPECT_EQ(Play("host load model.kst C:/KESTA 32767\ndata FileIndex").Out.back(),
            R"({"data":"FileIndex","value":32767})");
}

TEST(HostLoad, OfAMissingFileMakesItAndIsNoError) {
  const TemporaryFolder folder;
  const Played played = PlayIn(folder.Path(), "host load new.kst\ndata NumAtts");
  EXPECT_EQ(played.Out, (Lines{R"({"pointer":11})", R"({"pointer":0})", R"({"data":"NumAtts","value":0})"}));
  EXPECT_TRUE(std::filesystem::exists(folder.File("new.kst")));
}

TEST(HostLoad, OfAPathThatCannotBeOpenedShowsTheMessage) {
  const Played played = Play("host load model.kst\nhost load no/such/folder/new.kst\ndata NumAtts");
  EXPECT_EQ(Lines(played.Out.begin() + 2, played.Out.end()),
            (Lines{R"({"beep":true})",
                   R"({"msgbox":"There are problems in accessing the relevant data.","style":64,"title":"KESTA"})",
                   R"({"pointer":0})", R"({"data":"NumAtts","value":4})"}));
}

TEST(HostPoints, ZeroGivesNineArraysOfZeros) {
  const Played played = Play("host load model.kst\nhost points zero\ndata ABPoints2");
  const String zero = R"({"AX":0,"AY":0,"BX":0,"BY":0,"AOrientation":0,"ALX":0,"ALY":0,"AUX":0,"AUY":0})";
  EXPECT_EQ(played.Out.back(), R"({"data":"ABPoints2","value":[)" + zero + "," + zero + "," + zero + "," + zero + "]}");
}

TEST(HostPoints, TakesTheValuesOfItsJson) {
  const Played played = Play(
      "host load model.kst\nhost points { \"AX\": [0.1,2,3,4], \"AY\":[1,2,3,4],\"BX\":[5,6,7,8],\"BY\":[9,9,9,9],"
      "\"AOrientation\":[0,1,2,1],\"ALX\":[\"1.5\",0,0,0],\"ALY\":[null,0,0,0],\"AUX\":[true,0,0,0],\"AUY\":[7,0,0,0], "
      "\"more\": 1 }\n"
      "data ABPoints1\ndata ABPoints2");
  const String values = R"([{"AX":0.1,"AY":1,"BX":5,"BY":9,"AOrientation":0,"ALX":1.5,"ALY":0,"AUX":-1,"AUY":7},)"
                        R"({"AX":2,"AY":2,"BX":6,"BY":9,"AOrientation":1,"ALX":0,"ALY":0,"AUX":0,"AUY":0},)"
                        R"({"AX":3,"AY":3,"BX":7,"BY":9,"AOrientation":2,"ALX":0,"ALY":0,"AUX":0,"AUY":0},)"
                        R"({"AX":4,"AY":4,"BX":8,"BY":9,"AOrientation":1,"ALX":0,"ALY":0,"AUX":0,"AUY":0}])";
  ASSERT_EQ(played.Status, 0) << played.Errors;
  EXPECT_EQ(Lines(played.Out.end() - 2, played.Out.end()), (Lines{R"({"data":"ABPoints1","value":)" + values + "}",
                                                                  R"({"data":"ABPoints2","value":)" + values + "}"}));
}

TEST(HostPoints, RefusedByTheComponentChangeNothing) {
  const String nine =
      R"("AY":[1,2,3,4],"BX":[1,2,3,4],"BY":[1,2,3,4],"AOrientation":[0,0,0,0],"ALX":[1,2,3,4],"ALY":[1,2,3,4],"AUX":[1,2,3,4],"AUY":[1,2,3,4]})";
  const auto fails = [&nine](const String& ax) {
    const Played played = Play("host load model.kst\nhost points zero\nhost points {" + ax + nine + "\ndata ABPoints2");
    EXPECT_EQ(played.Status, 0);
    EXPECT_EQ(played.Out.back().find("[{\"AX\":0,\"AY\":0,"), String(R"({"data":"ABPoints2","value":)").size());
    return played.Out[played.Out.size() - 2];
  };
  const String in = R"(,"in":"TRN_DEA.TranferABCoordinates"})";
  const String subscript = R"({"runtime_error":9,"description":"Subscript out of range")" + in;
  EXPECT_EQ(fails(R"("AX":[1,2,3],)"), subscript);
  EXPECT_EQ(fails(""), subscript);
  EXPECT_EQ(fails(R"("AX":5,)"), subscript);
  EXPECT_EQ(fails(R"("AX":[[1,2],[3,4],[5,6],[7,8]],)"), subscript);
  EXPECT_EQ(fails(R"("AX":[1,2,3,"x"],)"), R"({"runtime_error":13,"description":"Type mismatch")" + in);
  EXPECT_EQ(fails(R"("AX":[1,2,3,1e39],)"), R"({"runtime_error":6,"description":"Overflow")" + in);
}

TEST(HostShow, ShowsTheFirstStepWithoutModalityAndAgainWithoutMakingItAnew) {
  EXPECT_EQ(Play("host show\nhost show\nforms").Out,
            (Lines{kFirstPrompt, R"({"show":"frmTRNSelMethod","modal":false})",
                   R"({"forms":[{"name":"frmTRNSelMethod","visible":true,"modal":false}]})"}));
}

TEST(HostUnload, HidesAndReleasesAllForms) {
  const Lines printed = OnFirstStep("click cmdNext\nhost unload\nforms");
  EXPECT_EQ(Lines(printed.end() - 4, printed.end()),
            (Lines{R"({"hide":"frmIniImpOrder"})", R"({"release":"frmTRNSelMethod"})",
                   R"({"release":"frmIniImpOrder"})", R"({"forms":[]})"}));
  EXPECT_EQ(Play("host unload\nforms").Out, Lines{R"({"forms":[]})"});
}

TEST(HostUnload, LeavesTheWizardDataForTheNextShow) {
  const Played played = Play(kShown + "host unload\nhost show\ndata NumAtts");
  EXPECT_EQ(Lines(played.Out.end() - 3, played.Out.end()),
            (Lines{kFirstPrompt, R"({"show":"frmTRNSelMethod","modal":false})", R"({"data":"NumAtts","value":4})"}));
}

TEST(HostAnswer, IsOnAtTheStart) {
  EXPECT_EQ(OnFirstStep("click cmdCancel\nforms"),
            (Lines{R"({"event":"UnloadTarnwise","fIndex":1,"WeightsDone":false})", R"({"hide":"frmTRNSelMethod"})",
                   R"({"release":"frmTRNSelMethod"})", R"({"forms":[]})"}));
}

TEST(HostAnswer, OffLeavesTheFormsInPlaceUntilTheHostUnloads) {
  EXPECT_EQ(OnFirstStep("host answer off\nclick cmdCancel\nget frmTRNSelMethod.Visible\nhost answer on\nclose\nforms"),
            (Lines{R"({"event":"UnloadTarnwise","fIndex":1,"WeightsDone":false})",
                   R"({"get":"frmTRNSelMethod.Visible","value":true})",
                   R"({"event":"UnloadTarnwise","fIndex":1,"WeightsDone":false})", R"({"hide":"frmTRNSelMethod"})",
                   R"({"release":"frmTRNSelMethod"})", R"({"forms":[]})"}));
}

TEST(HostNew, LetsTheObjectGoAndMakesAnother) {
  const Lines printed = OnFirstStep("click cmdNext\nhost new\nforms\nhost show\nclick cmdNext\nget cmdAttA(0).Caption");
  EXPECT_EQ(
      Lines(printed.begin() + 3, printed.end()),
      (Lines{R"({"hide":"frmIniImpOrder"})", R"({"release":"frmTRNSelMethod"})", R"({"release":"frmIniImpOrder"})",
             R"({"forms":[]})", kFirstPrompt, R"({"show":"frmTRNSelMethod","modal":false})",
             R"({"hide":"frmTRNSelMethod"})",
             R"({"event":"SendMasseges","Msg":"Rank the attributes according to their relative importance."})",
             R"({"show":"frmIniImpOrder","modal":true})", R"({"get":"cmdAttA(0).Caption","value":"Benefit 0"})"}));
}

TEST(HostCalls, MayComeInsideModalStepsAndShowAgain) {
  const Lines printed = OnFirstStep("click cmdNext\nhost show\nforms");
  EXPECT_EQ(
      Lines(printed.begin() + 3, printed.end()),
      (Lines{
          R"({"show":"frmTRNSelMethod","modal":false})",
          R"({"forms":[{"name":"frmTRNSelMethod","visible":true,"modal":false},{"name":"frmIniImpOrder","visible":true,"modal":true}]})"}));
}

TEST(Calls, AskTheValueCurves) {
  const Played played =
      Play("host load model.kst\ncall GetAttValue 0 25.5\ncall GetAttValueFunc 0 25\ncall GetAttScore 3 0.5");
  ASSERT_EQ(played.Status, 0) << played.Errors;
  EXPECT_EQ(played.Out[2], R"({"call":"GetAttValue","value":0.2549999952316284})");
  EXPECT_EQ(played.Out[3], R"({"call":"GetAttValueFunc","value":0.25})");
  EXPECT_EQ(played.Out[4].substr(0, 30), R"({"call":"GetAttScore","value":)");
}

TEST(Calls, OfAnAttributePastTheModelsArraysAreASubscriptError) {
  EXPECT_EQ(Play("host load model.kst\ncall GetAttValue 31 25").Out.back(),
            R"({"runtime_error":9,"description":"Subscript out of range","in":"GetAttValue"})");
}

}  // namespace
}  // namespace Tarnwise
