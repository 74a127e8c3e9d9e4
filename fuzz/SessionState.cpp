#include "SessionState.h"

#include "frame/mdTRNMain.h"
#include "host/ControlJson.h"
#include "host/DataJson.h"
#include "view/Platform.h"

#include <algorithm>

namespace Tarnwise {

namespace {

String TextOf(const Json& value) { return JsonLine(value) + "\n"; }

String Variables(const WizardData& data, std::initializer_list<const char*> names) {
  String text;
  for (const char* name : names) text += String(name) + " " + TextOf(*DataJson(data, name));
  return text;
}

template <std::size_t N>
String ControlsCalled(const Form& form, const char* const (&names)[N]) {
  String text;
  for (const Control* control : form.Controls()) {
    const bool wanted = std::any_of(std::begin(names), std::end(names), [control](const char* name) {
      return control->Name == name || control->Name == String(name) + "1";
    });
    if (wanted) text += TextOf(ControlJson(*control));
  }
  return text;
}

}  // namespace

String WorldText(const Platform& screen, const WizardData& data) {
  String text = StoredText(data);
  text += Variables(data, {"NumAtts", "AttName", "AttOrientation", "RJType", "SavedWeights", "KestaDir", "FileIndex",
                           "PathAndFileName", "MethodIndex", "IncnsistCtrl", "OrderChanged"});
  text += "pointer " + std::to_string(screen.Pointer()) + "\n";
  if (screen.Drag.Active()) text += "drag " + screen.Drag.Source()->FullName() + "\n";
  for (const Form* form : screen.Forms()) {
    text += TextOf(ControlJson(*form));
    if (form->ActiveControl != nullptr) text += "focus " + form->ActiveControl->FullName() + "\n";
    for (const Control* control : form->Controls()) text += TextOf(ControlJson(*control));
  }
  return text;
}

String StoredText(const WizardData& data) {
  return Variables(
      data, {"BAttCount", "CAttCount", "BOM", "COM", "AttO", "BRefAttID", "CRefAttID", "BRankCount", "CRankCount",
             "WeightsL", "Weights", "WeightsH", "WeightDone", "RefAttWR", "ABPoints1", "ABPoints2"});
}

String PanelsText(const Form& form) {
  const char* const names[] = {"cmdAttA", "lblAttName", "picOrderCon", "picOrder", "lblOrderID", "cmdAttB"};
  return ControlsCalled(form, names);
}

String RankingText(const Form& form, const WizardData& data) {
  const char* const names[] = {"picO", "lblOID", "cmdAttButtons"};
  return Variables(data, {"BAttCount", "CAttCount", "BOM", "COM", "AttO"}) + ControlsCalled(form, names);
}

String Parting(const String& before, const String& after) {
  const auto [b, a] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto from = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, (b - before.begin()) - 200));
  return "\n  before: " + before.substr(from, 400) + "\n  after: " + after.substr(from, 400);
}

}  // namespace Tarnwise
