#include "play/Player.h"

#include "model/mdTRNMain.h"
#include "play/ScriptLine.h"
#include "runtime/Paths.h"
#include "view/Platform.h"

#include <istream>
#include <ostream>

namespace Tarnwise {

namespace {

Json WeightsJson(const char* event, const String& RJType, Integer BRefAttID, Integer CRefAttID, const Variant& RefAttWR,
                 const VariantArray& Weights, const VariantArray& WeightsH, const VariantArray& WeightsL) {
  return {{"event", event},
          {"RJType", RJType},
          {"BRefAttID", BRefAttID},
          {"CRefAttID", CRefAttID},
          {"RefAttWR", ToJson(RefAttWR)},
          {"Weights", ToJson(Weights)},
          {"WeightsH", ToJson(WeightsH)},
          {"WeightsL", ToJson(WeightsL)}};
}

// Empty for what is no array of one dimension, so that the component refuses it.
VariantArray ArrayOf(const Json& points, const char* name) {
  VariantArray array;
  if (!points.contains(name) || !points.at(name).is_array()) return array;
  for (const Json& value : points.at(name)) {
    if (value.is_structured()) return {};
    array.push_back(PlainVariant(value));
  }
  return array;
}

}  // namespace

Player::Player(Driver& driver, std::istream& script, String folder, String shots, std::ostream& out, std::ostream& err,
               MakeHosted make)
    : driver_(driver),
      screen_(driver.Screen()),
      script_(script),
      folder_(std::move(folder)),
      shots_(std::move(shots)),
      out_(out),
      err_(err),
      make_(make ? std::move(make) : [this] { return HostLinked(screen_); }) {
  Watch();
  driver_.SetPump([this] { return Step(); });
  NewObject();
}

Player::~Player() {
  driver_.SetPump(nullptr);
  screen_->Trace = {};
}

int Player::Play() {
  while (Step()) {
  }
  screen_->Trace = {};
  dea_.reset();
  return status_;
}

void Player::Print(const Json& object) { out_ << JsonLine(object) << std::endl; }

void Player::Watch() {
  PlatformTrace& trace = screen_->Trace;
  trace.Shown = [this](const Form& form, bool modal) { Print({{"show", form.Name}, {"modal", modal}}); };
  trace.Hidden = [this](const Form& form) { Print({{"hide", form.Name}}); };
  trace.Released = [this](const Form& form) { Print({{"release", form.Name}}); };
  trace.MessageBox = [this](const String& text, int style, const String& title) {
    Print({{"msgbox", text}, {"style", style}, {"title", title}});
  };
  trace.Beep = [this] { Print({{"beep", true}}); };
  trace.Pointer = [this](int pointer) { Print({{"pointer", pointer}}); };
  trace.Help = [this](const String& path, int command, int context) {
    Print({{"help", path}, {"command", command}, {"context", context}});
  };
  trace.Focus = [this](const Control& control) { Print({{"focus", control.FullName()}}); };
  trace.Failed = [this](const RuntimeError& error, const String& in) {
    Print({{"runtime_error", error.Number()}, {"description", error.Description()}, {"in", in}});
    return true;
  };
}

void Player::NewObject() {
  dea_.reset();
  dea_ = make_();
  TRN_DEA_Events& events = dea_->Events();
  events.UnloadTarnwise = [this](Integer fIndex, Boolean WeightsDone) {
    Print({{"event", "UnloadTarnwise"}, {"fIndex", fIndex}, {"WeightsDone", WeightsDone}});
    if (answers_ && dea_) dea_->UnloadTarnwise();
  };
  events.ExportDirectBW = [this](auto&&... arguments) { Print(WeightsJson("ExportDirectBW", arguments...)); };
  events.ExportTradeOffsBW = [this](auto&&... arguments) { Print(WeightsJson("ExportTradeOffsBW", arguments...)); };
  events.ExportABScores = [this](const auto&... arrays) {
    Json object = {{"event", "ExportABScores"}};
    object.update(ToJson(PointArrays{arrays...}));
    Print(object);
  };
  events.SendMasseges = [this](const String& Msg) { Print({{"event", "SendMasseges"}, {"Msg", Msg}}); };
}

bool Player::Step() {
  if (TypeOn()) return true;
  String line;
  if (stopped_ || !std::getline(script_, line)) return false;
  const int number = ++line_;
  try {
    const std::vector<String> words = WordsOf(line);
    if (words.empty()) return true;
    Carry(words);
  } catch (const Refused& refused) {
    Print({{"refused", refused.what()}, {"line", number}});
    if (status_ == 0) status_ = 1;
  } catch (const ScriptFault& fault) {
    err_ << "line " << number << ": " << fault.what() << std::endl;
    status_ = 2;
    stopped_ = true;
  }
  return !stopped_;
}

void Player::Carry(const std::vector<String>& words) {
  const bool host = words[0] == "host" && words.size() > 1;
  const std::vector<String> line(words.begin() + (host ? 1 : 0), words.end());
  const Line* const found = FindLine(host, line[0]);
  const String name = (host ? "host " : "") + line[0];
  if (found == nullptr) throw ScriptFault("\"" + name + "\" is no line of a session script");
  if (line.size() < found->Fewest + 1) throw ScriptFault("\"" + name + "\" wants more words");
  if (line.size() > found->Most + 1) throw ScriptFault("\"" + name + "\" wants fewer words");
  found->Do(*this, line);
}

void Player::HostCall(const String& in, const std::function<void()>& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    if (screen_->Pointer() != 0) screen_->SetPointer(0);
    Print({{"runtime_error", error.Number()},
           {"description", error.Description()},
           {"in", error.In.empty() ? in : error.In}});
  }
}

void Player::HostAnswer(const String& word) {
  if (word != "on" && word != "off") throw ScriptFault("the host's answer is on or off");
  answers_ = word == "on";
}

void Player::HostLoad(const std::vector<String>& words) {
  std::filesystem::path path = PathFromText(words[1]);
  if (path.is_relative()) path = PathFromText(folder_) / path;
  const String kesta = words.size() > 2 ? words[2] : folder_;
  const int index = words.size() > 3 ? WholeNumber(words[3]) : 1;
  HostCall("TRN_DEA.GetCurFileData",
           [&] { dea_->GetCurFileData(kesta, ToInteger(Variant(static_cast<Long>(index))), TextFromPath(path)); });
}

void Player::HostPoints(const String& text) {
  PointArrays arrays;
  if (text == "zero") {
    arrays = ZeroPoints(dea_->Data().NumAtts());
  } else {
    try {
      const Json points = Json::parse(text);
      if (!points.is_object()) throw ScriptFault("the points are no JSON object of arrays");
      for (std::size_t f = 0; f < arrays.size(); ++f) arrays[f] = ArrayOf(points, kPointNames[f]);
    } catch (const Json::exception& fault) {
      throw ScriptFault(String("the points are no JSON object of arrays: ") + fault.what());
    }
  }
  HostCall("TRN_DEA.TranferABCoordinates", [&] { dea_->TranferABCoordinates(arrays); });
}

}  // namespace Tarnwise
