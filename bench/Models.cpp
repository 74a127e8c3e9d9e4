#include "Models.h"

#include "judging/Intervals.h"

#include <cmath>

namespace Tarnwise {

namespace {

void FillAttribute(WizardData& data, int i, bool benefit) {
  const String number = std::to_string(i);
  data.AttributeList.AttName[i] = "Attribute " + number + String(30 - number.size(), '.');
  data.AttributeList.AttDescription[i] = "What attribute " + number + " is about";
  data.AttributeList.AttOrientation[i] = benefit ? "0" : "1";
  AttValueData& values = data.AttValueData;
  const Double low = 10.0 * i + 3.7;
  const Double high = low + 317.3;
  values.ScoreMin[i] = low;
  values.ScoreMax[i] = high;
  values.WorstScore[i] = benefit ? low : high;
  values.BestScore[i] = benefit ? high : low;
  values.ValuePointCount[i] = kMaxCurvePoints;
  for (int k = 0; k < kMaxCurvePoints; ++k) {
    const Double t = k / 10.0;
    values.ValuePointX(i, k) = low + (high - low) * t;
    values.ValuePointY(i, k) = std::pow(t, 0.6 + 0.03 * i);
  }
}

}  // namespace

WizardData FullModel(int benefit, int tied) {
  WizardData data;
  data.ModelHeader.NumAtts = kMaxAtts;
  for (int i = 0; i < kMaxAtts; ++i) FillAttribute(data, i, i < benefit);
  for (int a = 0; a < kMaxAlternatives; ++a) {
    data.AlternativeList.Unused1[a] = "Alternative " + std::to_string(a) + String(26, '.');
    for (int i = 0; i < kMaxAtts; ++i) {
      data.RawScores.RawScores(a, i) = 31.7 * a + i;
      data.Scores.Scores(a, i) = 31.7 * a + i;
    }
  }
  data.IncnsistCtrl = 1;
  data.BRankCount = static_cast<Integer>(benefit);
  data.CRankCount = static_cast<Integer>(kMaxAtts - benefit);
  data.BRefAttID = 0;
  data.CRefAttID = static_cast<Integer>(benefit);
  data.AttO.Allocate(kMaxAtts);
  Integer rank = 1;
  for (int i = 0; i < benefit; ++i) data.AttO[i] = i > 0 && i <= tied ? Integer(2) : rank++;
  data.BAttCount = rank;
  for (int i = benefit; i < kMaxAtts; ++i) data.AttO[i] = static_cast<Integer>(i - benefit + 1);
  data.CAttCount = data.CRankCount;
  data.BOM.Allocate(data.BAttCount + 1);
  data.COM.Allocate(data.CAttCount + 1);
  for (int i = 0; i < kMaxAtts; ++i) ++(i < benefit ? data.BOM : data.COM)[data.AttO[i]];
  data.WeightsL.Allocate(kMaxAtts);
  data.Weights.Allocate(kMaxAtts);
  data.WeightsH.Allocate(kMaxAtts);
  data.WeightDone.Allocate(kMaxAtts);
  SetDefaultIntervals(data);
  data.RefAttWR = 1.0;
  data.ABPoints1.Allocate(kMaxAtts);
  data.ABPoints2.Allocate(kMaxAtts);
  return data;
}

}  // namespace Tarnwise
