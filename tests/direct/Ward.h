// The model that most tests of the step play on. Names carry blanks on purpose.
//
//   id  name        group    rank
//    0  Beds        benefit  2     reference
//    1  Doctors     cost     1     the first target
//    2  " Care "    benefit  1
//    3  Nurses      cost     2     reference
//    4  Research    benefit  3
//    5  Night       cost     3
//    6  "Rest "     benefit  3     shares its rank with Research
#pragma once

#include "runtime/Text.h"
#include "support/Ranked.h"
#include "view/Controls.h"

namespace Tarnwise {

inline std::vector<RankedAtt> WardRanks() { return {B(2), C(1), B(1), C(2), B(3), C(3), B(3)}; }

inline WizardData WardModel() {
  WizardData model = ModelFor(WardRanks());
  const char* const names[] = {"Beds", "Doctors", " Care ", "Nurses", "Research", "Night", "Rest "};
  for (int i = 0; i < 7; ++i) {
    model.AttributeList.AttName[i] = names[i];
    model.AttributeList.AttDescription[i] = String("All about ") + Trim(names[i]);
    model.AttValueData.WorstScore[i] = 0.5 + i;
    model.AttValueData.BestScore[i] = 1000000.25 * (i + 1);
  }
  return model;
}

// The step has opened on the pair Doctors against Nurses.
struct Ward : Session {
  explicit Ward(bool consistencyControl = true) : Session(WardModel()) {
    Given(ToDirectStep(WardRanks(), 0, 3, consistencyControl));
  }
};

// The items of the target list.
enum Item { kBeds = 1, kDoctors, kCare, kNurses, kResearch, kNight, kRest };

inline String Choose(Item item) { return "select imgcmbTargetAtt " + std::to_string(item) + "\n"; }

// A wedge for the pair on show: 100 units to the right, so far above the lower edge.
inline String Wedge(int up0, int up1) {
  return "drag picHandle(0) picTradeOffsRange 100 " + std::to_string(252 - up0) +
         "\ndrag picHandle(1) picTradeOffsRange 100 " + std::to_string(252 - up1) + "\n";
}

inline String Enter(Item item, int up0, int up1) { return Choose(item) + Wedge(up0, up1) + "click cmdEnter\n"; }

// All judged: Care 1.2 to 1.5, Doctors 1.3 to 1.4, Research and Rest 0.3 to 0.6, Night 0.7.
inline String JudgeAll() {
  return Enter(kCare, 120, 150) + Enter(kDoctors, 130, 140) + Enter(kResearch, 30, 60) + Enter(kNight, 70, 70);
}

// "Benefit1|Beds|Smiling2|Smiling2": key, text and pictures of each item of the target list.
inline Lines Shown(const ImageCombo& list) {
  Lines items;
  for (const auto& item : list.Items) {
    items.push_back(item.Key + "|" + item.Text + "|" + item.Picture + "|" + item.SelectedPicture);
  }
  return items;
}

inline Lines Texts(const ImageCombo& list) {
  Lines texts;
  for (const auto& item : list.Items) texts.push_back(item.Text);
  return texts;
}

}  // namespace Tarnwise
