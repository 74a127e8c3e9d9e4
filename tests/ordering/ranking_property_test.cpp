// The rank orders under random operations.
#include "ordering/RankOrder.h"
#include "support/Random.h"

namespace Tarnwise {
namespace {

constexpr Group kGroups[] = {Group::Benefit, Group::Cost};

struct RandomRanking {
  WizardData Data;
  RankOrder Order;

  RandomRanking() : Data(ModelOf(Whole(1, 7), Whole(1, 7))) { OpenRankOrder(Order, Data); }

  // What a user can do with one attribute or one list; rows only up to their limit.
  void Step() {
    const int att = Whole(0, Data.NumAtts() - 1);
    const Group g = Data.IsBenefit(att) ? Group::Benefit : Group::Cost;
    const int rank = Whole(1, Order.RowCount(g));
    switch (Whole(0, 9)) {
      case 0:
      case 1:
        if (!AtRowLimit(Order, Data, g)) AddRank(Order, g);
        break;
      case 2:
      case 3:
        if (!AtRowLimit(Order, Data, g)) InsertRank(Order, Data, g);
        break;
      case 4:
        if (Whole(0, 3) == 0) ResetOrder(Order, Data, g);
        break;
      case 5: Order.CurRank(g) = static_cast<Integer>(rank); break;
      default: PlaceOrMove(g, att, rank); break;
    }
  }

  void PlaceOrMove(Group g, int att, int rank) {
    if (Order.AttRank[att] == 0) {
      PlaceAttribute(Order, Data, g, att, rank);
    } else {
      MoveAttribute(Order, Data, g, att, rank);
    }
  }

  void PlaceAll() {
    for (int i = 0; i < Data.NumAtts(); ++i) {
      const Group g = Data.IsBenefit(i) ? Group::Benefit : Group::Cost;
      if (Order.AttRank[i] == 0) PlaceAttribute(Order, Data, g, i, Whole(1, Order.RowCount(g)));
    }
  }

