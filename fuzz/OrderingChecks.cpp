#include "OrderingChecks.h"

#include "Expect.h"
#include "ordering/frmIniImpOrder.h"
#include "runtime/Text.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr Group kGroups[] = {Group::Benefit, Group::Cost};

struct Rows {
  std::vector<const PictureBox*> ByRank;  // from rank 1
  int Placed = 0;
  int Listed = 0;
};

// All attributes stand in a group, and stored weights place every one of them.
bool IsOrdinary(const WizardData& data) {
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (!data.IsBenefit(i) && !data.IsCost(i)) return false;
    if (data.HasStoredJudgments() && !(data.SavedJudgments.SavedWeights[i] >= 0.0)) return false;
  }
  return true;
}

int MembersOf(const WizardData& data, Group g) {
  int count = 0;
  for (int i = 0; i < data.NumAtts(); ++i) count += InGroup(data, i, g) ? 1 : 0;
  return count;
}

// The ranks on the rows are 1 to their number, each once, and the labels say the same.
Rows RowsOf(const RankControls& c, const String& name, const String& line) {
  Rows rows;
  rows.ByRank.resize(static_cast<std::size_t>(c.picOrder.Count()));
  c.picOrder.Each([&](const PictureBox& row) {
    const auto rank = static_cast<std::size_t>(Val(row.Tag()));
    Expect(rank >= 1 && rank <= rows.ByRank.size() && rows.ByRank[rank - 1] == nullptr, name + ": ranks after " + line);
    rows.ByRank[rank - 1] = &row;
    Expect(c.lblOrderID[row.Index].Tag() == row.Tag(), name + ": a label has another rank after " + line);
    Expect(c.lblOrderID[row.Index].Top == row.Top, name + ": a label stands elsewhere after " + line);
  });
  return rows;
}

void CheckButtons(const RankControls& c, Rows& rows, const String& name, const String& line) {
  c.cmdAttA.Each([&rows](const CommandButton& button) { rows.Listed += button.Visible ? 1 : 0; });
  c.cmdAttB.Each([&](const CommandButton& button) {
    if (!button.Visible) return;
    ++rows.Placed;
    const bool stands = std::any_of(rows.ByRank.begin(), rows.ByRank.end(), [&button](const PictureBox* row) {
      return button.Top >= row->Top + 60.0F && button.Top + button.Height <= row->Top + row->Height;
    });
    Expect(stands, name + ": " + button.FullName() + " stands on no row after " + line);
  });
}

void CheckStage1(const frmIniImpOrder& form, const WizardData& data, const String& line) {
  int listed = 0;
  for (const Group g : kGroups) {
    const RankControls& c = g == Group::Benefit ? form.BRank : form.CRank;
    const String name = g == Group::Benefit ? "benefit rows" : "cost rows";
    Rows rows = RowsOf(c, name, line);
    for (std::size_t k = 1; k < rows.ByRank.size(); ++k) {
      Expect(rows.ByRank[k - 1]->Top < rows.ByRank[k]->Top, name + ": not from top to bottom after " + line);
    }
    CheckButtons(c, rows, name, line);
    if (IsOrdinary(data)) Expect(rows.Placed + rows.Listed == MembersOf(data, g), name + ": lost one after " + line);
    listed += rows.Listed;
  }
  if (!IsOrdinary(data)) return;
  Expect(!form.cmdNext.Enabled || listed == 0, "Next is on, and not all are placed, after " + line);
  // A Reset switches Next off, of a group without attributes too; only the next placing switches it on again.
  const bool resetMatters = MembersOf(data, Group::Benefit) > 0 && MembersOf(data, Group::Cost) > 0;
  if (resetMatters) Expect(form.cmdNext.Enabled || listed > 0, "Next is off, and all are placed, after " + line);
}

void CheckRanking(const WizardData& data, Group g, const String& line) {
  const Array<Integer>& sizes = g == Group::Benefit ? data.BOM : data.COM;
  const int ranks = g == Group::Benefit ? data.BAttCount : data.CAttCount;
  Expect(sizes.Count() == ranks + 1 && sizes[0] == 0, "the rank sizes have other bounds after " + line);
  int sum = 0;
  for (int rank = 1; rank <= ranks; ++rank) {
    int count = 0;
    for (int i = 0; i < data.NumAtts(); ++i) count += InGroup(data, i, g) && data.AttO[i] == rank ? 1 : 0;
    Expect(sizes[rank] == count && count > 0, "a rank's size is not the number of its attributes after " + line);
    sum += count;
  }
  if (IsOrdinary(data)) Expect(sum == MembersOf(data, g), "the ranks do not add up to the group after " + line);
}

}  // namespace

void CheckOrderingStep(const frmIniImpOrder& form, const WizardData& data, const String& line) {
  if (form.Stage == 0) {
    CheckStage1(form, data, line);
  } else {
    for (const Group g : kGroups) CheckRanking(data, g, line);
  }
}

}  // namespace Tarnwise
