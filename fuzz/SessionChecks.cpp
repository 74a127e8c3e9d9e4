#include "SessionChecks.h"

#include "CommitChecks.h"
#include "Expect.h"
#include "OrderingChecks.h"
#include "SessionState.h"
#include "direct/frmDirectB.h"
#include "ordering/frmIniImpOrder.h"
#include "play/ScriptLine.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Platform.h"
#include "view/Reach.h"

#include <algorithm>
#include <set>

namespace Tarnwise {

namespace {

bool Holds(const String& text, const char* part) { return text.find(part) != String::npos; }

bool IsRefused(const String& printed) { return Holds(printed, "{\"refused\":"); }

// Whether the line will probably be refused; where it is not sure, now and then yes.
bool MayBeRefused(const Platform& screen, const String& line) {
  if (std::hash<String>()(line) % 16 == 0) return true;
  if (line.starts_with("host") || line.starts_with("call")) return false;
  if (line.starts_with("type") || line.starts_with("key") || line == "drop") return true;
  try {
    const std::vector<String> words = WordsOf(line);
    return words.size() < 2 || screen.Drag.Active() || !Refusal(NamedControl(screen, words[1])).empty();
  } catch (const Refused&) {
    return true;
  }
}

// What brings up, moves, scrolls and asks changes nothing that is stored.
bool OnlyShows(const String& line) {
  for (const char* word : {"grab ", "over ", "drop", "drag ", "select ", "press ", "scroll ", "tick ", "focus ", "get ",
                           "call ", "data ", "forms", "dump"}) {
    if (line.starts_with(word)) return true;
  }
  return false;
}

}  // namespace

SessionChecks::SessionChecks(Platform& screen) : screen_(screen), data_(mdTRNMain()) {
  const auto former = screen_.Trace.Released;
  screen_.Trace.Released = [this, former](const Form& form) {
    released_.push_back(form.weak_from_this());
    if (former) former(form);
  };
}

void SessionChecks::Before(const String& line) {
  line_ = line;
  if (line.starts_with("host load") && !screen_.Forms().empty()) disturbed_ = true;
  if (screen_.Forms().empty()) disturbed_ = line.starts_with("host load") ? false : disturbed_;
  const Form* const form = screen_.ActiveForm();
  activeForm_ = form == nullptr ? "" : form->Name;
  const auto* const ordering = dynamic_cast<const frmIniImpOrder*>(form);
  stage_ = ordering == nullptr ? -1 : ordering->Stage;
  world_ = MayBeRefused(screen_, line) ? WorldText(screen_, data_) : String();
  stored_ = OnlyShows(line) ? StoredText(data_) : String();
  intervals_ = AllIntervals(data_);
  done_ = data_.WeightDone.Items();
  // Next may be pressed by a key as well; what was kept before is no longer what was left then.
  if (stage_ == 0) panels_ = !disturbed_ && line == "click cmdNext" ? PanelsText(*ordering) : String();
  if (line != "click cmdNext") ranking_.clear();
  if (ordering != nullptr && !disturbed_ && line == "click cmdBack" && stage_ == 1) {
    ranking_ = RankingText(*ordering, data_);
  }
}

void SessionChecks::After(const String& printed) {
  if (line_.empty()) return;
  CheckFaults(printed);
  CheckForms();
  CheckRefusal(printed);
  CheckOnlyShown(printed);
  if (disturbed_) return;
  CheckCommit(printed);
  CheckStages(printed);
  const auto* const ordering = dynamic_cast<const frmIniImpOrder*>(screen_.ActiveForm());
  if (ordering != nullptr && !Holds(printed, "runtime_error")) CheckOrderingStep(*ordering, data_, line_);
}

void SessionChecks::AtEnd() {
  Expect(screen_.Forms().empty(), "a form is left at the end");
  for (const auto& form : released_) Expect(form.expired(), "a released form lives on at the end");
}

void SessionChecks::CheckFaults(const String& printed) {
  Expect(screen_.Pointer() == 0, "the pointer is not back after " + line_);
  Expect(!Holds(printed, "reported a fault in"), "an exception of no kind of ours: " + printed);
  // Nothing that a person does may reach for a control that is not there.
  if (disturbed_) return;
  Expect(!Holds(printed, "\"runtime_error\":340") && !Holds(printed, "\"runtime_error\":360"), line_ + ": " + printed);
}

void SessionChecks::CheckForms() {
  std::set<String> names;
  for (const Form* form : screen_.Forms()) {
    Expect(names.insert(form->Name).second, "two of " + form->Name);
    Expect(!form->Released, form->Name + " is released and still there");
  }
  const Form* const active = screen_.ActiveForm();
  Expect(names.empty() == (active == nullptr), "forms exist and none can be reached after " + line_);
  Expect(active == nullptr || active->Visible, "the active form is hidden after " + line_);
  std::erase_if(released_, [](const auto& form) { return form.expired(); });
  Expect(released_.empty(), "a released form lives on after " + line_);
}

void SessionChecks::CheckRefusal(const String& printed) const {
  if (!IsRefused(printed) || world_.empty()) return;
  const String now = WorldText(screen_, data_);
  if (now != world_) Expect(false, "refused, and yet changed by " + line_ + Parting(world_, now));
}

void SessionChecks::CheckOnlyShown(const String& printed) const {
  if (stored_.empty()) return;
  const String now = StoredText(data_);
  if (now != stored_) Expect(false, "stored by " + line_ + Parting(stored_, now) + printed);
}

void SessionChecks::CheckCommit(const String& printed) const {
  if (line_ != "click cmdEnter" || IsRefused(printed) || Holds(printed, "runtime_error")) return;
  const Form* const form = screen_.ActiveForm();
  const std::vector<Interval> now = AllIntervals(data_);
  if (form == nullptr || form->Name != activeForm_ ||
      (SameIntervals(now, intervals_) && data_.WeightDone.Items() == done_)) {
    return;
  }
  Commit commit{data_, intervals_, done_, now, 0, false};
  if (const auto* direct = dynamic_cast<const frmDirectB*>(form)) {
    Expect(!IsReferencePair(data_, direct->mTargetAtt, direct->mRefAtt), "the reference pair has stored an interval");
    commit.Target = direct->mTargetAtt;
    CheckDirectCommit(commit, direct->txtWRLower.Text(), direct->txtWRUpper.Text());
  } else if (const auto* traded = dynamic_cast<const frmTradeOffsB*>(form)) {
    Expect(!IsReferencePair(data_, traded->mTargetAtt, traded->mRefAtt), "the reference pair has stored an interval");
    commit.Target = traded->mTargetAtt;
    commit.ByText = true;
    CheckTradeOffCommit(commit, traded->mRefAtt);
  }
}

void SessionChecks::CheckStages(const String& printed) {
  const auto* const ordering = dynamic_cast<const frmIniImpOrder*>(screen_.ActiveForm());
  if (ordering == nullptr || stage_ < 0 || IsRefused(printed) || Holds(printed, "runtime_error")) {
    ranking_.clear();
    return;
  }
  if (line_ == "click cmdBack" && stage_ == 1) {
    Expect(ordering->Stage == 0, "Back has not left stage 2");
    const String now = PanelsText(*ordering);
    Expect(panels_.empty() || now == panels_, "stage 1 came back another one" + Parting(panels_, now));
    Expect(ordering->cmdNext.Enabled, "Next is off after Back");
  }
  if (line_ == "click cmdNext" && stage_ == 0 && !ranking_.empty()) {
    const String now = RankingText(*ordering, data_);
    Expect(now == ranking_, "Back and Next have changed the ranking" + Parting(ranking_, now));
    ranking_.clear();
  }
}

}  // namespace Tarnwise
