#include "program/ModelCommands.h"

#include "model/ModelFile.h"
#include "modelfiles/ModelJson.h"
#include "modelfiles/ModelWriter.h"
#include "modelfiles/NamedCodePage.h"

#include <ostream>

namespace Tarnwise {

namespace {

WizardData DescribedModel(const String& path) {
  const std::vector<char> bytes = FileBytes(path);
  try {
    return ModelFromJson(ParseDescription(String(bytes.begin(), bytes.end())));
  } catch (const ModelFault& fault) {
    throw ModelFault(path + ": " + fault.what());
  }
}

CodePage ChosenCodePage(const String& name) {
  if (name.empty()) return SystemCodePage();
  if (auto page = NamedCodePage(name)) return std::move(*page);
  throw ModelFault("there is no code page \"" + name + "\" here; " + kCodePageNames);
}

std::vector<char> BytesToWrite(const WizardData& data, const String& from, const CodePage& texts) {
  try {
    return ModelBytes(data, texts);
  } catch (const ModelFault& fault) {
    throw ModelFault(from + ": " + fault.what());
  }
}

void KeepDescription(const String& jsonPath, const String& kstPath) {
  std::error_code error;
  if (std::filesystem::equivalent(PathFromText(jsonPath), PathFromText(kstPath), error)) {
    throw ModelFault("the model would overwrite its description " + jsonPath);
  }
}

String Counted(int count, const char* what) { return std::to_string(count) + " " + what + (count == 1 ? "" : "s"); }

int CountNamed(const Array<String>& names) {
  int count = 0;
  for (const String& name : names.Items()) count += name.empty() ? 0 : 1;
  return count;
}

}  // namespace

int BuildModel(const String& jsonPath, const String& kstPath, const String& codePage, std::ostream& out,
               std::ostream& err) {
  try {
    const CodePage texts = ChosenCodePage(codePage);
    const WizardData data = DescribedModel(jsonPath);
    const std::vector<char> bytes = BytesToWrite(data, jsonPath, texts);
    for (const String& warning : ModelWarnings(data)) err << jsonPath << ": warning: " << warning << "\n";
    KeepDescription(jsonPath, kstPath);
    WriteFileAtomically(kstPath, bytes);
    out << kstPath << ": " << Counted(data.NumAtts(), "attribute") << ", "
        << Counted(CountNamed(data.AlternativeList.Unused1), "alternative") << "\n";
    return 0;
  } catch (const ModelFault& fault) {
    err << fault.what() << "\n";
    return 1;
  }
}

int ShowModel(const String& kstPath, const String& codePage, std::ostream& out, std::ostream& err) {
  try {
    const CodePage texts = ChosenCodePage(codePage);
    const std::vector<char> bytes = FileBytes(kstPath);
    WizardData data;
    ReadModel(data, bytes, texts);
    if (const auto difference = Difference(bytes, data, texts)) {
      err << kstPath << ": warning: " << *difference << "; building this description would not give that file again\n";
    }
    out << DescriptionText(ModelToJson(data));
    return 0;
  } catch (const ModelFault& fault) {
    err << fault.what() << "\n";
    return 1;
  }
}

}  // namespace Tarnwise
