// The wheel, whatever the toolkit.
#include "view/Bench.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Wheeling : Bench {
  Wheeling() {
    Bar().Max = 1000;
    Bar().SmallChange = 100;
    Bar().Change = [this] { Notes.push_back(std::to_string(Bar().Value())); };
  }
  VScrollBar& Bar() const { return On->vsrBar; }
};

TEST(Wheel, TurnsTheBarItIsOverThreeSmallChangesANotch) {
  Wheeling bench;
  EXPECT_TRUE(Input::Wheel(bench.Bar(), -120));
  EXPECT_TRUE(Input::Wheel(bench.Bar(), -240));
  EXPECT_TRUE(Input::Wheel(bench.Bar(), 120));
  EXPECT_TRUE(Input::Wheel(bench.Bar(), -1200));
  EXPECT_EQ(bench.Notes, (Lines{"300", "900", "600", "1000"}));
}

TEST(Wheel, TurnsTheBarOfTheNearestViewport) {
  Wheeling bench;
  VScrollBar own(*bench.On, &bench.On->picViewport, "own");
  own.Max = 1000;
  EXPECT_TRUE(Input::Wheel(bench.On->picRow[0], -120));
  EXPECT_EQ(own.Value, 360);
  own.Enabled = false;
  EXPECT_TRUE(Input::Wheel(bench.On->picRow[0], -120));
  EXPECT_EQ(own.Value, 360);
  EXPECT_EQ(bench.Notes, Lines{"300"}) << "one that is disabled is none";
  EXPECT_TRUE(Input::Wheel(own, -120));
  EXPECT_EQ(bench.Notes, Lines{"300"}) << "but over it nothing else turns";
}

TEST(Wheel, AddsUpPartsOfANotchInOneDirection) {
  Wheeling bench;
  for (const int by : {-30, -30, -30, -30}) Input::Wheel(bench.Bar(), by);
  EXPECT_EQ(bench.Notes, (Lines{"100", "200", "300"}));
  bench.TakeNotes();
  for (const int by : {-30, 30, -30, 0, -30}) Input::Wheel(bench.Bar(), by);
  EXPECT_EQ(bench.Notes, Lines{});
  Input::Wheel(bench.Bar(), -10);
  EXPECT_EQ(bench.Notes, Lines{"400"});
}

TEST(Wheel, IsTheListsAndTheGridsOwn) {
  Wheeling bench;
  Grid grid(*bench.On, &bench.On->picPanel[0], "grid");
  EXPECT_FALSE(Input::Wheel(bench.On->lstRows, -120));
  EXPECT_FALSE(Input::Wheel(grid, -120));
  EXPECT_EQ(bench.Notes, Lines{});
}

TEST(Wheel, WithoutABarTurnsNothingAndChoosesNothing) {
  Wheeling bench;
  bench.Bar().Visible = false;
  EXPECT_TRUE(Input::Wheel(bench.On->cmdGo, -120));
  EXPECT_EQ(bench.Notes, Lines{});
}

}  // namespace
}  // namespace Tarnwise
