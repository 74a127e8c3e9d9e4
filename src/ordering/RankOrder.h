// The ranking of both groups: rank rows, which attribute stands on which row, and what the later steps get of it.
// Rank 1 is the most important; attributes may share a rank; empty rows stay until the commit.
#pragma once

#include "model/Groups.h"

namespace Tarnwise {

// Working state of the ordering step, born and gone with it. AttRank 0 is an attribute not placed yet.
struct RankOrder {
  Integer BRowCount = 1;
  Integer CRowCount = 1;
  Integer BCurRank = 1;  // the selected row's
  Integer CCurRank = 1;
  Array<Integer> BRankSize;  // attributes on each rank, from 1
  Array<Integer> CRankSize;
  Integer BPlacedCount = 0;
  Integer CPlacedCount = 0;
  Integer BLoadedRows = 1;  // row instances beyond which new ones must be created
  Integer CLoadedRows = 1;
  Array<Integer> AttRank;

  Integer& RowCount(Group g) { return g == Group::Benefit ? BRowCount : CRowCount; }
  Integer& CurRank(Group g) { return g == Group::Benefit ? BCurRank : CCurRank; }
  Array<Integer>& RankSize(Group g) { return g == Group::Benefit ? BRankSize : CRankSize; }
  Integer& PlacedCount(Group g) { return g == Group::Benefit ? BPlacedCount : CPlacedCount; }
  Integer& LoadedRows(Group g) { return g == Group::Benefit ? BLoadedRows : CLoadedRows; }
};

// Counts the groups and sizes the arrays, the shared ones of the judgments too. Error 9 when NumAtts passes the model's
// limit.
void OpenRankOrder(RankOrder& order, WizardData& data);

// True when the group has as many rows as attributes: no further row can be made.
bool AtRowLimit(RankOrder& order, const WizardData& data, Group g);

void AddRank(RankOrder& order, Group g);                             // an empty row at the end, selected
void InsertRank(RankOrder& order, const WizardData& data, Group g);  // an empty row at the selected rank
void PlaceAttribute(RankOrder& order, WizardData& data, Group g, int att, int rank);
// False when the attribute stands there already; then nothing changes.
bool MoveAttribute(RankOrder& order, WizardData& data, Group g, int att, int rank);
bool AllPlaced(const RankOrder& order, const WizardData& data);
void ResetOrder(RankOrder& order, WizardData& data, Group g);

// Both lists from SavedWeights: the larger the weight the better the rank, exactly equal ones share a rank. Attributes
// of negative weight stay unplaced.
void RankFromSavedWeights(RankOrder& order, const WizardData& data);

// BOM, COM, AttO, BAttCount, CAttCount: the same order without its empty rows. The working state keeps them.
void CommitRankOrder(RankOrder& order, WizardData& data);

}  // namespace Tarnwise
