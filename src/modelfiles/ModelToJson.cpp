#include "modelfiles/ModelJson.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace Tarnwise {

namespace {

// Every bit counts: -0 is not the default.
bool IsZero(Double number) { return std::bit_cast<std::uint64_t>(number) == 0; }
bool IsEmpty(const Variant& value) { return std::holds_alternative<std::monostate>(value); }

bool HasScore(const WizardData& data, int a, int b) {
  return !IsEmpty(data.RawScores.RawScores(a, b)) || !IsZero(data.Scores.Scores(a, b));
}

bool HasCurvePoint(const AttValueData& values, int i, int k) {
  return !IsEmpty(values.ValuePointX(i, k)) || !IsEmpty(values.ValuePointY(i, k));
}

int CurvePointsToList(const AttValueData& values, int i) {
  int count = std::clamp<int>(values.ValuePointCount[i], 0, kMaxCurvePoints);
  for (int k = count; k < kMaxCurvePoints; ++k) {
    if (HasCurvePoint(values, i, k)) count = k + 1;
  }
  return count;
}

bool HasFunction(const AttValueData& values, int i) {
  return values.ValueFuncType[i] != 0 || !IsZero(values.ValueFuncA[i]) || !IsZero(values.ValueFuncB[i]);
}

bool HasAttribute(const WizardData& data, int i) {
  const AttributeList& list = data.AttributeList;
  if (!list.AttName[i].empty() || !list.AttDescription[i].empty() || !list.AttOrientation[i].empty()) return true;
  const AttValueData& values = data.AttValueData;
  for (const auto* scale : {&values.ScoreMin, &values.ScoreMax, &values.WorstScore, &values.BestScore}) {
    if (!IsZero((*scale)[i])) return true;
  }
  if (values.ValuePointCount[i] != 0 || CurvePointsToList(values, i) != 0 || HasFunction(values, i)) return true;
  for (int a = 0; a < kMaxAlternatives; ++a) {
    if (HasScore(data, a, i)) return true;
  }
  const SavedJudgments& saved = data.SavedJudgments;
  return !IsZero(saved.SavedWeights[i]) || !IsZero(saved.SavedWeightsH[i]) || !IsZero(saved.SavedWeightsL[i]);
}

bool HasAlternative(const WizardData& data, int a) {
  if (!data.AlternativeList.Unused1[a].empty() || !data.AlternativeList.Unused2[a].empty()) return true;
  for (int b = 0; b < kMaxAtts; ++b) {
    if (HasScore(data, a, b)) return true;
  }
  return false;
}

// The names of the attributes that the description lists: those in use, and whatever slot behind them holds something.
std::vector<String> ListedNames(const WizardData& data) {
  int count = std::clamp(data.NumAtts(), 0, kMaxAtts);
  for (int i = count; i < kMaxAtts; ++i) {
    if (HasAttribute(data, i)) count = i + 1;
  }
  const std::vector<String>& names = data.AttributeList.AttName.Items();
  return {names.begin(), names.begin() + count};
}

bool IsUnique(const std::vector<String>& names, const String& name) {
  return !name.empty() && std::count(names.begin(), names.end(), name) == 1;
}

// One value for each attribute: under the names where these tell the attributes apart, else as a list. An absent one
// is null.
Json PerAttribute(const std::vector<String>& names, const std::function<Json(int)>& valueOf) {
  const bool byName = std::all_of(names.begin(), names.end(), [&](const String& n) { return IsUnique(names, n); });
  Json values = byName ? Json::object() : Json::array();
  for (std::size_t i = 0; i < names.size(); ++i) {
    Json value = valueOf(static_cast<int>(i));
    if (!byName) {
      values.push_back(std::move(value));
    } else if (!value.is_null()) {
      values[names[i]] = std::move(value);
    }
  }
  return values;
}

void PutText(Json& to, const char* key, const String& text) {
  if (!text.empty()) to[key] = text;
}

template <class T>
void PutWhole(Json& to, const char* key, T number) {
  if (number != 0) to[key] = number;
}

void PutNumber(Json& to, const char* key, Double number) {
  if (!IsZero(number)) to[key] = NumberJson(number);
}

void PutVariant(Json& to, const char* key, const Variant& value) {
  if (!IsEmpty(value)) to[key] = VariantJson(value);
}

void PutBytes(Json& to, const char* key, const std::vector<std::uint8_t>& bytes) {
  if (std::any_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte != 0; })) to[key] = BytesJson(bytes);
}

