#include "play/DataJson.h"

#include <functional>
#include <map>

namespace Tarnwise {

namespace {

Json PointsJson(const Array<ABPoint>& points) {
  Json list = Json::array();
  for (const ABPoint& point : points.Items()) {
    const auto fields = FieldsOf(point);
    Json object = Json::object();
    for (std::size_t f = 0; f < fields.size(); ++f) object[kPointNames[f]] = ToJson(fields[f]);
    list.push_back(object);
  }
  return list;
}

using Reader = std::function<Json(const WizardData&)>;

#define FIELD(record, name)                                          \
  {                                                                  \
#name, [](const WizardData& d) { return ToJson(d.record.name); } \
  }
#define VARIABLE(name)                                        \
  {                                                           \
#name, [](const WizardData& d) { return ToJson(d.name); } \
  }

const std::map<String, Reader>& Readers() {
  static const std::map<String, Reader> readers = {
      FIELD(ModelHeader, NumAtts),
      FIELD(AttributeList, AttName),
      FIELD(AttributeList, AttDescription),
      FIELD(AttributeList, AttOrientation),
      FIELD(RawScores, RawScores),
      FIELD(Scores, Scores),
      FIELD(AttValueData, ScoreMin),
      FIELD(AttValueData, ScoreMax),
      FIELD(AttValueData, WorstScore),
      FIELD(AttValueData, BestScore),
      FIELD(AttValueData, ValuePointCount),
      FIELD(AttValueData, ValuePointX),
      FIELD(AttValueData, ValuePointY),
      FIELD(AttValueData, ValueFuncType),
      FIELD(AttValueData, ValueFuncA),
      FIELD(AttValueData, ValueFuncB),
      FIELD(SavedJudgments, RJType),
      FIELD(SavedJudgments, SavedBRefAttID),
      FIELD(SavedJudgments, SavedCRefAttID),
      FIELD(SavedJudgments, SavedRefAttWR),
      FIELD(SavedJudgments, SavedWeights),
      FIELD(SavedJudgments, SavedWeightsH),
      FIELD(SavedJudgments, SavedWeightsL),
      VARIABLE(KestaDir),
      VARIABLE(FileIndex),
      VARIABLE(PathAndFileName),
      VARIABLE(MethodIndex),
      VARIABLE(IncnsistCtrl),
      VARIABLE(OrderChanged),
      VARIABLE(BAttCount),
      VARIABLE(CAttCount),
      VARIABLE(BOM),
      VARIABLE(COM),
      VARIABLE(AttO),
      VARIABLE(BRefAttID),
      VARIABLE(CRefAttID),
      VARIABLE(BRankCount),
      VARIABLE(CRankCount),
      VARIABLE(WeightsL),
      VARIABLE(Weights),
      VARIABLE(WeightsH),
      VARIABLE(WeightDone),
      VARIABLE(RefAttWR),
      {"ABPoints1", [](const WizardData& d) { return PointsJson(d.ABPoints1); }},
      {"ABPoints2", [](const WizardData& d) { return PointsJson(d.ABPoints2); }},
  };
  return readers;
}

#undef FIELD
#undef VARIABLE

}  // namespace

std::optional<Json> DataJson(const WizardData& data, const String& name) {
  const auto found = Readers().find(name);
  return found == Readers().end() ? std::nullopt : std::optional<Json>(found->second(data));
}

}  // namespace Tarnwise
