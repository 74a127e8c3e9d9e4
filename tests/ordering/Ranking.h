// The ranking by itself, without any control.
#pragma once

#include "ordering/RankOrder.h"
#include "support/Models.h"

#include <gtest/gtest.h>

namespace Tarnwise {

using Integers = std::vector<Integer>;

struct Ranking : RankOrder {
  explicit Ranking(WizardData model) : Data(std::move(model)) { OpenRankOrder(*this, Data); }

  void AddRows(Group g, int count) {
    for (int i = 0; i < count; ++i) AddRank(*this, g);
  }
  void Place(Group g, int att, int rank) { PlaceAttribute(*this, Data, g, att, rank); }
  bool Move(Group g, int att, int rank) { return MoveAttribute(*this, Data, g, att, rank); }
  void Insert(Group g, int rank) {
    CurRank(g) = static_cast<Integer>(rank);
    InsertRank(*this, Data, g);
  }
  void Commit() { CommitRankOrder(*this, Data); }

  // What stands on the ranks of a group, from 1.
  Integers Sizes(Group g) {
    Integers sizes;
    for (int k = 1; k <= RowCount(g); ++k) sizes.push_back(RankSize(g)[k]);
    return sizes;
  }

  // The sums that hold as long as the step is open.
  void ExpectSizesMatchRanks(Group g) {
    for (int k = 1; k <= RowCount(g); ++k) {
      int count = 0;
      for (int i = 0; i < Data.NumAtts(); ++i) count += InGroup(Data, i, g) && AttRank[i] == k ? 1 : 0;
      EXPECT_EQ(count, RankSize(g)[k]) << "rank " << k;
    }
  }

  WizardData Data;
};

inline Ranking Stored(int benefits, int costs, const std::vector<Double>& weights) {
  WizardData model = ModelOf(benefits, costs);
  StoreJudgments(model, kDirectType, 0, benefits, 1.0, weights);
  Ranking ranking(model);
  RankFromSavedWeights(ranking, ranking.Data);
  return ranking;
}

}  // namespace Tarnwise
