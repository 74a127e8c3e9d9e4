#include "host/PointsFile.h"

#include "host/Json.h"
#include "host/WholeFile.h"

namespace Tarnwise {

namespace {

constexpr const char* kNames[] = {"AX", "AY", "BX", "BY", "AOrientation", "ALX", "ALY", "AUX", "AUY"};

VariantArray NumbersOf(const Json& file, const char* name, int numAtts) {
  const auto found = file.find(name);
  if (found == file.end() || !found->is_array() || static_cast<int>(found->size()) != numAtts) {
    throw ModelFault(String(name) + " should be a list of " + std::to_string(numAtts) + " numbers");
  }
  VariantArray numbers;
  for (const Json& value : *found) {
    if (!value.is_number()) throw ModelFault(String(name) + " should be a list of numbers");
    numbers.emplace_back(value.get<Double>());
  }
  return numbers;
}

Json JsonOf(const Points& points) {
  Json file = Json::object();
  for (std::size_t i = 0; i < points.size(); ++i) file[kNames[i]] = ToJson(points[i]);
  return file;
}

}  // namespace

String PointsPath(const String& modelPath) { return modelPath + ".points.json"; }

Points ZeroPoints(int numAtts) {
  Points points;
  points.fill(VariantArray(static_cast<std::size_t>(std::max(0, numAtts)), Variant(0.0)));
  return points;
}

Points ReadPoints(const String& modelPath, int numAtts) {
  const String path = PointsPath(modelPath);
  if (!std::filesystem::exists(PathFromText(path))) return ZeroPoints(numAtts);
  const std::vector<char> bytes = FileBytes(path);
  try {
    const Json file = Json::parse(bytes.begin(), bytes.end());
    if (!file.is_object()) throw ModelFault("it holds no JSON object");
    Points points;
    for (std::size_t i = 0; i < points.size(); ++i) points[i] = NumbersOf(file, kNames[i], numAtts);
    return points;
  } catch (const Json::exception& fault) {
    throw ModelFault(path + ": " + fault.what());
  } catch (const ModelFault& fault) {
    throw ModelFault(path + ": " + fault.what());
  }
}

String PointsText(const Points& points) { return JsonOf(points).dump(); }

void WritePoints(const String& modelPath, const Points& points) {
  const String text = JsonOf(points).dump(2) + "\n";
  WriteFileAtomically(PointsPath(modelPath), {text.begin(), text.end()});
}

}  // namespace Tarnwise