void PutNumbers(Json& to, const char* key, const Array<Double>& numbers) {
  Json list = Json::array();
  std::size_t used = 0;
  for (const Double number : numbers.Items()) {
    list.push_back(NumberJson(number));
    if (!IsZero(number)) used = list.size();
  }
  list.erase(list.begin() + static_cast<std::ptrdiff_t>(used), list.end());
  if (!list.empty()) to[key] = list;
}

void PutIntegers(Json& to, const char* key, const Array<Integer>& numbers) {
  Json list = Json::array();
  std::size_t used = 0;
  for (const Integer number : numbers.Items()) {
    list.push_back(number);
    if (number != 0) used = list.size();
  }
  list.erase(list.begin() + static_cast<std::ptrdiff_t>(used), list.end());
  if (!list.empty()) to[key] = list;
}

// A score stands in the file twice, as it was entered and as a Double; where the two agree it is one number.
Json ScoreJson(const WizardData& data, int a, int b) {
  if (!HasScore(data, a, b)) return nullptr;
  const Variant& raw = data.RawScores.RawScores(a, b);
  const Double score = data.Scores.Scores(a, b);
  const auto* const number = std::get_if<Double>(&raw);
  if (number != nullptr && std::bit_cast<std::uint64_t>(*number) == std::bit_cast<std::uint64_t>(score)) {
    return NumberJson(score);
  }
  Json pair = Json::object();
  PutVariant(pair, "raw", raw);
  PutNumber(pair, "score", score);
  return pair;
}

Json AlternativesJson(const WizardData& data, const std::vector<String>& names) {
  int count = 0;
  for (int a = 0; a < kMaxAlternatives; ++a) {
    if (HasAlternative(data, a)) count = a + 1;
  }
  Json list = Json::array();
  for (int a = 0; a < count; ++a) {
    Json alternative = {{"name", data.AlternativeList.Unused1[a]}};
    PutText(alternative, "note", data.AlternativeList.Unused2[a]);
    Json scores = PerAttribute(names, [&](int b) { return ScoreJson(data, a, b); });
    const bool any = std::any_of(scores.begin(), scores.end(), [](const Json& score) { return !score.is_null(); });
    if (any) alternative["scores"] = std::move(scores);
    list.push_back(std::move(alternative));
  }
  return list;
}

Json OrientationJson(const String& text) {
  if (text == "0") return "benefit";
  if (text == "1") return "cost";
  if (text == "benefit" || text == "cost") return {{"text", text}};
  return text;
}

Json FunctionJson(const AttValueData& values, int i) {
  Json function = Json::object();
  switch (values.ValueFuncType[i]) {
    case 0: function["type"] = "linear"; break;
    case 1: function["type"] = "non-linear"; break;
    default: function["type"] = values.ValueFuncType[i];
  }
  PutNumber(function, "a", values.ValueFuncA[i]);
  PutNumber(function, "b", values.ValueFuncB[i]);
  return function;
}

void PutCurve(Json& to, const AttValueData& values, int i) {
  const int count = CurvePointsToList(values, i);
  if (values.ValuePointCount[i] != count) to["curveCount"] = values.ValuePointCount[i];
  if (count == 0) return;
  Json curve = Json::array();
  for (int k = 0; k < count; ++k) {
    curve.push_back(Json::array({VariantJson(values.ValuePointX(i, k)), VariantJson(values.ValuePointY(i, k))}));
  }
  to["curve"] = std::move(curve);
}

