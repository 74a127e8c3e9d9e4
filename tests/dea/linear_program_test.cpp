// Linear programs and the library behind them: answers, changes, faults, threads.
#include "dea/LinearProgram.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

namespace Tarnwise::Dea {
namespace {

// Minimise 3x + 2y with x + y >= 4, x + 3y >= 6: x = 3, y = 1.
struct SmallProgram : testing::Test {
  SmallProgram() : Program({RowKind::AtLeast, RowKind::AtLeast}) {
    Program.AddColumn(3.0, {1.0, 1.0}, Domain::NotNegative);
    Program.AddColumn(2.5, {1.0, 3.0}, Domain::NotNegative);
    Program.SetRightSide({4.0, 6.0});
  }
  Outcome Solve(Method method = Method::Primal) { return Program.Solve(method, {}); }
  LinearProgram Program;
};

TEST_F(SmallProgram, HasValuesPricesAndAnObjective) {
  ASSERT_EQ(Outcome::Optimal, Solve());
  EXPECT_NEAR(0.0, Program.Values()[0], 1e-15);
  EXPECT_DOUBLE_EQ(4.0, Program.Values()[1]);
  EXPECT_DOUBLE_EQ(10.0, Program.Objective());
  EXPECT_DOUBLE_EQ(2.5, Program.Prices()[0]);
  EXPECT_DOUBLE_EQ(0.0, Program.Prices()[1]);
}

TEST_F(SmallProgram, GoesOnAfterAnotherRightSide) {
  Solve();
  Program.SetRightSide({4.0, 30.0});
  ASSERT_EQ(Outcome::Optimal, Solve(Method::Dual));
  EXPECT_DOUBLE_EQ(25.0, Program.Objective());
}

TEST_F(SmallProgram, GoesOnWithAnotherColumn) {
  Solve();
  Program.AddColumn(0.3, {0.37, 0.37}, Domain::NotNegative);
  ASSERT_EQ(Outcome::Optimal, Solve());
  EXPECT_NEAR(0.3 * 6.0 / 0.37, Program.Objective(), 1e-13);
}

TEST_F(SmallProgram, AZeroDomainTakesAColumnOutAndLetsItInAgain) {
  Program.SetDomain(1, Domain::Zero);
  Solve();
  EXPECT_DOUBLE_EQ(18.0, Program.Objective());
  Program.SetDomain(1, Domain::NotNegative);
  Solve();
  EXPECT_DOUBLE_EQ(10.0, Program.Objective());
}

TEST_F(SmallProgram, WithoutSolutionIsInfeasible) {
  Program.SetDomain(0, Domain::Zero);
  Program.SetDomain(1, Domain::Zero);
  EXPECT_EQ(Outcome::Infeasible, Solve());
}

TEST_F(SmallProgram, WithoutAnEndIsAFault) {
  Program.AddColumn(-1.0, {1.0, 1.0}, Domain::NotNegative);
  EXPECT_THROW(Solve(), SolverFault);
}

TEST_F(SmallProgram, EqualAndAtMostRows) {
  LinearProgram program({RowKind::Equal, RowKind::AtMost});
  program.AddColumn(1.0, {1.0, 1.0}, Domain::NotNegative);
  program.AddColumn(2.0, {1.0, 0.0}, Domain::NotNegative);
  program.SetRightSide({3.17, 1.37});
  ASSERT_EQ(Outcome::Optimal, program.Solve(Method::Primal, {}));
  EXPECT_NEAR(1.37 + 2.0 * 1.8, program.Objective(), 1e-14);
  EXPECT_NEAR(2.0, program.Prices()[0], 1e-14);
  EXPECT_NEAR(-1.0, program.Prices()[1], 1e-14);
}

TEST_F(SmallProgram, NumbersThatAreNotFiniteAreRefusedBeforeTheSolverSeesThem) {
  for (const Double bad : {std::numeric_limits<Double>::quiet_NaN(), std::numeric_limits<Double>::infinity()}) {
    EXPECT_THROW(Program.AddColumn(1.0, {bad, 1.0}, Domain::NotNegative), SolverFault);
    EXPECT_THROW(Program.AddColumn(bad, {1.0, 1.0}, Domain::NotNegative), SolverFault);
    EXPECT_THROW(Program.SetRightSide({1.0, bad}), SolverFault);
    EXPECT_THROW(Program.SetEntries(0, {bad, 1.0}), SolverFault);
    EXPECT_THROW(Program.SetCost(0, bad), SolverFault);
  }
}

// What is small beside the solver's zero of 1e-10 counts all the same.
TEST(LinearProgram, RowsOfVerySmallNumbersAreMet) {
  LinearProgram program({RowKind::AtLeast, RowKind::AtLeast});
  program.AddColumn(1.0, {1.0, 0.0}, Domain::NotNegative);
  program.AddColumn(1.0, {0.0, 1e-12}, Domain::NotNegative);
  program.SetRightSide({1.0, 3e-12});
  ASSERT_EQ(Outcome::Optimal, program.Solve(Method::Primal, {}));
  EXPECT_NEAR(4.0, program.Objective(), 1e-12);
}

void AskForAColumnThatIsNotThere() {
  LinearProgram program({RowKind::AtLeast});
  program.StartFrom({{}, {7}});
}

TEST(SolverFaults, AreExceptionsThatSayWhatHappened) {
  try {
    AskForAColumnThatIsNotThere();
    FAIL() << "no exception";
  } catch (const SolverFault& fault) {
    EXPECT_NE(String::npos, String(fault.what()).find("column number out of range")) << fault.what();
  }
}

TEST(SolverFaults, PrintNothing) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_THROW(AskForAColumnThatIsNotThere(), SolverFault);
  EXPECT_EQ("", testing::internal::GetCapturedStdout());
  EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

TEST(SolverFaults, AreToldAgainAndAgain) {
  for (int k = 0; k < 3; ++k) EXPECT_THROW(AskForAColumnThatIsNotThere(), SolverFault);
}

TEST_F(SmallProgram, IsLostByAFaultAtAnotherOneAndSaysSo) {
  EXPECT_THROW(AskForAColumnThatIsNotThere(), SolverFault);
  try {
    Solve();
    FAIL() << "no exception";
  } catch (const SolverFault& fault) {
    EXPECT_NE(String::npos, String(fault.what()).find("lost")) << fault.what();
  }
  LinearProgram other({RowKind::AtLeast});
  other.AddColumn(1.0, {2.0}, Domain::NotNegative);
  other.SetRightSide({3.0});
  ASSERT_EQ(Outcome::Optimal, other.Solve(Method::Primal, {}));
  EXPECT_DOUBLE_EQ(1.5, other.Objective());
}

TEST_F(SmallProgram, OutlivesAFaultOnAnotherThread) {
  std::thread([] { EXPECT_THROW(AskForAColumnThatIsNotThere(), SolverFault); }).join();
  ASSERT_EQ(Outcome::Optimal, Solve());
  EXPECT_DOUBLE_EQ(10.0, Program.Objective());
}

TEST(LinearProgram, SolvingPrintsNothing) {
  testing::internal::CaptureStdout();
  LinearProgram program({RowKind::AtLeast});
  program.AddColumn(1.0, {2.0}, Domain::NotNegative);
  program.SetRightSide({3.0});
  program.Solve(Method::Primal, {});
  EXPECT_EQ("", testing::internal::GetCapturedStdout());
}

TEST_F(SmallProgram, ACancelIsSeenBeforeTheNextSlice) {
  const std::atomic<bool> cancel{true};
  Watch watch;
  watch.Cancel = &cancel;
  EXPECT_THROW(Program.Solve(Method::Primal, watch), Cancelled);
  ASSERT_EQ(Outcome::Optimal, Solve());
  EXPECT_DOUBLE_EQ(10.0, Program.Objective());
}

}  // namespace
}  // namespace Tarnwise::Dea
