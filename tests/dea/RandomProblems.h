// Random problems of many kinds, some of them as awkward as data can be.
#pragma once

#include "Problems.h"

#include <random>

namespace Tarnwise::Dea {

class Chance {
 public:
  explicit Chance(std::uint64_t seed) : engine_(seed) {}
  Double Real(Double from, Double to) { return from + (to - from) * static_cast<Double>(engine_() >> 11U) * 0x1p-53; }
  Double InLog(Double from, Double to) { return std::exp(Real(std::log(from), std::log(to))); }
  int Whole(int from, int to) { return from + static_cast<int>(engine_() % static_cast<unsigned>(to - from + 1)); }
  bool OneIn(int n) { return Whole(1, n) == 1; }

 private:
  std::mt19937_64 engine_;
};

// What a problem's numbers are like.
enum class Kind {
  Plain,    // 10 to 20
  Zeros,    // a fifth of them zero
  Ties,     // whole numbers 1 to 4
  Doubles,  // units again, and twice as large
  Lean,     // on a frontier, or within 0.01 of it
  Sizes,    // units of sizes 0.001 to 1000
  Columns,  // columns of sizes 1e-9 to 1e9
  Spread,   // numbers from 0.001 to 1000 each
  Missing,  // some of them missing
};
constexpr int kKinds = 9;
String NameOf(Kind kind);

struct Extent {
  int MostUnits = 12;
  int MostPerSide = 4;
};

// How many problems of each kind there are: the number in TARNWISE_ROUNDS, else the one given.
int Rounds(int otherwise);

// Another one in each run of a property.
Chance AnyChance();

// With a session three times out of four: intervals on any basis, points, one bound only, none; curves and snapshots.
Problem RandomProblem(Chance& chance, Kind kind, const Extent& extent);

}  // namespace Tarnwise::Dea
