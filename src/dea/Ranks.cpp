#include "dea/Ranks.h"
#include "dea/Vectors.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Tarnwise::Dea {

namespace {

constexpr int kScoresDrawn = 10000000;
constexpr int kMostDraws = 10000;
constexpr Double kSameScore = 1e-12;

std::vector<int> BestFirst(const std::vector<Double>& scores) {
  std::vector<int> order(scores.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](int a, int b) { return scores[At(a)] > scores[At(b)]; });
  return order;
}

void TakeRanks(const std::vector<std::pair<Double, int>>& bestFirst, std::vector<RankRange>& ranks) {
  std::size_t better = 0;
  for (const auto& [score, unit] : bestFirst) {
    const Double above = score + kSameScore * std::fabs(score);
    while (bestFirst[better].first > above) ++better;
    RankRange& range = ranks[At(unit)];
    const int rank = static_cast<int>(better) + 1;
    range.Best = range.Best == 0 ? rank : std::min(range.Best, rank);
    range.Worst = std::max(range.Worst, rank);
  }
}

}  // namespace

std::vector<RankRange> SureRanks(const std::vector<Double>& typical,
                                 const std::function<bool(int winner, int loser)>& dominates, const Watch& watch) {
  const int units = static_cast<int>(typical.size());
  std::vector<RankRange> ranks(typical.size(), RankRange{1, units});
  const std::vector<int> order = BestFirst(typical);
  for (std::size_t a = 0; a < order.size(); ++a) {
    watch.Report(1.0 - std::pow(1.0 - static_cast<Double>(a) / units, 2.0));
    for (std::size_t b = a + 1; b < order.size(); ++b) {
      if (!dominates(order[a], order[b])) continue;
      ++ranks[At(order[b])].Best;
      --ranks[At(order[a])].Worst;
    }
  }
  return ranks;
}

int DrawsFor(int units) { return std::min(kMostDraws, std::max(1, kScoresDrawn / units)); }

std::vector<RankRange> SeenRanks(int units, int draws, const std::function<void(std::vector<Double>& scores)>& draw,
                                 const Watch& watch) {
  std::vector<RankRange> ranks(At(units));
  std::vector<Double> scores(At(units));
  std::vector<std::pair<Double, int>> bestFirst(At(units));
  for (int d = 0; d < draws; ++d) {
    watch.Report(static_cast<Double>(d) / draws);
    draw(scores);
    for (int k = 0; k < units; ++k) bestFirst[At(k)] = {scores[At(k)], k};
    std::sort(bestFirst.begin(), bestFirst.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    TakeRanks(bestFirst, ranks);
  }
  return ranks;
}

}  // namespace Tarnwise::Dea
