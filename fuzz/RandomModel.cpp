#include "RandomModel.h"

namespace Tarnwise {

namespace {

String Orientation(ByteSource& bytes) {
  const char* const odd[] = {"2", "", "abc", " 1 ", "1.0", "0.5", "-1", "1E0"};
  const int choice = bytes.Byte();
  if (choice >= 248) return odd[choice - 248];
  return choice % 2 == 0 ? "0" : "1";
}

Double OddNumber(ByteSource& bytes) {
  const Double odd[] = {0.0, -1.0, 1e-9, 1e9, -1e9, 0.1, 1e300, -1e-300};
  return odd[bytes.Below(8)];
}

void GiveScale(ByteSource& bytes, AttValueData& values, int att) {
  const Double low = bytes.Below(4) * 25.0 - 25.0;
  const Double range[] = {100.0, 1.0, 12.5, 1000.0};
  values.ScoreMin[att] = low;
  values.ScoreMax[att] = low + range[bytes.Below(4)];
  values.WorstScore[att] = low;
  values.BestScore[att] = values.ScoreMax[att];
  if (bytes.OneIn(64)) values.ScoreMin[att] = OddNumber(bytes);
  if (bytes.OneIn(64)) values.ScoreMax[att] = values.ScoreMin[att];
  if (bytes.OneIn(64)) values.BestScore[att] = OddNumber(bytes);
}

// Rising as a rule; the points of a bad curve fall, coincide or are no numbers.
void GiveCurve(ByteSource& bytes, AttValueData& values, int att) {
  const int n = bytes.OneIn(32) ? bytes.Below(14) - 1 : 2 + bytes.Below(10);
  values.ValuePointCount[att] = static_cast<Integer>(n);
  const bool bad = bytes.OneIn(16);
  const Double low = values.ScoreMin[att];
  const Double range = values.ScoreMax[att] - low;
  Double height = 0.0;
  Array<Double> y;
  y.Allocate(kMaxCurvePoints);
  for (int k = 0; k < n && k < kMaxCurvePoints; ++k) {
    y[k] = height;
    height += 0.25 + bytes.Part();
  }
  for (int k = 0; k < n && k < kMaxCurvePoints; ++k) {
    values.ValuePointX(att, k) = n > 1 ? low + range * k / (n - 1) : low;
    values.ValuePointY(att, k) = n > 1 ? y[k] / y[std::min(n, kMaxCurvePoints) - 1] : 0.5;
    if (!bad || !bytes.OneIn(4)) continue;
    const Variant odd[] = {Variant(), Null(), String("0.5"), String("x"), Integer(1), low, 1e300, -5.0};
    (bytes.OneIn(2) ? values.ValuePointX : values.ValuePointY)(att, k) = odd[bytes.Below(8)];
  }
}

Variant SavedReference(ByteSource& bytes, int atts) {
  if (bytes.OneIn(32)) return Null();
  if (bytes.OneIn(32)) return String("one");
  if (bytes.OneIn(32)) return Variant();
  return static_cast<Integer>(bytes.Below(atts + 1));
}

void GiveJudgments(ByteSource& bytes, WizardData& model) {
  const int choice = bytes.Below(8);
  if (choice < 4) return;
  SavedJudgments& saved = model.SavedJudgments;
  const char* const types[] = {kDirectType, kTradeOffsType, kDirectType, "dea_direct"};
  saved.RJType = types[choice - 4];
  saved.SavedBRefAttID = SavedReference(bytes, model.NumAtts());
  saved.SavedCRefAttID = SavedReference(bytes, model.NumAtts());
  saved.SavedRefAttWR = 0.25 + 2.0 * bytes.Part();
  if (bytes.OneIn(32)) saved.SavedRefAttWR = String("much");
  for (int i = 0; i < model.NumAtts() && i < kMaxAtts; ++i) {
    const Double weight = 0.25 + bytes.Below(8) * 0.25;
    saved.SavedWeights[i] = weight;
    saved.SavedWeightsL[i] = weight - (bytes.OneIn(2) ? 0.125 : 0.0);
    saved.SavedWeightsH[i] = weight + (bytes.OneIn(2) ? 0.125 : 0.0);
    if (!bytes.OneIn(64)) continue;
    (bytes.OneIn(2) ? saved.SavedWeights : saved.SavedWeightsL)[i] = OddNumber(bytes);
  }
}

}  // namespace

WizardData RandomModel(ByteSource& bytes) {
  WizardData model;
  const int size = bytes.Byte();
  const int atts = size < 240 ? 2 + size % 7 : size < 250 ? size - 240 : size < 255 ? 31 : 32;
  model.ModelHeader.NumAtts = static_cast<Integer>(atts);
  const bool alike = bytes.OneIn(8);  // the same name for all
  for (int i = 0; i < atts && i < kMaxAtts; ++i) {
    model.AttributeList.AttName[i] = alike ? " Same " : "Att " + std::to_string(i);
    model.AttributeList.AttOrientation[i] = Orientation(bytes);
    GiveScale(bytes, model.AttValueData, i);
    GiveCurve(bytes, model.AttValueData, i);
  }
  GiveJudgments(bytes, model);
  return model;
}

}  // namespace Tarnwise