  void Work() {
    const int steps = Whole(0, 40);
    for (int k = 0; k < steps; ++k) Step();
  }
};

int CountOn(const RandomRanking& r, Group g, int rank) {
  int count = 0;
  for (int i = 0; i < r.Data.NumAtts(); ++i) count += InGroup(r.Data, i, g) && r.Order.AttRank[i] == rank ? 1 : 0;
  return count;
}

RC_GTEST_PROP(RankingProperty, SizesAddUpToWhatIsPlaced, ()) {
  RandomRanking r;
  r.Work();
  for (const Group g : kGroups) {
    int sum = 0;
    for (int rank = 1; rank <= r.Order.RowCount(g); ++rank) {
      RC_ASSERT(r.Order.RankSize(g)[rank] == CountOn(r, g, rank));
      sum += r.Order.RankSize(g)[rank];
    }
    RC_ASSERT(sum == r.Order.PlacedCount(g));
    RC_ASSERT(sum == GroupSize(r.Data, g) - CountOn(r, g, 0));
    RC_ASSERT(r.Order.RowCount(g) <= std::max<int>(1, GroupSize(r.Data, g)));
    RC_ASSERT(r.Order.CurRank(g) >= 1 && r.Order.CurRank(g) <= r.Order.RowCount(g));
  }
}

RC_GTEST_PROP(RankingProperty, TheCommitKeepsOrderAndTiesAndLeavesNoGap, ()) {
  RandomRanking r;
  r.Work();
  r.PlaceAll();
  CommitRankOrder(r.Order, r.Data);
  const WizardData& d = r.Data;
  for (int i = 0; i < d.NumAtts(); ++i) {
    for (int k = 0; k < d.NumAtts(); ++k) {
      if (d.IsBenefit(i) != d.IsBenefit(k)) continue;
      RC_ASSERT((d.AttO[i] < d.AttO[k]) == (r.Order.AttRank[i] < r.Order.AttRank[k]));
    }
  }
  for (const Group g : kGroups) {
    const Array<Integer>& sizes = g == Group::Benefit ? d.BOM : d.COM;
    int sum = 0;
    for (int rank = 1; rank < sizes.Count(); ++rank) {
      RC_ASSERT(sizes[rank] > 0);
      sum += sizes[rank];
    }
    RC_ASSERT(sum == GroupSize(d, g));
    RC_ASSERT(sizes[0] == 0);
    RC_ASSERT(sizes.Count() == (g == Group::Benefit ? d.BAttCount : d.CAttCount) + 1);
  }
}

RC_GTEST_PROP(RankingProperty, TheCommitLeavesTheWorkingStateAndCanBeRepeated, ()) {
  RandomRanking r;
  r.Work();
  r.PlaceAll();
  const RankOrder before = r.Order;
  CommitRankOrder(r.Order, r.Data);
  const Array<Integer> once = r.Data.AttO;
  CommitRankOrder(r.Order, r.Data);
  RC_ASSERT(r.Data.AttO.Items() == once.Items());
  RC_ASSERT(r.Order.AttRank.Items() == before.AttRank.Items());
  RC_ASSERT(r.Order.BRankSize.Items() == before.BRankSize.Items());
  RC_ASSERT(r.Order.BRowCount == before.BRowCount && r.Order.CRowCount == before.CRowCount);
}

RC_GTEST_PROP(RankingProperty, AnInsertedRowMovesWhatStandsBelowByOne, ()) {
  RandomRanking r;
  r.Work();
  const Group g = kGroups[Whole(0, 1)];
  RC_PRE(!AtRowLimit(r.Order, r.Data, g));
  const RankOrder before = r.Order;
  const int c = r.Order.CurRank(g);
  InsertRank(r.Order, r.Data, g);
  for (int i = 0; i < r.Data.NumAtts(); ++i) {
    const bool moves = InGroup(r.Data, i, g) && before.AttRank[i] >= c;
    RC_ASSERT(r.Order.AttRank[i] == before.AttRank[i] + (moves ? 1 : 0));
  }
  RC_ASSERT(CountOn(r, g, c) == 0);
}

RC_GTEST_PROP(RankingProperty, OnlyAcceptedDropsCountAsAChange, ()) {
  RandomRanking r;
  const int adds = Whole(0, 5);
  for (int k = 0; k < adds; ++k) {
    if (!AtRowLimit(r.Order, r.Data, Group::Benefit)) AddRank(r.Order, Group::Benefit);
    ResetOrder(r.Order, r.Data, Group::Cost);
  }
  RC_ASSERT(!r.Data.OrderChanged);
  PlaceAttribute(r.Order, r.Data, Group::Benefit, 0, 1);
  RC_ASSERT(r.Data.OrderChanged);
  r.Data.OrderChanged = false;
  RC_ASSERT(!MoveAttribute(r.Order, r.Data, Group::Benefit, 0, 1));
  RC_ASSERT(!r.Data.OrderChanged);
}

void StoreWeights(WizardData& data, int steps) {
  for (int i = 0; i < data.NumAtts(); ++i) data.SavedJudgments.SavedWeights[i] = Whole(0, steps) * 0.1;
}

RC_GTEST_PROP(SavedRankingProperty, LargerWeightsRankBetterAndEqualOnesTie, ()) {
  RandomRanking r;
  StoreWeights(r.Data, 6);
  RankFromSavedWeights(r.Order, r.Data);
  const auto& weights = r.Data.SavedJudgments.SavedWeights;
  for (int i = 0; i < r.Data.NumAtts(); ++i) {
    RC_ASSERT(r.Order.AttRank[i] >= 1);
    for (int k = 0; k < r.Data.NumAtts(); ++k) {
      if (r.Data.IsBenefit(i) != r.Data.IsBenefit(k)) continue;
      RC_ASSERT((weights[i] > weights[k]) == (r.Order.AttRank[i] < r.Order.AttRank[k]));
    }
  }
  for (const Group g : kGroups) {
    for (int rank = 1; rank <= r.Order.RowCount(g); ++rank) {
      RC_ASSERT(CountOn(r, g, rank) > 0);
      RC_ASSERT(r.Order.RankSize(g)[rank] == CountOn(r, g, rank));
    }
  }
}

RC_GTEST_PROP(SavedRankingProperty, DoesNotDependOnTheUnitOfTheWeights, ()) {
  RandomRanking r;
  StoreWeights(r.Data, 20);
  RankFromSavedWeights(r.Order, r.Data);
  RandomRanking scaled;
  scaled.Data = r.Data;
  for (int i = 0; i < r.Data.NumAtts(); ++i) scaled.Data.SavedJudgments.SavedWeights[i] *= 8.0;
  OpenRankOrder(scaled.Order, scaled.Data);
  RankFromSavedWeights(scaled.Order, scaled.Data);
  RC_ASSERT(scaled.Order.AttRank.Items() == r.Order.AttRank.Items());
}

RC_GTEST_PROP(SavedRankingProperty, ANegativeWeightIsNeverRanked, ()) {
  RandomRanking r;
  StoreWeights(r.Data, 6);
  const int negative = Whole(0, r.Data.NumAtts() - 1);
  r.Data.SavedJudgments.SavedWeights[negative] = -Between(0.001, 5.0);
  RankFromSavedWeights(r.Order, r.Data);
  for (int i = 0; i < r.Data.NumAtts(); ++i) RC_ASSERT((r.Order.AttRank[i] == 0) == (i == negative));
}

}  // namespace
}  // namespace Tarnwise
