// Stage 2 of the ordering step, as its tests use it.
#pragma once

#include "Ordering.h"

namespace Tarnwise {

inline constexpr const char* kStage1Title = "Tarnwise: Give rank orders of the attirbutes";
inline constexpr const char* kStage2Title = "Tarnwise: Designate reference attributes";

using Integers = std::vector<Integer>;

// Benefit 0 on rank 1, 1 and 2 on rank 2, an empty rank between; cost 3 on rank 1.
struct Ranked : Ordering {
  explicit Ranked(const WizardData& model = ModelOf(3, 1)) : Ordering(model) {
    Open();
    TakeNotes();
  }
  Ranked& PlaceAll() {
    Click("cmdAdd", 2);
    Place(0, 0);
    Place(2, 2);
    Place(1, 2);
    PlaceCost(0, 0);
    return *this;
  }
  OrderDisplay& BRows = Form->BReference.Rows;
  OrderDisplay& CRows = Form->CReference.Rows;
  Label& BName = Form->BReference.lblRefAtt;
  Label& CName = Form->CReference.lblRefAtt;
};

inline WizardData Judged(const char* type = kDirectType) {
  WizardData model = ModelOf(3, 2);
  StoreJudgments(model, type, 1, 4, 1.75, {0.5, 1.0, 1.0, 2.0, 1.0});
  return model;
}

inline std::vector<Double> Numbers(const Array<Variant>& values) {
  std::vector<Double> numbers;
  for (const Variant& value : values.Items()) numbers.push_back(ToDouble(value));
  return numbers;
}

}  // namespace Tarnwise