Json AttributesJson(const WizardData& data, int count) {
  const AttValueData& values = data.AttValueData;
  Json list = Json::array();
  for (int i = 0; i < count; ++i) {
    Json attribute = {{"name", data.AttName(i)}};
    PutText(attribute, "description", data.AttDescription(i));
    attribute["orientation"] = OrientationJson(data.AttributeList.AttOrientation[i]);
    attribute["scoreMin"] = NumberJson(values.ScoreMin[i]);
    attribute["scoreMax"] = NumberJson(values.ScoreMax[i]);
    attribute["worst"] = NumberJson(values.WorstScore[i]);
    attribute["best"] = NumberJson(values.BestScore[i]);
    PutCurve(attribute, values, i);
    if (HasFunction(values, i)) attribute["function"] = FunctionJson(values, i);
    list.push_back(std::move(attribute));
  }
  return list;
}

void PutReference(Json& to, const char* key, const Variant& id, const std::vector<String>& names) {
  if (IsEmpty(id)) return;
  const auto* const number = std::get_if<Integer>(&id);
  if (number == nullptr) {
    to[key] = {{"value", VariantJson(id)}};
    return;
  }
  const bool listed = *number >= 0 && static_cast<std::size_t>(*number) < names.size();
  if (listed && IsUnique(names, names[static_cast<std::size_t>(*number)])) {
    to[key] = names[static_cast<std::size_t>(*number)];
  } else {
    to[key] = *number;
  }
}

void PutWeights(Json& to, const char* key, const Array<Double>& weights, const std::vector<String>& names) {
  const auto& all = weights.Items();
  if (std::all_of(all.begin(), all.end(), IsZero)) return;
  to[key] = PerAttribute(names, [&](int i) { return IsZero(weights[i]) ? Json() : NumberJson(weights[i]); });
}

Json JudgmentsJson(const SavedJudgments& saved, const std::vector<String>& names) {
  Json judgments = {{"type", saved.RJType}};
  PutReference(judgments, "benefitReference", saved.SavedBRefAttID, names);
  PutReference(judgments, "costReference", saved.SavedCRefAttID, names);
  PutVariant(judgments, "referenceRatio", saved.SavedRefAttWR);
  PutWeights(judgments, "weights", saved.SavedWeights, names);
  PutWeights(judgments, "low", saved.SavedWeightsL, names);
  PutWeights(judgments, "high", saved.SavedWeightsH, names);
  const bool none = judgments.size() == 1 && saved.RJType.empty();
  return none ? Json() : judgments;
}

Json UnusedJson(const WizardData& data) {
  Json unused = Json::object();
  Json texts = Json::array();
  for (int i = 1; i < data.ModelHeader.Unused.Count(); ++i) texts.push_back(data.ModelHeader.Unused[i]);
  while (!texts.empty() && texts.back() == "") texts.erase(texts.size() - 1);
  if (!texts.empty()) unused["headerTexts"] = texts;
  PutWhole(unused, "headerNumber", data.ModelHeader.UnusedNumber);
  PutWhole(unused, "headerLast", data.ModelHeader.UnusedLast);
  PutBytes(unused, "settings", data.ModelSettings.Unused);
  PutIntegers(unused, "attributeNumbers", data.AttributeList.Unused);
  PutNumbers(unused, "valueNumbers1", data.AttValueData.Unused1);
  PutBytes(unused, "valueBytes", data.AttValueData.Unused2);
  PutNumbers(unused, "valueNumbers2", data.AttValueData.Unused3);
  PutNumbers(unused, "valueNumbers3", data.AttValueData.Unused4);
  PutText(unused, "judgmentsText", data.SavedJudgments.Unused);
  return unused;
}

}  // namespace

Json ModelToJson(const WizardData& data) {
  const std::vector<String> names = ListedNames(data);
  Json description = Json::object();
  PutText(description, "note", data.ModelHeader.Unused[0]);
  description["alternatives"] = AlternativesJson(data, names);
  if (data.NumAtts() != static_cast<int>(names.size())) description["attributeCount"] = data.NumAtts();
  description["attributes"] = AttributesJson(data, static_cast<int>(names.size()));
  Json judgments = JudgmentsJson(data.SavedJudgments, names);
  if (!judgments.is_null()) description["judgments"] = std::move(judgments);
  Json unused = UnusedJson(data);
  if (!unused.empty()) description["unused"] = std::move(unused);
  return description;
}

}  // namespace Tarnwise
