// The hospitals in the ratio form, without judgments and with three sets of them. The free scores are those of the
// textbook that the data are from; the others were computed by another solver.
#include "Problems.h"

namespace Tarnwise::Dea {
namespace {

using Numbers = std::vector<Double>;

Results Evaluated(Returns returns, Orientation orientation) {
  Problem problem = Hospitals();
  problem.Options.Returns = returns;
  problem.Options.Orientation = orientation;
  return Evaluate(problem);
}

void ExpectMax(const Numbers& expected, const Results& results) {
  ExpectAll(expected, All(results, &UnitResult::Max), kSixDigits);
  ExpectAll(All(results, &UnitResult::Max), All(results, &UnitResult::Free), 0.0);
  EXPECT_LE(results.WorstViolation, 1e-9);
}

TEST(HospitalsFree, ConstantReturns) {
  const Results results = Evaluated(Returns::Constant, Orientation::In);
  ExpectMax({1, 1, .882708, 1, .763499, .834771, .901961, .796334, .960392, .870647, .955098, .958204}, results);
  ExpectAll({1.408467, 1.184211, no, 1.015966, no, no, no, no, no, no, no, no}, All(results, &UnitResult::Super),
            kSixDigits);
}

TEST(HospitalsFree, ConstantReturnsOutIsOneOver) {
  const Numbers in = All(Evaluated(Returns::Constant, Orientation::In), &UnitResult::Max);
  const Results results = Evaluated(Returns::Constant, Orientation::Out);
  for (std::size_t k = 0; k < in.size(); ++k) EXPECT_DOUBLE_EQ(1.0 / in[k], *results.Units[k].Max);
  EXPECT_NEAR(1.0 / 1.408467, *results.Units[0].Super, kSixDigits);
}

TEST(HospitalsFree, VariableReturnsIn) {
  ExpectMax({1, 1, .895833, 1, .881818, .938936, 1, .798833, .989333, 1, 1, 1},
            Evaluated(Returns::Variable, Orientation::In));
}

TEST(HospitalsFree, VariableReturnsOut) {
  ExpectMax({1, 1, 1.081608, 1, 1.304403, 1.047391, 1, 1.210783, 1.010165, 1, 1, 1},
            Evaluated(Returns::Variable, Orientation::Out));
}

TEST(HospitalsFree, NonIncreasingReturns) {
  ExpectMax({1, 1, .895833, 1, .763499, .938936, 1, .798833, .989333, 1, 1, 1},
            Evaluated(Returns::NonIncreasing, Orientation::In));
}

TEST(HospitalsFree, NonDecreasingReturns) {
  ExpectMax({1, 1, .882708, 1, .881818, .834771, .901961, .796334, .960392, .870647, .955098, .958204},
            Evaluated(Returns::NonDecreasing, Orientation::In));
}

TEST(HospitalsFree, PeersOfC) {
  const UnitResult c = Evaluated(Returns::Constant, Orientation::In).Units[2];
  ASSERT_EQ(2U, c.Peers.size());
  EXPECT_EQ(1, c.Peers[0].Unit);
  EXPECT_NEAR(0.9, c.Peers[0].Lambda, 1e-9);
  EXPECT_EQ(3, c.Peers[1].Unit);
  EXPECT_NEAR(0.1389, c.Peers[1].Lambda, 1e-4);
}

TEST(HospitalsFree, HaveNothingOfASession) {
  const Results results = Evaluated(Returns::Constant, Orientation::In);
  EXPECT_TRUE(results.Equivalences.empty());
  for (const UnitResult& unit : results.Units) {
    EXPECT_FALSE(unit.Min || unit.Ranks || unit.RanksSeen || unit.Value || unit.Distance || unit.Regret);
    EXPECT_TRUE(unit.HeldBackBy.empty());
  }
}

struct JudgedTable {
  Numbers Max, Min, Super;
  std::vector<RankRange> Ranks;
};

void ExpectRanks(const std::vector<RankRange>& expected, const Results& results,
                 std::optional<RankRange> UnitResult::*field) {
  ASSERT_EQ(expected.size(), results.Units.size());
  for (std::size_t k = 0; k < expected.size(); ++k) {
    const std::optional<RankRange>& actual = results.Units[k].*field;
    ASSERT_TRUE(actual) << k;
    EXPECT_EQ(expected[k].Best, actual->Best) << results.Units[k].Unit;
    EXPECT_EQ(expected[k].Worst, actual->Worst) << results.Units[k].Unit;
  }
}

Results ExpectJudged(const JudgedTable& expected, const Session& session) {
  Results results = Evaluate(HospitalsJudged(session));
  ExpectAll(expected.Max, All(results, &UnitResult::Max), kSixDigits);
  ExpectAll(expected.Min, All(results, &UnitResult::Min), kSixDigits);
  ExpectAll(expected.Super, All(results, &UnitResult::Super), kSixDigits);
  ExpectRanks(expected.Ranks, results, &UnitResult::Ranks);
  EXPECT_LE(results.WorstViolation, 1e-9);
  EXPECT_NEAR(.882708, *results.Units[2].Free, kSixDigits);
  return results;
}

TEST(HospitalsJudged, RawPricesWithinBounds) {
  const Results results = ExpectJudged(
      {{1, 1, .881232, 1, .763499, .825664, .893588, .796334, .891341, .866307, .950474, .931621},
       {.641387, .807723, .696555, .813321, .556133, .585523, .753000, .657341, .707700, .660758, .715898, .791650},
       {1.221936, 1.103463, no, 1.012416, no, no, no, no, no, no, no, no},
       {{1, 11}, {1, 5}, {3, 11}, {1, 5}, {8, 12}, {7, 12}, {3, 8}, {7, 12}, {4, 10}, {4, 11}, {1, 10}, {1, 8}}},
      BoundsSession());
  ExpectRanks({{1, 11}, {1, 5}, {3, 10}, {1, 3}, {8, 12}, {7, 12}, {3, 7}, {9, 11}, {5, 10}, {5, 11}, {2, 8}, {2, 7}},
              results, &UnitResult::RanksSeen);
}

TEST(HospitalsJudged, RawPricesWithinBoundsAndVariableReturns) {
  Problem problem = HospitalsJudged(BoundsSession());
  problem.Options.Returns = Returns::Variable;
  const Results results = Evaluate(problem);
  ExpectAll({1, 1, .891776, 1, .858209, .930680, .988691, .798833, .936311, 1, 1, 1}, All(results, &UnitResult::Max),
            kSixDigits);
  for (const UnitResult& unit : results.Units) EXPECT_FALSE(unit.Min || unit.Super || unit.Ranks || unit.RanksSeen);
}

TEST(HospitalsJudged, Directly) {
  const Results results = ExpectJudged(
      {{1, .853710, .720189, .823532, .724767, .552178, .789422, .701960, .851524, .644352, .767336, .855187},
       {1, .809080, .680516, .783216, .714997, .515890, .757141, .679845, .827362, .607477, .739441, .830657},
       {1.203724, no, no, no, no, no, no, no, no, no, no, no},
       {{1, 1}, {3, 4}, {9, 9}, {5, 5}, {8, 8}, {12, 12}, {6, 6}, {10, 10}, {2, 4}, {11, 11}, {7, 7}, {2, 3}}},
      DirectSession());
  ASSERT_EQ(2U, results.Equivalences.size());
  EXPECT_NEAR(14.583333, results.Equivalences[0].Low, kSixDigits);
  EXPECT_NEAR(19.881944, *results.Equivalences[0].High, kSixDigits);
  EXPECT_EQ(1, results.Equivalences[0].Of);
  EXPECT_NEAR(3.422680, results.Equivalences[1].Low, kSixDigits);
  EXPECT_NEAR(4.278351, *results.Equivalences[1].High, kSixDigits);
}

TEST(HospitalsJudged, ByTradeOffs) {
  const Results results = ExpectJudged(
      {{1, .997042, .850396, .957012, .755883, .682135, .892143, .773921, .902323, .771566, .861940, .932100},
       {1, .987766, .836072, .938187, .752001, .649338, .886786, .763822, .895434, .745060, .838581, .931125},
       {1.012386, no, no, no, no, no, no, no, no, no, no, no},
       {{1, 1}, {2, 2}, {8, 8}, {3, 3}, {10, 11}, {12, 12}, {6, 6}, {9, 9}, {5, 5}, {10, 11}, {7, 7}, {4, 4}}},
      TradedSession());
  EXPECT_NEAR(6.141559, results.Equivalences[0].Low, kSixDigits);
  EXPECT_NEAR(9.287463, *results.Equivalences[0].High, kSixDigits);
  EXPECT_NEAR(1.919134, results.Equivalences[1].Low, kSixDigits);
}

// Every inefficient hospital sits at the lower bound of inpatients; at that of doctors too, but I at the upper one.
TEST(HospitalsJudged, AreHeldBackByBounds) {
  const Results results = Evaluate(HospitalsJudged(DirectSession()));
  const std::vector<HeldBackBy>& b = results.Units[1].HeldBackBy;
  ASSERT_EQ(2U, b.size());
  EXPECT_EQ(3, b[0].Column);
  EXPECT_EQ(Side::Low, b[0].Side);
  EXPECT_EQ(2.0, b[0].Ratio);
  EXPECT_NEAR(0.146, b[0].Gain, 5e-4);
  EXPECT_EQ(0, b[1].Column);
  EXPECT_EQ(Side::Low, b[1].Side);
  EXPECT_EQ(3.0, b[1].Ratio);
  EXPECT_NEAR(0.053, b[1].Gain, 5e-4);
  EXPECT_TRUE(results.Units[0].HeldBackBy.empty());
  for (std::size_t k = 1; k < results.Units.size(); ++k) {
    bool inpatients = false;
    for (const HeldBackBy& bound : results.Units[k].HeldBackBy) {
      if (bound.Column == 3) {
        inpatients = true;
        EXPECT_EQ(Side::Low, bound.Side) << k;
      } else {
        EXPECT_EQ(k == 8 ? Side::High : Side::Low, bound.Side) << k;
      }
    }
    EXPECT_TRUE(inpatients) << k;
  }
}

TEST(HospitalsJudged, BHasAForItsPeer) {
  const UnitResult b = Evaluate(HospitalsJudged(DirectSession())).Units[1];
  ASSERT_EQ(1U, b.Peers.size());
  EXPECT_EQ(0, b.Peers[0].Unit);
  EXPECT_NEAR(0.787014, b.Peers[0].Lambda, kSixDigits);
}

TEST(HospitalsDepartures, AreThoseOfTheCurvesFromTheirChords) {
  const Results results = Evaluate(Hospitals());
  const Numbers expected{0.025, 0.0, 0.079, 0.044};
  for (std::size_t j = 0; j < 4; ++j) EXPECT_NEAR(expected[j], *results.Departures[j].FromChord, 5e-4) << j;
}

// The same two intervals, read as three different things.
struct Reading {
  const char* Name;
  Dea::Basis Basis;
  Double DoctorsLow, DoctorsHigh, Min, Max;
  Double Tolerance;
};

TEST(HospitalsTrap, TheBasisDecidesWhatAnIntervalMeans) {
  for (const Reading& row : {Reading{"swings", Basis::Range, 14.583333, 19.881944, .809080, .853710, kSixDigits},
                             Reading{"curves", Basis::Scale, 13.296, 18.127, .822185, .868648, kSixDigits},
                             Reading{"raw units", Basis::Unit, 3, 4.09, .944, 1.0, 5e-4}}) {
    SCOPED_TRACE(row.Name);
    const Results results = Evaluate(HospitalsJudged(HospitalSession(row.Basis, {3, 4.09}, {2, 2.5}, 1.15)));
    EXPECT_NEAR(row.DoctorsLow, results.Equivalences[0].Low, 5e-4);
    EXPECT_NEAR(row.DoctorsHigh, *results.Equivalences[0].High, 5e-4);
    EXPECT_NEAR(row.Min, *results.Units[1].Min, row.Tolerance);
    EXPECT_NEAR(row.Max, *results.Units[1].Max, row.Tolerance);
  }
}

TEST(HospitalsTrap, EfficientUnitsDependOnTheBasis) {
  for (const auto& [basis, expected] :
       {std::pair{Basis::Range, "A"}, std::pair{Basis::Scale, "A"}, std::pair{Basis::Unit, "AB"}}) {
    const Results results = Evaluate(HospitalsJudged(HospitalSession(basis, {3, 4.09}, {2, 2.5}, 1.15)));
    String efficient;
    for (const UnitResult& unit : results.Units) {
      if (*unit.Max > 1.0 - 1e-9) efficient += "ABCDEFGHIJKL"[unit.Unit];
    }
    EXPECT_EQ(expected, efficient);
  }
}

TEST(HospitalsTrap, TheValueFormToo) {
  const auto distanceOfJ = [](Basis basis) {
    const Session session = HospitalSession(basis, {3, 4.09}, {2, 2.5}, 1.15);
    return *Evaluate(HospitalsJudged(session, Form::Value)).Units[9].Distance;
  };
  EXPECT_NEAR(0.255, distanceOfJ(Basis::Range), 5e-4);
  EXPECT_NEAR(0.230, distanceOfJ(Basis::Scale), 5e-4);
}

}  // namespace
}  // namespace Tarnwise::Dea
