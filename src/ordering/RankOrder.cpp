#include "ordering/RankOrder.h"

#include "runtime/Numbers.h"

#include <algorithm>

namespace Tarnwise {

namespace {

void AllocateRankSize(RankOrder& order, const WizardData& data, Group g) {
  // Room for the second row that a Reset allows in a group of one.
  order.RankSize(g).Allocate(GroupSize(data, g) + 3);
}

Integer CountGroup(const WizardData& data, Group g) {
  int count = 0;
  for (int i = 0; i < data.NumAtts(); ++i) count += InGroup(data, i, g) ? 1 : 0;
  return CheckedInteger(count);
}

void RankGroupFromWeights(RankOrder& order, const WizardData& data, Group g, Array<Double>& left) {
  const int n = data.NumAtts();
  Integer& rows = order.RowCount(g);
  rows = 0;
  for (int t = 1; t <= n; ++t) {
    Double largest = 0.0;
    for (int i = 0; i < n; ++i) {
      if (InGroup(data, i, g)) largest = std::max(largest, left[i]);
    }
    int found = 0;
    for (int i = 0; i < n; ++i) {
      if (!InGroup(data, i, g) || left[i] != largest) continue;
      order.AttRank[i] = CheckedInteger(t);
      left[i] = -1.0;
      ++found;
    }
    if (found > 0) {
      rows = CheckedInteger(rows + 1);
      order.RankSize(g)[rows] = CheckedInteger(found);
    }
  }
  if (rows == 0) rows = 1;  // a list always has a row, if an empty one
}

// Takes the empty rows out of one group's copies; returns the number of rows left.
Integer Compact(const WizardData& data, Group g, int rows, Array<Integer>& size, Array<Integer>& rank) {
  int empty = 0;
  for (int k = 1; k <= rows; ++k) empty += size[k] == 0 ? 1 : 0;
  for (int pass = 0; pass < empty; ++pass) {
    for (int k = 1; k <= rows; ++k) {
      if (size[k] != 0) continue;
      for (int j = k; j < rows; ++j) {
        size[j] = size[j + 1];
        size[j + 1] = 0;
      }
      for (int i = 0; i < data.NumAtts(); ++i) {
        if (InGroup(data, i, g) && rank[i] > k) --rank[i];
      }
    }
  }
  return CheckedInteger(rows - empty);
}

void CommitGroup(RankOrder& order, WizardData& data, Group g, Array<Integer>& rank) {
  Array<Integer> size = order.RankSize(g);
  const Integer count = Compact(data, g, order.RowCount(g), size, rank);
  (g == Group::Benefit ? data.BAttCount : data.CAttCount) = count;
  Array<Integer>& sizes = g == Group::Benefit ? data.BOM : data.COM;
  sizes.Allocate(count + 1);
  for (int k = 1; k <= count; ++k) sizes[k] = size[k];
}

}  // namespace

void OpenRankOrder(RankOrder& order, WizardData& data) {
  order = RankOrder();
  data.BRankCount = CountGroup(data, Group::Benefit);
  data.CRankCount = CountGroup(data, Group::Cost);
  if (data.BRankCount == 0) data.BRefAttID = 0;
  if (data.CRankCount == 0) data.CRefAttID = 0;
  AllocateRankSize(order, data, Group::Benefit);
  AllocateRankSize(order, data, Group::Cost);
  const int n = data.NumAtts();
  order.AttRank.Allocate(n);
  data.AttO.Allocate(n);
  data.WeightsL.Allocate(n);
  data.Weights.Allocate(n);
  data.WeightsH.Allocate(n);
  data.WeightDone.Allocate(n);
}

bool AtRowLimit(RankOrder& order, const WizardData& data, Group g) { return order.RowCount(g) >= GroupSize(data, g); }

void AddRank(RankOrder& order, Group g) {
  Integer& rows = order.RowCount(g);
  rows = CheckedInteger(rows + 1);
  order.RankSize(g)[rows] = 0;
  order.CurRank(g) = rows;
}

void InsertRank(RankOrder& order, const WizardData& data, Group g) {
  const int c = order.CurRank(g);
  Integer& rows = order.RowCount(g);
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (InGroup(data, i, g) && order.AttRank[i] >= c) ++order.AttRank[i];
  }
  Array<Integer>& size = order.RankSize(g);
  for (int k = rows + 1; k >= c + 1; --k) size[k] = size[k - 1];
  size[c] = 0;
  rows = CheckedInteger(rows + 1);
}

void PlaceAttribute(RankOrder& order, WizardData& data, Group g, int att, int rank) {
  data.OrderChanged = true;
  order.AttRank[att] = CheckedInteger(rank);
  ++order.RankSize(g)[rank];
  ++order.PlacedCount(g);
  order.CurRank(g) = CheckedInteger(rank);
}

bool MoveAttribute(RankOrder& order, WizardData& data, Group g, int att, int rank) {
  const int old = order.AttRank[att];
  if (old == rank) return false;
  data.OrderChanged = true;
  --order.RankSize(g)[old];
  order.AttRank[att] = CheckedInteger(rank);
  ++order.RankSize(g)[rank];
  order.CurRank(g) = CheckedInteger(rank);
  return true;
}

bool AllPlaced(const RankOrder& order, const WizardData& data) {
  return order.BPlacedCount + order.CPlacedCount == data.NumAtts();
}

void ResetOrder(RankOrder& order, WizardData& data, Group g) {
  order.RowCount(g) = 1;
  AllocateRankSize(order, data, g);
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (!InGroup(data, i, g)) continue;
    order.AttRank[i] = 0;
    data.AttO[i] = 0;
  }
  order.PlacedCount(g) = 0;
  order.LoadedRows(g) = 1;
  order.CurRank(g) = 1;
}

void RankFromSavedWeights(RankOrder& order, const WizardData& data) {
  Array<Double> left = data.SavedJudgments.SavedWeights;
  RankGroupFromWeights(order, data, Group::Benefit, left);
  RankGroupFromWeights(order, data, Group::Cost, left);
}

void CommitRankOrder(RankOrder& order, WizardData& data) {
  Array<Integer> rank = order.AttRank;
  CommitGroup(order, data, Group::Benefit, rank);
  CommitGroup(order, data, Group::Cost, rank);
  data.AttO = rank;
}

}  // namespace Tarnwise
