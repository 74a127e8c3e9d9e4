// What has to hold after every line of a session, whatever the lines are. A line is looked at twice: before it is
// carried out, and when the next one is asked for, which inside a modal call is the first moment after it too.
#pragma once

#include "judging/Intervals.h"

#include <memory>
#include <vector>

namespace Tarnwise {

class Platform;
struct Form;
struct frmIniImpOrder;

class SessionChecks {
 public:
  explicit SessionChecks(Platform& screen);

  void Before(const String& line);
  void After(const String& printed);  // what the line printed
  void AtEnd();                       // the wizard is gone

 private:
  void CheckFaults(const String& printed);
  void CheckForms();
  void CheckRefusal(const String& printed) const;
  void CheckOnlyShown(const String& printed) const;
  void CheckCommit(const String& printed) const;
  void CheckStages(const String& printed);

  Platform& screen_;
  std::vector<std::weak_ptr<const Form>> released_;
  // The host read another model while forms were open: what they show and what is stored no longer belong together.
  bool disturbed_ = false;

  // As it was before the line.
  String line_;
  String world_;  // forms and data, empty where not taken
  String stored_;
  String activeForm_;
  int stage_ = -1;  // of the ordering step; -1 where it is not the active one
  std::vector<Interval> intervals_;
  std::vector<bool> done_;
  WizardData& data_;

  String panels_;   // of stage 1 when it was left by Next
  String ranking_;  // what stage 2 showed when it was left by Back, empty unless the very next line is Next
};

}  // namespace Tarnwise
