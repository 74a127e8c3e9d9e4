#include "modelfiles/ModelJson.h"
#include "modelfiles/ModelWriter.h"

#include <algorithm>
#include <functional>

namespace Tarnwise {

namespace {

constexpr std::size_t kHeaderTexts = 6;
constexpr std::size_t kSettingsBytes = 30;
constexpr std::size_t kValueBytes = 64;

int Signed(std::size_t i) { return static_cast<int>(i); }

Integer IntegerAt(const Section& section, const char* key) {
  return static_cast<Integer>(section.Whole(key, INT16_MIN, INT16_MAX));
}

// The attribute of that name; a name that several bear, or none, is a ModelFault.
int AttributeNamed(const std::vector<String>& names, const String& name, const String& place) {
  const auto found = std::find(names.begin(), names.end(), name);
  if (found == names.end()) {
    const String nearest = NearestName(name, names);
    const String hint = nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?";
    throw ModelFault(place + ": there is no attribute \"" + name + "\"" + hint);
  }
  if (std::find(found + 1, names.end(), name) != names.end()) {
    throw ModelFault(place + ": several attributes are called \"" + name + "\", give their values as a list");
  }
  return Signed(static_cast<std::size_t>(found - names.begin()));
}

// The values of a key for each attribute, in an object under their names or in a list in their order.
void EachAttribute(const Section& section, const char* key, const std::vector<String>& names,
                   const std::function<void(int, const Json&, const String&)>& take) {
  const Json* const values = section.Find(key);
  if (values == nullptr) return;
  const String place = section.PlaceOf(key);
  if (values->is_object()) {
    for (const auto& [name, value] : values->items()) {
      take(AttributeNamed(names, name, place), value, name + " in " + place);
    }
    return;
  }
  if (!values->is_array()) throw ModelFault(place + ": an object or a list is wanted, here is " + Quoted(*values));
  if (values->size() > names.size()) {
    throw ModelFault(place + ": there are " + std::to_string(values->size()) + " values for " +
                     std::to_string(names.size()) + " attributes");
  }
  for (std::size_t i = 0; i < values->size(); ++i) {
    take(Signed(i), (*values)[i], NameInMessages("value", Signed(i), names[i]) + " in " + place);
  }
}

void TakeNumbers(const Section& section, const char* key, Array<Double>& numbers) {
  const Json& list = section.List(key, static_cast<std::size_t>(numbers.Count()));
  for (std::size_t i = 0; i < list.size(); ++i) {
    numbers[Signed(i)] = NumberOf(list[i], NameInMessages("value", Signed(i), {}) + " in " + section.PlaceOf(key));
  }
}

void TakeIntegers(const Section& section, const char* key, Array<Integer>& numbers) {
  const Json& list = section.List(key, static_cast<std::size_t>(numbers.Count()));
  for (std::size_t i = 0; i < list.size(); ++i) {
    const String place = NameInMessages("value", Signed(i), {}) + " in " + section.PlaceOf(key);
    numbers[Signed(i)] = static_cast<Integer>(WholeOf(list[i], place, INT16_MIN, INT16_MAX));
  }
}

void TakeBytes(const Section& section, const char* key, std::size_t count, std::vector<std::uint8_t>& bytes) {
  const Json* const found = section.Find(key);
  if (found != nullptr) bytes = BytesOf(*found, section.PlaceOf(key), count);
}

void TakeVariant(const Section& section, const char* key, Variant& value) {
  const Json* const found = section.Find(key);
  if (found != nullptr) value = VariantOf(*found, section.PlaceOf(key));
}

String NameOf(const Json& value) {
  return value.is_object() && value.contains("name") && value["name"].is_string() ? value["name"].get<String>() : "";
}

String OrientationOf(const Section& attribute) {
  const Json& value = attribute.Need("orientation");
  if (value == "benefit") return "0";
  if (value == "cost") return "1";
  if (value.is_string()) return value.get<String>();
  if (!value.is_object()) attribute.Fail("orientation", "\"benefit\" or \"cost\" is wanted, here is " + Quoted(value));
  const Section raw(value, attribute.PlaceOf("orientation"), {"text"});
  return TextOf(raw.Need("text"), raw.PlaceOf("text"));
}

void TakeFunction(const Section& attribute, AttValueData& values, int i) {
  const Json* const found = attribute.Find("function");
  if (found == nullptr) return;
  const Section function(*found, attribute.PlaceOf("function"), {"type", "a", "b"});
  const Json& type = function.Need("type");
  if (type == "linear") {
    values.ValueFuncType[i] = 0;
  } else if (type == "non-linear") {
    values.ValueFuncType[i] = 1;
  } else if (type.is_number()) {
    values.ValueFuncType[i] = IntegerAt(function, "type");
  } else {
    function.Fail("type", "\"linear\" or \"non-linear\" is wanted, here is " + Quoted(type));
  }
  values.ValueFuncA[i] = function.Number("a");
  values.ValueFuncB[i] = function.Number("b");
}

void TakeCurve(const Section& attribute, AttValueData& values, int i) {
  const Json& curve = attribute.List("curve", kMaxCurvePoints);
  for (std::size_t k = 0; k < curve.size(); ++k) {
    const String place = "point " + std::to_string(k) + " of " + attribute.PlaceOf("curve");
    if (!curve[k].is_array() || curve[k].size() != 2) {
      throw ModelFault(place + ": a pair [score, value] is wanted, here is " + Quoted(curve[k]));
    }
    values.ValuePointX(i, Signed(k)) = VariantOf(curve[k][0], place);
    values.ValuePointY(i, Signed(k)) = VariantOf(curve[k][1], place);
  }
  const bool told = attribute.Has("curveCount");
  values.ValuePointCount[i] = told ? IntegerAt(attribute, "curveCount") : static_cast<Integer>(curve.size());
}

Double NeededNumber(const Section& section, const char* key) {
  return NumberOf(section.Need(key), section.PlaceOf(key));
}

void TakeAttribute(const Json& value, int i, WizardData& data) {
  const Section attribute(value, NameInMessages("attribute", i, NameOf(value)),
                          {"name", "description", "orientation", "scoreMin", "scoreMax", "worst", "best", "curve",
                           "curveCount", "function"});
  AttributeList& list = data.AttributeList;
  list.AttName[i] = TextOf(attribute.Need("name"), attribute.PlaceOf("name"));
  list.AttDescription[i] = attribute.Text("description");
  list.AttOrientation[i] = OrientationOf(attribute);
  AttValueData& values = data.AttValueData;
  values.ScoreMin[i] = NeededNumber(attribute, "scoreMin");
  values.ScoreMax[i] = NeededNumber(attribute, "scoreMax");
  values.WorstScore[i] = NeededNumber(attribute, "worst");
  values.BestScore[i] = NeededNumber(attribute, "best");
  TakeCurve(attribute, values, i);
  TakeFunction(attribute, values, i);
}

// The names of the attributes in their order.
std::vector<String> TakeAttributes(const Section& top, WizardData& data) {
  (void)top.Need("attributes");
  const Json& list = top.List("attributes", kMaxAtts);
  for (std::size_t i = 0; i < list.size(); ++i) TakeAttribute(list[i], Signed(i), data);
  const bool told = top.Has("attributeCount");
  data.ModelHeader.NumAtts = told ? IntegerAt(top, "attributeCount") : static_cast<Integer>(list.size());
  const std::vector<String>& names = data.AttributeList.AttName.Items();
  return {names.begin(), names.begin() + static_cast<std::ptrdiff_t>(list.size())};
}

void TakeScore(const Json& value, const String& place, Variant& raw, Double& score) {
  if (value.is_null()) return;
  if (value.is_object() && !value.contains("bits")) {
    const Section pair(value, place, {"raw", "score"});
    TakeVariant(pair, "raw", raw);
    score = pair.Number("score");
    return;
  }
  score = NumberOf(value, place);
  raw = score;
}

void TakeAlternative(const Json& value, int a, const std::vector<String>& names, WizardData& data) {
  const Section alternative(value, NameInMessages("alternative", a, NameOf(value)), {"name", "note", "scores"});
  data.AlternativeList.Unused1[a] = TextOf(alternative.Need("name"), alternative.PlaceOf("name"));
  data.AlternativeList.Unused2[a] = alternative.Text("note");
  EachAttribute(alternative, "scores", names, [&](int b, const Json& score, const String& place) {
    TakeScore(score, place, data.RawScores.RawScores(a, b), data.Scores.Scores(a, b));
  });
}

// An attribute's name or id; an Integer in the file. Whatever else the file holds stands as {"value": ...}.
void TakeReference(const Section& judgments, const char* key, const std::vector<String>& names, Variant& id) {
  const Json* const found = judgments.Find(key);
  if (found == nullptr || found->is_null()) return;
  if (found->is_string()) {
    id = static_cast<Integer>(AttributeNamed(names, found->get<String>(), judgments.PlaceOf(key)));
  } else if (found->is_object()) {
    const Section raw(*found, judgments.PlaceOf(key), {"value"});
    id = VariantOf(raw.Need("value"), raw.PlaceOf("value"));
  } else {
    id = IntegerAt(judgments, key);
  }
}

void TakeWeights(const Section& judgments, const char* key, const std::vector<String>& names, Array<Double>& weights) {
  EachAttribute(judgments, key, names, [&](int i, const Json& weight, const String& place) {
    if (!weight.is_null()) weights[i] = NumberOf(weight, place);
  });
}

void TakeJudgments(const Json& value, const std::vector<String>& names, SavedJudgments& saved) {
  const Section judgments(value, "judgments",
                          {"type", "benefitReference", "costReference", "referenceRatio", "weights", "low", "high"});
  saved.RJType = TextOf(judgments.Need("type"), judgments.PlaceOf("type"));
  TakeReference(judgments, "benefitReference", names, saved.SavedBRefAttID);
  TakeReference(judgments, "costReference", names, saved.SavedCRefAttID);
  TakeVariant(judgments, "referenceRatio", saved.SavedRefAttWR);
  TakeWeights(judgments, "weights", names, saved.SavedWeights);
  TakeWeights(judgments, "low", names, saved.SavedWeightsL);
  TakeWeights(judgments, "high", names, saved.SavedWeightsH);
}

void TakeUnused(const Json& value, WizardData& data) {
  const Section unused(value, "unused",
                       {"headerTexts", "headerNumber", "headerLast", "settings", "attributeNumbers", "valueNumbers1",
                        "valueBytes", "valueNumbers2", "valueNumbers3", "judgmentsText"});
  const Json& texts = unused.List("headerTexts", kHeaderTexts - 1);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    data.ModelHeader.Unused[Signed(i) + 1] = TextOf(texts[i], unused.PlaceOf("headerTexts"));
  }
  data.ModelHeader.UnusedNumber = static_cast<Long>(unused.Whole("headerNumber", INT32_MIN, INT32_MAX));
  data.ModelHeader.UnusedLast = IntegerAt(unused, "headerLast");
  TakeBytes(unused, "settings", kSettingsBytes, data.ModelSettings.Unused);
  TakeIntegers(unused, "attributeNumbers", data.AttributeList.Unused);
  TakeNumbers(unused, "valueNumbers1", data.AttValueData.Unused1);
  TakeBytes(unused, "valueBytes", kValueBytes, data.AttValueData.Unused2);
  TakeNumbers(unused, "valueNumbers2", data.AttValueData.Unused3);
  TakeNumbers(unused, "valueNumbers3", data.AttValueData.Unused4);
  data.SavedJudgments.Unused = unused.Text("judgmentsText");
}

}  // namespace

WizardData ModelFromJson(const Json& description) {
  const Section top(description, {}, {"note", "alternatives", "attributeCount", "attributes", "judgments", "unused"});
  WizardData data;
  data.ModelHeader.Unused[0] = top.Text("note");
  const std::vector<String> names = TakeAttributes(top, data);
  const Json& alternatives = top.List("alternatives", kMaxAlternatives);
  for (std::size_t a = 0; a < alternatives.size(); ++a) TakeAlternative(alternatives[a], Signed(a), names, data);
  if (const Json* found = top.Find("judgments")) TakeJudgments(*found, names, data.SavedJudgments);
  if (const Json* found = top.Find("unused")) TakeUnused(*found, data);
  return data;
}

}  // namespace Tarnwise
