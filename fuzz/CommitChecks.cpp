#include "CommitChecks.h"

#include "Expect.h"
#include "curves/mdGraphs.h"
#include "runtime/Text.h"
#include "tradeoffs/TradeOffModel.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

bool Same(Double a, Double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

bool Same(const Interval& a, const Interval& b) {
  return Same(a.Low, b.Low) && Same(a.Mid, b.Mid) && Same(a.High, b.High);
}

bool IsOrdered(const Interval& i) { return i.Low <= i.Mid && i.Mid <= i.High; }

const Interval& At(const std::vector<Interval>& all, int i) { return all[static_cast<std::size_t>(i)]; }

bool WasDone(const Commit& c, int i) { return c.DoneBefore[static_cast<std::size_t>(i)]; }

bool IsPeer(const Commit& c, int k) {
  const WizardData& d = c.Data;
  if (d.AttO[k] != d.AttO[c.Target] || IsReference(d, k)) return false;
  if (!c.ByText) return d.Orientation(k) == d.Orientation(c.Target);
  return d.AttributeList.AttOrientation[k] == d.AttributeList.AttOrientation[c.Target];
}

// A judged attribute between the target and k, or on k's rank before it, keeps the push from k.
bool IsShielded(const Commit& c, int k) {
  const WizardData& d = c.Data;
  const int own = d.AttO[c.Target];
  const int far = d.AttO[k];
  for (int i = 0; i < d.NumAtts(); ++i) {
    if (!WasDone(c, i) || d.Orientation(i) != d.Orientation(c.Target)) continue;
    const int rank = d.AttO[i];
    const bool between = far < own ? rank > far && rank < own : rank < far && rank > own;
    if (between || (rank == far && i <= k)) return true;
  }
  return false;
}

bool IsReached(const Commit& c, int k) {
  const WizardData& d = c.Data;
  return d.Orientation(k) == d.Orientation(c.Target) && d.AttO[k] != d.AttO[c.Target] && d.AttO[k] >= 1 &&
         !IsShielded(c, k);
}

void CheckPushed(const Commit& c, int k, const String& name) {
  const Interval& t = At(c.Now, c.Target);
  const Interval& before = At(c.Before, k);
  const Interval& now = At(c.Now, k);
  if (c.Data.AttO[k] < c.Data.AttO[c.Target]) {
    Expect(now.Low == std::max(before.Low, t.High), name + " does not start where the target ends");
    Expect(now.High == (before.Low < t.High ? std::max(before.High, t.High) : before.High), name + " has another end");
  } else {
    Expect(now.High == std::min(before.High, t.Low), name + " does not end where the target starts");
    Expect(now.Low == (before.High > t.Low ? std::min(before.Low, t.Low) : before.Low), name + " has another start");
  }
}

void CheckOthers(const Commit& c) {
  const WizardData& d = c.Data;
  for (int k = 0; k < d.NumAtts(); ++k) {
    const String name = "attribute " + std::to_string(k) + " after the commit of " + std::to_string(c.Target);
    Expect(!WasDone(c, k) || d.WeightDone[k], name + ": no longer judged");
    if (k == c.Target || IsPeer(c, k)) {
      Expect(d.WeightDone[k], name + ": not judged");
      Expect(Same(At(c.Now, k), At(c.Now, c.Target)), name + ": another interval than its rank's");
      continue;
    }
    Expect(d.WeightDone[k] == WasDone(c, k), name + ": judged by another's commit");
    if (IsReached(c, k)) {
      CheckPushed(c, k, name);
    } else {
      Expect(Same(At(c.Now, k), At(c.Before, k)), name + ": changed, and should be out of reach");
    }
    Expect(IsOrdered(At(c.Now, k)) || !IsOrdered(At(c.Before, k)) || !IsOrdered(At(c.Now, c.Target)),
           name + ": out of order");
  }
}

bool IsBetween(Single x, Single a, Single b) { return std::min(a, b) <= x && x <= std::max(a, b); }

// On a rising curve a score between two others has a value between theirs.
bool Rises(const WizardData& data, int att) {
  const Double low = data.AttValueData.ScoreMin[att];
  const Double range = data.AttValueData.ScoreMax[att] - low;
  Double last = -1.0;
  for (int k = -20; k <= 120; ++k) {
    const Double value = GetAttValue(data, att, static_cast<Single>(low + range * k / 100.0));
    if (value < last) return false;
    last = value;
  }
  return true;
}

// The middle is the ratio at A itself. It lies within the interval when A lies within its corners; corners that are set
// from a stored interval need not hold A between them, and those of the host neither.
bool MiddleIsPromised(const Commit& c, int reference) {
  const ABPoint& p = c.Data.ABPoints2[c.Target];
  const bool horizontal = p.ALY == p.AY && p.AUY == p.AY && IsBetween(p.AX, p.ALX, p.AUX);
  const bool vertical = p.ALX == p.AX && p.AUX == p.AX && IsBetween(p.AY, p.ALY, p.AUY);
  return (horizontal || vertical) && At(c.Now, c.Target).Low > 0.0 && Rises(c.Data, c.Target) &&
         Rises(c.Data, reference);
}

}  // namespace

std::vector<Interval> AllIntervals(const WizardData& data) {
  std::vector<Interval> all;
  for (int i = 0; i < data.Weights.Count(); ++i) all.push_back(IntervalOf(data, i));
  return all;
}

bool SameIntervals(const std::vector<Interval>& a, const std::vector<Interval>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) { return Same(x, y); });
}

void CheckDirectCommit(const Commit& c, const String& lower, const String& upper) {
  const Double lo = Val(lower);
  const Double hi = Val(upper);
  Expect(Same(At(c.Now, c.Target), {lo, (lo + hi) / 2.0, hi}), "stored is not what the boxes show");
  // The bounds are taken as they stand: boxes that an off-chart region left alone may hold them the wrong way round.
  Expect(lo > hi || IsOrdered(At(c.Now, c.Target)), "the judged interval is out of order");
  CheckOthers(c);
}

void CheckTradeOffCommit(const Commit& c, int reference) {
  const Interval& t = At(c.Now, c.Target);
  Expect(t.Low <= t.High, "the judged interval is upside down");
  if (MiddleIsPromised(c, reference)) Expect(IsOrdered(t), "the middle lies outside of the judged interval");
  CheckOthers(c);
}

}  // namespace Tarnwise
