// The wizard data: what the host handed over, the model read from its file, and the judgments that the steps build up.
// One set per thread; all steps work on it. What has not been read or set is zero, empty or unallocated.
#pragma once

#include "runtime/Sizes.h"

#include <tarnwise/Arrays.h>
#include <tarnwise/Scalars.h>
#include <tarnwise/Variant.h>

namespace Tarnwise {

constexpr const char* kDirectType = "DEA_DIRECT";
constexpr const char* kTradeOffsType = "DEA_TRADEOFFS";
constexpr const char* kKesta = "KESTA";  // the host application, title of all message boxes
constexpr int kExclamation = 48;
constexpr int kInformation = 64;

// One attribute's two alternatives A and B, in the scores of the target (X) and of its reference (Y).
struct ABPoint {
  Single AX = 0.0F;
  Single AY = 0.0F;
  Single BX = 0.0F;
  Single BY = 0.0F;
  Integer AOrientation = 0;  // A's uncertainty: 0 none, 1 horizontal, 2 vertical
  Single ALX = 0.0F;
  Single ALY = 0.0F;
  Single AUX = 0.0F;
  Single AUY = 0.0F;
};

// The model's records, in the order of the file's eight items. What is named Unused only passes through.
struct ModelHeader {
  Array<String> Unused;  // six texts
  Long UnusedNumber = 0;
  Integer NumAtts = 0;
  Integer UnusedLast = 0;
};

struct ModelSettings {
  std::vector<std::uint8_t> Unused;  // 30 bytes
};

struct AlternativeList {
  Array<String> Unused1;  // 0 to 50
  Array<String> Unused2;
};

struct AttributeList {
  Array<String> AttName;         // 0 to 30, as all of these
  Array<String> AttDescription;  // shown as a tool tip
  Array<String> AttOrientation;  // numeric text: 0 benefit, 1 cost
  Array<Integer> Unused;
};

struct RawScoreList {
  Matrix<Variant> RawScores;  // 51 x 31, unused
};

struct ScoreList {
  Matrix<Double> Scores;  // 51 x 31, unused
};

struct AttValueData {
  Array<Double> ScoreMin;  // 0 to 30, as all of these; the score scale of the trade-off step
  Array<Double> ScoreMax;
  Array<Double> Unused1;
  Array<Double> WorstScore;  // the performance range
  Array<Double> BestScore;
  std::vector<std::uint8_t> Unused2;  // 64 bytes
  Array<Integer> ValuePointCount;
  Matrix<Variant> ValuePointX;   // 31 x 11: scores, ascending
  Matrix<Variant> ValuePointY;   // values, 0 to 1
  Array<Integer> ValueFuncType;  // 0 linear, 1 non-linear
  Array<Double> ValueFuncA;
  Array<Double> ValueFuncB;
  Array<Double> Unused3;
  Array<Double> Unused4;
};

struct SavedJudgments {
  String RJType;  // kDirectType, kTradeOffsType, or anything else: none stored
  Variant SavedBRefAttID;
  Variant SavedCRefAttID;
  Variant SavedRefAttWR;
  Array<Double> SavedWeights;  // 0 to 30
  Array<Double> SavedWeightsH;
  Array<Double> SavedWeightsL;
  String Unused;
};

struct WizardData {
  WizardData();

  // The model, as read by the last GetCurFileData.
  struct ModelHeader ModelHeader;
  struct ModelSettings ModelSettings;
  struct AlternativeList AlternativeList;
  struct AttributeList AttributeList;
  struct RawScoreList RawScores;
  struct ScoreList Scores;
  struct AttValueData AttValueData;
  struct SavedJudgments SavedJudgments;

  // The host's parameters.
  String KestaDir;
  Integer FileIndex = 0;
  String PathAndFileName;

  // Switches that one step leaves for the next.
  Integer MethodIndex = 0;       // 0 direct, 1 trade-offs
  Integer IncnsistCtrl = 0;      // 1: consistency is checked
  Boolean OrderChanged = false;  // ranks or references differ from those stored in the file

  // The ranking, written by the ordering step.
  Integer BAttCount = 0;  // ranks in use
  Integer CAttCount = 0;
  Array<Integer> BOM;  // attributes at each rank, from 1; element 0 stays 0
  Array<Integer> COM;
  Array<Integer> AttO;  // rank of each attribute within its group, 1 the most important
  Integer BRefAttID = 0;
  Integer CRefAttID = 0;
  Integer BRankCount = 0;  // attributes in the group
  Integer CRankCount = 0;

  // The judgments: ratios of each attribute to the reference of its group.
  Array<Variant> WeightsL;
  Array<Variant> Weights;
  Array<Variant> WeightsH;
  Array<bool> WeightDone;
  Variant RefAttWR;  // of the two references, cost to benefit

  // The trade-off points: as the host passed them, and the set that is worked on.
  Array<ABPoint> ABPoints1;
  Array<ABPoint> ABPoints2;

  // Shorthands for what the steps read all the time.
  int NumAtts() const { return ModelHeader.NumAtts; }
  const String& AttName(int i) const { return AttributeList.AttName[i]; }
  const String& AttDescription(int i) const { return AttributeList.AttDescription[i]; }
  const String& RJType() const { return SavedJudgments.RJType; }
  // The orientation text as a number: 0 benefit, 1 cost, others in neither group.
  Double Orientation(int i) const;
  bool IsBenefit(int i) const { return Orientation(i) == 0.0; }
  bool IsCost(int i) const { return Orientation(i) == 1.0; }
  bool HasStoredJudgments() const { return RJType() == kDirectType || RJType() == kTradeOffsType; }
};

// The set of this thread. It lives as long as the thread and outlives every form.
WizardData& mdTRNMain();

// The help page of every step, as the help call wants it.
constexpr int kHelpShowContext = 1;
constexpr int kHelpContext = 4005025;
String HelpPath(const WizardData& data);

}  // namespace Tarnwise
