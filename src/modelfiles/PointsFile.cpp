#include "modelfiles/PointsFile.h"

#include "modelfiles/PlainJson.h"
#include "modelfiles/WholeFile.h"

namespace Tarnwise {

namespace {

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

}  // namespace

String PointsPath(const String& modelPath) { return modelPath + ".points.json"; }

PointArrays ReadPoints(const String& modelPath, int numAtts) {
  const String path = PointsPath(modelPath);
  if (!std::filesystem::exists(PathFromText(path))) return ZeroPoints(numAtts);
  const std::vector<char> bytes = FileBytes(path);
  try {
    const Json file = Json::parse(bytes.begin(), bytes.end());
    if (!file.is_object()) throw ModelFault("it holds no JSON object");
    PointArrays points;
    for (std::size_t i = 0; i < points.size(); ++i) points[i] = NumbersOf(file, kPointNames[i], numAtts);
    return points;
  } catch (const Json::exception& fault) {
    throw ModelFault(path + ": " + fault.what());
  } catch (const ModelFault& fault) {
    throw ModelFault(path + ": " + fault.what());
  }
}

String PointsText(const PointArrays& points) { return ToJson(points).dump(); }

void WritePoints(const String& modelPath, const PointArrays& points) {
  const String text = ToJson(points).dump(2) + "\n";
  WriteFileAtomically(PointsPath(modelPath), {text.begin(), text.end()});
}

}  // namespace Tarnwise
