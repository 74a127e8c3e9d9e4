// What a script asks.
#include "curves/mdGraphs.h"
#include "model/mdTRNMain.h"
#include "play/ControlJson.h"
#include "play/DataJson.h"
#include "play/Player.h"
#include "play/ScriptLine.h"
#include "runtime/Paths.h"
#include "view/Platform.h"

namespace Tarnwise {

void Player::Get(const String& text) {
  const PropertyName name = SplitProperty(text);
  std::optional<Json> value;
  if (name.Property == "Count") {
    if (const auto count = CountOfArray(*screen_, name.Of)) value = Json(*count);
  } else {
    value = PropertyJson(NamedControl(*screen_, name.Of), name.Property);
  }
  if (!value) throw Refused(text + ": does not exist");
  Print({{"get", text}, {"value", *value}});
}

void Player::Data(const String& name) {
  const auto value = DataJson(dea_->Data(), name);
  if (!value) throw Refused(name + ": does not exist");
  Print({{"data", name}, {"value", *value}});
}

void Player::Forms() {
  Json list = Json::array();
  for (const Form* form : screen_->Forms()) {
    list.push_back({{"name", form->Name}, {"visible", form->Visible()}, {"modal", screen_->IsModal(*form)}});
  }
  Print({{"forms", list}});
}

void Player::Dump(const std::vector<String>& words) {
  const Form* const form = words.size() > 1 ? NamedForm(*screen_, words[1]) : screen_->ActiveForm();
  if (form == nullptr) throw Refused((words.size() > 1 ? words[1] : "the active form") + ": does not exist");
  Json controls = Json::array();
  for (const Control* control : form->Controls()) controls.push_back(ControlJson(*control));
  Print({{"dump", form->Name}, {"form", ControlJson(*form)}, {"controls", controls}});
}

void Player::Call(const std::vector<String>& words) {
  const WizardData& data = dea_->Data();
  const int att = WholeNumber(words[2]);
  const Single x = ScaleNumber(words[3]);
  HostCall(words[1], [&] {
    Json value;
    if (words[1] == "GetAttValue") {
      value = ToJson(GetAttValue(data, att, x));
    } else if (words[1] == "GetAttScore") {
      value = ToJson(GetAttScore(data, att, x));
    } else if (words[1] == "GetAttValueFunc") {
      value = ToJson(GetAttValueFunc(data, att, x));
    } else {
      throw ScriptFault("\"" + words[1] + "\" can't be called");
    }
    Print({{"call", words[1]}, {"value", value}});
  });
}

void Player::Shot(const String& file) {
  Form* const form = screen_->ActiveForm();
  if (form == nullptr) throw Refused("no form is open");
  const std::filesystem::path path = PathFromText(shots_) / PathFromText(file);
  std::error_code error;  // a folder that can't be made is a picture that can't be taken
  if (driver_.TakesPictures()) std::filesystem::create_directories(path.parent_path(), error);
  if (driver_.Shot(*form, TextFromPath(path))) {
    Print({{"shot", file}});
  } else {
    Print({{"shot", nullptr}});
  }
}

}  // namespace Tarnwise
