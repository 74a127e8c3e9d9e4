// The four methods of the class.
#include "Places.h"

namespace Tarnwise {
namespace {

using enum Group;

VariantArray ArrayOf(Double first, int count) {
  VariantArray array;
  for (int i = 0; i < count; ++i) array.emplace_back(first + i);
  return array;
}

struct Points {
  explicit Points(int count) {
    for (int k = 0; k < 9; ++k) Arrays.push_back(ArrayOf(100.0 * (k + 1), count));
    Arrays[4] = VariantArray(static_cast<std::size_t>(count), Variant(Integer(2)));
  }
  void Transfer(TRN_DEA& object) const {
    object.TranferABCoordinates(Arrays[0], Arrays[1], Arrays[2], Arrays[3], Arrays[4], Arrays[5], Arrays[6], Arrays[7],
                                Arrays[8]);
  }
  int Error(TRN_DEA& object) const {
    try {
      Transfer(object);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  }
  std::vector<VariantArray> Arrays;
};

std::vector<Single> NumbersOf(const ABPoint& p) {
  return {p.AX, p.AY, p.BX, p.BY, static_cast<Single>(p.AOrientation), p.ALX, p.ALY, p.AUX, p.AUY};
}

TEST(OrientationsOf, AreWhatTheCornersShow) {
  const auto singles = [](std::initializer_list<Single> values) { return VariantArray(values.begin(), values.end()); };
  const VariantArray lowX = singles({1.5F, 1.5F, 1.5F, 1.5F});
  const VariantArray lowY = singles({7.0F, 7.0F, 7.0F, 7.0F});
  EXPECT_EQ(OrientationsOf(lowX, lowY, singles({1.5F, 3.25F, 1.5F, 3.25F}), singles({7.0F, 7.0F, 9.5F, 9.5F})),
            (VariantArray{Integer(0), Integer(1), Integer(2), Integer(1)}));
  EXPECT_EQ(OrientationsOf({Variant(1.5)}, {Variant()}, {Variant(String("1.5"))}, {Variant(0.0)}),
            VariantArray{Integer(0)})
      << "numbers of any kind";
  EXPECT_EQ(OrientationsOf({}, {}, {}, {}), VariantArray());
}

TEST(OrientationsOf, NeedsArraysOfOneLengthAndNumbers) {
  const VariantArray two(2, Variant(1.0));
  const auto errorOf = [](const VariantArray& ALX, const VariantArray& AUY) {
    try {
      OrientationsOf(ALX, VariantArray(2, Variant(1.0)), VariantArray(2, Variant(1.0)), AUY);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(errorOf(two, two), 0);
  EXPECT_EQ(errorOf(two, VariantArray(3, Variant(1.0))), 9);
  EXPECT_EQ(errorOf(VariantArray(2, Variant(String("x"))), two), 13);
  EXPECT_EQ(errorOf(two, VariantArray(2, Variant(Null()))), 94);
}

TEST(GetCurFileData, StoresTheThreeAndReadsTheModel) {
  Wizarding host(ModelOf({{"Beds", Benefit}, {"Staff", Cost}}));
  host.Load();
  const WizardData& data = mdTRNMain();
  EXPECT_EQ(data.KestaDir, "C:/KESTA");
  EXPECT_EQ(data.FileIndex, 3);
  EXPECT_EQ(data.PathAndFileName, host.Folder.File("model.kst"));
  EXPECT_EQ(data.NumAtts(), 2);
  EXPECT_EQ(data.AttName(1), "Staff");
}

TEST(GetCurFileData, TakesTheDirectoryAsAnythingThatIsText) {
  Wizarding host(ModelOf(1, 1));
  host.Wizard->GetCurFileData(Variant(12.5), -7, host.Folder.File("model.kst"));
  EXPECT_EQ(mdTRNMain().KestaDir, "12.5");
  EXPECT_EQ(mdTRNMain().FileIndex, -7);
  host.Wizard->GetCurFileData(Variant(), 1, host.Folder.File("model.kst"));
  EXPECT_EQ(mdTRNMain().KestaDir, "");
}

TEST(GetCurFileData, FailsForADirectoryThatIsNull) {
  Wizarding host(ModelOf(1, 1));
  try {
    host.Wizard->GetCurFileData(Variant(Null()), 1, host.Folder.File("model.kst"));
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 94);
  }
  EXPECT_EQ(mdTRNMain().NumAtts(), 0);
}

TEST(GetCurFileData, AgainForgetsTheChangedOrderAndKeepsTheReferences) {
  Wizarding host(ModelOf(2, 2));
  host.Load();
  mdTRNMain().OrderChanged = true;
  mdTRNMain().BRefAttID = 1;
  mdTRNMain().CRefAttID = 3;
  host.Load();
  EXPECT_FALSE(mdTRNMain().OrderChanged);
  EXPECT_EQ(mdTRNMain().BRefAttID, 1);
  EXPECT_EQ(mdTRNMain().CRefAttID, 3);
}

TEST(GetCurFileData, OfAFileThatCannotBeOpenedTellsTheUserAndKeepsTheModel) {
  Wizarding host(ModelOf(2, 2));
  host.Load();
  mdTRNMain().OrderChanged = true;
  host.TakeNotes();
  host.Wizard->GetCurFileData(String("C:/OTHER"), 9, host.Folder.File("no/such/folder.kst"));
  EXPECT_EQ(host.Notes, Lines({"beep", "msgbox There are problems in accessing the relevant data.", "pointer 0"}));
  EXPECT_EQ(mdTRNMain().KestaDir, "C:/OTHER");
  EXPECT_EQ(mdTRNMain().FileIndex, 9);
  EXPECT_EQ(mdTRNMain().NumAtts(), 4);
  EXPECT_TRUE(mdTRNMain().OrderChanged);
}

TEST(TranferABCoordinates, FillsBothSetsFieldByField) {
  Wizarding host(ModelOf(1, 2));
  host.Load();
  Points(3).Transfer(*host.Wizard);
  const WizardData& data = mdTRNMain();
  ASSERT_EQ(data.ABPoints1.Count(), 3);
  ASSERT_EQ(data.ABPoints2.Count(), 3);
  for (int i = 0; i < 3; ++i) {
    const Single x = static_cast<Single>(i);
    const std::vector<Single> fields = {100.0F + x, 200.0F + x, 300.0F + x, 400.0F + x, 2.0F,
                                        600.0F + x, 700.0F + x, 800.0F + x, 900.0F + x};
    EXPECT_EQ(NumbersOf(data.ABPoints1[i]), fields);
    EXPECT_EQ(NumbersOf(data.ABPoints2[i]), fields);
  }
}

TEST(TranferABCoordinates, TakesNoMoreThanTheModelsAttributesFromLongerArrays) {
  Wizarding host(ModelOf(1, 1));
  host.Load();
  Points(7).Transfer(*host.Wizard);
  EXPECT_EQ(mdTRNMain().ABPoints1.Count(), 2);
  EXPECT_EQ(mdTRNMain().ABPoints2.Count(), 2);
}

TEST(TranferABCoordinates, OfAnyArrayThatIsTooShortFailsAndChangesNothing) {
  Wizarding host(ModelOf(1, 2));
  host.Load();
  Points(3).Transfer(*host.Wizard);
  for (std::size_t k = 0; k < 9; ++k) {
    Points points(3);
    points.Arrays[0][0] = 5.0;
    points.Arrays[k].pop_back();
    EXPECT_EQ(points.Error(*host.Wizard), 9) << k;
    EXPECT_EQ(mdTRNMain().ABPoints1.Count(), 3);
    EXPECT_EQ(mdTRNMain().ABPoints1[0].AX, 100.0F);
    EXPECT_EQ(mdTRNMain().ABPoints2[0].AX, 100.0F);
  }
}

TEST(TranferABCoordinates, BeforeGetCurFileDataAllocatesEmptyArrays) {
  Wizarding host(ModelOf(1, 2));
  mdTRNMain().ABPoints2.Allocate(4);
  Points(3).Transfer(*host.Wizard);
  EXPECT_EQ(mdTRNMain().ABPoints1.Count(), 0);
  EXPECT_EQ(mdTRNMain().ABPoints2.Count(), 0);
  Points(0).Transfer(*host.Wizard);
  EXPECT_EQ(mdTRNMain().ABPoints2.Count(), 0);
}

TEST(TranferABCoordinates, ConvertsWhatTheHostGives) {
  Wizarding host(ModelOf(1, 1));
  host.Load();
  Points points(2);
  points.Arrays[0] = {Variant(String("12.5")), Variant()};
  points.Arrays[1] = {Variant(Integer(3)), Variant(Long(70000))};
  points.Arrays[2] = {Variant(true), Variant(0.1)};
  points.Arrays[4] = {Variant(1.5), Variant(2.5)};
  points.Transfer(*host.Wizard);
  const Array<ABPoint>& to = mdTRNMain().ABPoints2;
  EXPECT_EQ(to[0].AX, 12.5F);
  EXPECT_EQ(to[1].AX, 0.0F);
  EXPECT_EQ(to[1].AY, 70000.0F);
  EXPECT_EQ(to[0].BX, -1.0F);
  EXPECT_EQ(to[1].BX, 0.1F);
  EXPECT_EQ(to[0].AOrientation, 2);
  EXPECT_EQ(to[1].AOrientation, 2) << "half to even";
}

TEST(TranferABCoordinates, PassesAConversionThatFailsToTheHost) {
  const std::pair<Variant, int> cases[] = {{Variant(String("abc")), 13}, {Variant(Null()), 94}, {Variant(1e300), 6}};
  for (const auto& [value, number] : cases) {
    Wizarding host(ModelOf(1, 1));
    host.Load();
    Points points(2);
    points.Arrays[8][1] = value;
    EXPECT_EQ(points.Error(*host.Wizard), number);
  }
  Wizarding host(ModelOf(1, 1));
  host.Load();
  Points points(2);
  points.Arrays[4][0] = 40000.0;
  EXPECT_EQ(points.Error(*host.Wizard), 6);
}

TEST(ShowTarnwise, ShowsTheFirstStepInTheMiddleOfTheScreenAndReturns) {
  Wizarding host(Wizarding::Model());
  host.Load();
  host.TakeNotes();
  host.Wizard->ShowTarnwise();
  EXPECT_EQ(host.Notes,
            Lines({"say Select a method to make value judgments between the attributes.", "show frmTRNSelMethod"}));
  const Form& form = *host.Screen->Forms().at(0);
  EXPECT_EQ(form.Left(), (host.Tools->ScreenWidth() - form.Width) / 2.0F);
  EXPECT_EQ(form.Top(), (host.Tools->ScreenHeight() - form.Height) / 2.0F);
  EXPECT_FALSE(host.Screen->IsModal(form));
}

TEST(ShowTarnwise, AgainShowsTheSameStepWithoutMakingItAnew) {
  Wizarding host(Wizarding::Model());
  host.Load();
  host.Wizard->ShowTarnwise();
  const Form* const first = host.Screen->Forms().at(0);
  host.Screen->Hide(*host.Screen->Forms().at(0));
  host.TakeNotes();
  host.Wizard->ShowTarnwise();
  EXPECT_EQ(host.Notes, Lines({"show frmTRNSelMethod"}));
  EXPECT_EQ(host.Screen->Forms().size(), 1U);
  EXPECT_EQ(host.Screen->Forms().at(0), first);
  host.TakeNotes();
  host.Wizard->ShowTarnwise();
  EXPECT_TRUE(host.Notes.empty());
}

TEST(ShowTarnwise, OverALaterStepLeavesThatOneInCharge) {
  Wizarding host(Wizarding::Model());
  host.Load();
  host.Run(Wizarding::Joined(host.ToOrdering(), {[&host] {
                               host.Wizard->ShowTarnwise();
                               EXPECT_TRUE(host.Screen->Forms().at(0)->Visible);
                               EXPECT_EQ(host.Active(), "frmIniImpOrder");
                             }}));
}

TEST(UnloadTarnwise, WithNoStepEverShownDoesNothing) {
  Wizarding host(Wizarding::Model());
  host.Wizard->UnloadTarnwise();
  host.Load();
  host.TakeNotes();
  host.Wizard->UnloadTarnwise();
  EXPECT_TRUE(host.Notes.empty());
}

TEST(UnloadTarnwise, HidesThenReleasesInTheTwoOrders) {
  for (const int approach : {0, 1}) {
    Wizarding host(Wizarding::Model());
    host.Load();
    Points(4).Transfer(*host.Wizard);
    Steps steps = host.ToJudgments();
    steps.insert(steps.begin() + 1, host.Chooses(approach));
    steps.push_back([&host] {
      // As a host may leave them: all steps to be seen.
      for (Form* form : host.Screen->Forms()) host.Screen->Show(*form);
      host.TakeNotes();
      host.Wizard->UnloadTarnwise();
    });
    host.Run(steps);
    const Lines direct = {"hide frmIniImpOrder",     "hide frmTRNSelMethod", "hide frmDirectB",
                          "release frmTRNSelMethod", "release frmDirectB",   "release frmIniImpOrder"};
    const Lines tradeOffs = {"hide frmIniImpOrder",     "hide frmTradeOffsB",     "hide frmTRNSelMethod",
                             "release frmTRNSelMethod", "release frmIniImpOrder", "release frmTradeOffsB"};
    EXPECT_EQ(host.Notes, approach == 0 ? direct : tradeOffs);
    EXPECT_TRUE(host.Screen->Forms().empty());
    EXPECT_FALSE(host.StepsLeft());
  }
}

TEST(UnloadTarnwise, LeavesTheWizardDataAsItStands) {
  Wizarding host(Wizarding::Model());
  host.Load();
  host.Run(Wizarding::Joined(host.ToJudgments(), {[&host] { host.Wizard->UnloadTarnwise(); }}));
  EXPECT_EQ(mdTRNMain().AttO.Count(), 4);
  EXPECT_EQ(mdTRNMain().CRefAttID, 2);
  EXPECT_TRUE(mdTRNMain().OrderChanged);
  host.TakeNotes();
  host.Wizard->ShowTarnwise();
  EXPECT_EQ(host.Forms(), Lines({"frmTRNSelMethod"}));
  EXPECT_EQ(mdTRNMain().CRefAttID, 2);
}

}  // namespace
}  // namespace Tarnwise
