// Curves whose points rise, and what they do between them.
#include "curves/Akima.h"
#include "modelfiles/ModelJson.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Tarnwise {
namespace {

using Points = std::vector<std::pair<double, double>>;

std::vector<String> WarningsOf(const Points& points) {
  Json curve = Json::array();
  for (const auto& [x, y] : points) curve.push_back({x, y});
  const Json attribute = {{"name", "Beds"},
                          {"orientation", "benefit"},
                          {"scoreMin", points.front().first},
                          {"scoreMax", points.back().first},
                          {"worst", points.front().first},
                          {"best", points.back().first},
                          {"curve", curve}};
  return ModelWarnings(ModelFromJson({{"attributes", {attribute}}, {"alternatives", Json::array()}}));
}

// The largest fall on the way from one point to the next, by small steps.
double FallBetween(const Points& points, std::size_t from) {
  Curve curve;
  curve.N = static_cast<int>(points.size());
  for (std::size_t k = 0; k < points.size(); ++k) {
    curve.X[k] = points[k].first;
    curve.Y[k] = points[k].second;
  }
  double highest = -1e9;
  double fall = 0.0;
  for (int step = 0; step <= 10000; ++step) {
    const double x = points[from].first + (points[from + 1].first - points[from].first) * step / 10000.0;
    const double y = AkimaInterpolate(curve, -1, x)[4];
    highest = std::fmax(highest, y);
    fall = std::fmax(fall, highest - y);
  }
  return fall;
}

TEST(CurveWarnings, ACurveThatFallsBetweenRisingPointsIsNoticed) {
  const Points points{{0, 0}, {25, 0.02}, {50, 0.04}, {75, 0.9}, {100, 1}};
  EXPECT_EQ(WarningsOf(points),
            (std::vector<String>{"curve of attribute 0 (Beds) falls between its points at 75 and 100, by 0.049976: "
                                 "another point there, or less of a bend, helps"}));
  EXPECT_NEAR(FallBetween(points, 3), 0.049976, 1e-6);
}

TEST(CurveWarnings, EveryIntervalThatFallsIsNamedAndNoOther) {
  for (const Points& points :
       std::vector<Points>{{{0, 0}, {1, 0}, {2, 0.1}, {3, 1}, {4, 1}},
                           {{0, 0}, {10, 0.8}, {90, 0.85}, {100, 1}},
                           {{0, 0}, {40, 0.01}, {50, 0.99}, {100, 1}},
                           {{0, 0}, {20, 0.1}, {40, 0.15}, {60, 0.2}, {62, 0.8}, {100, 1}},
                           {{-3, 0}, {-2.5, 0.25}, {1.7, 0.3}, {2, 0.7}, {5, 0.71}, {9, 0.72}, {9.5, 1}}}) {
    const std::vector<String> warnings = WarningsOf(points);
    std::size_t named = 0;
    for (std::size_t k = 0; k + 1 < points.size(); ++k) named += FallBetween(points, k) > 1e-6 ? 1 : 0;
    EXPECT_EQ(warnings.size(), named) << points[1].first;
  }
}

TEST(CurveWarnings, StraightAndGentlyBentCurvesHaveNone) {
  for (const Points& points : std::vector<Points>{{{0, 0}, {100, 1}},
                                                  {{0, 0}, {50, 0.6}, {100, 1}},
                                                  {{15, 0}, {24, 0.18}, {33, 0.37}, {42, 0.57}, {51, 0.78}, {60, 1}},
                                                  {{0, 0}, {1, 0.25}, {2, 0.5}, {3, 0.75}, {4, 1}},
                                                  {{0, 0.5}, {50, 0.5}, {100, 0.5}}}) {
    EXPECT_EQ(WarningsOf(points), std::vector<String>()) << points.size();
  }
}

TEST(CurveWarnings, ScoresOfAnySizeAreLookedAt) {
  for (const double size : {0x1p-60, 0x1p-30, 0x1p20, 0x1p30}) {
    EXPECT_EQ(WarningsOf({{0, 0}, {25 * size, 0.02}, {50 * size, 0.04}, {75 * size, 0.9}, {100 * size, 1}}).size(), 1U)
        << size;
  }
}

}  // namespace
}  // namespace Tarnwise
