#include "play/Player.h"

#include "model/mdTRNMain.h"
#include "play/ScriptLine.h"
#include "runtime/Paths.h"
#include "view/Platform.h"

#include <istream>
#include <ostream>

namespace Tarnwise {

namespace {

void Expect(const std::vector<String>& words, std::size_t fewest, std::size_t most) {
  if (words.size() < fewest + 1) throw ScriptFault("\"" + words[0] + "\" wants more words");
  if (words.size() > most + 1) throw ScriptFault("\"" + words[0] + "\" wants fewer words");
}

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

VariantArray ZerosFor(const WizardData& data) {
  return VariantArray(static_cast<std::size_t>(std::max(0, data.NumAtts())), Variant(0.0));
}

// Empty for what is no array of one dimension, so that the component refuses it.
VariantArray ArrayOf(const Json& points, const char* name) {
  VariantArray array;
  if (!points.contains(name) || !points.at(name).is_array()) return array;
  for (const Json& value : points.at(name)) {
    if (value.is_structured()) return {};
    array.push_back(VariantOf(value));
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
  events.ExportABScores = [this](const VariantArray& AX, const VariantArray& AY, const VariantArray& BX,
                                 const VariantArray& BY, const VariantArray& AOrientation, const VariantArray& ALX,
                                 const VariantArray& ALY, const VariantArray& AUX, const VariantArray& AUY) {
    Print({{"event", "ExportABScores"},
           {"AX", ToJson(AX)},
           {"AY", ToJson(AY)},
           {"BX", ToJson(BX)},
           {"BY", ToJson(BY)},
           {"AOrientation", ToJson(AOrientation)},
           {"ALX", ToJson(ALX)},
           {"ALY", ToJson(ALY)},
           {"AUX", ToJson(AUX)},
           {"AUY", ToJson(AUY)}});
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
  if (words[0] == "host") {
    Host(words);
  } else if (!User(words) && !Ask(words)) {
    throw ScriptFault("\"" + words[0] + "\" is no line of a session script");
  }
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

void Player::Host(const std::vector<String>& words) {
  Expect(words, 1, 99);
  const String& what = words[1];
  if (what == "load") {
    HostLoad(words);
  } else if (what == "points") {
    HostPoints(words);
  } else if (what == "show" && words.size() == 2) {
    HostCall("TRN_DEA.ShowTarnwise", [this] { dea_->ShowTarnwise(); });
  } else if (what == "unload" && words.size() == 2) {
    HostCall("TRN_DEA.UnloadTarnwise", [this] { dea_->UnloadTarnwise(); });
  } else if (what == "answer" && words.size() == 3 && (words[2] == "on" || words[2] == "off")) {
    answers_ = words[2] == "on";
  } else if (what == "new" && words.size() == 2) {
    NewObject();
  } else {
    throw ScriptFault("\"host " + what + "\" is no line of a session script");
  }
}

void Player::HostLoad(const std::vector<String>& words) {
  Expect(words, 2, 4);
  std::filesystem::path path = PathFromText(words[2]);
  if (path.is_relative()) path = PathFromText(folder_) / path;
  const String kesta = words.size() > 3 ? words[3] : folder_;
  const int index = words.size() > 4 ? WholeNumber(words[4]) : 1;
  HostCall("TRN_DEA.GetCurFileData",
           [&] { dea_->GetCurFileData(kesta, ToInteger(Variant(static_cast<Long>(index))), TextFromPath(path)); });
}

void Player::HostPoints(const std::vector<String>& words) {
  Expect(words, 2, 2);
  Json points;
  if (words[2] == "zero") {
    const VariantArray zeros = ZerosFor(dea_->Data());
    const PointArrays all{zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros};
    HostCall("TRN_DEA.TranferABCoordinates", [&] { dea_->TranferABCoordinates(all); });
    return;
  }
  PointArrays arrays;
  try {
    points = Json::parse(words[2]);
    if (!points.is_object()) throw ScriptFault("the points are no JSON object of arrays");
    const char* const names[] = {"AX", "AY", "BX", "BY", "AOrientation", "ALX", "ALY", "AUX", "AUY"};
    for (std::size_t i = 0; i < 9; ++i) arrays[i] = ArrayOf(points, names[i]);
  } catch (const Json::exception& fault) {
    throw ScriptFault(String("the points are no JSON object of arrays: ") + fault.what());
  }
  HostCall("TRN_DEA.TranferABCoordinates", [&] { dea_->TranferABCoordinates(arrays); });
}

bool Player::User(const std::vector<String>& words) {
  const String& what = words[0];
  if (what == "click") {
    Expect(words, 1, 1);
    Click(words[1]);
  } else if (what == "select") {
    Expect(words, 2, 2);
    Select(words[1], WholeNumber(words[2]));
  } else if (what == "press") {
    Expect(words, 2, 2);
    PressTool(words[1], words[2]);
  } else if (what == "focus") {
    Expect(words, 1, 1);
    Focus(words[1]);
  } else if (what == "type") {
    Expect(words, 1, 1);
    Type(words[1]);
  } else if (what == "key") {
    Expect(words, 1, 1);
    Key(words[1]);
  } else if (what == "grab") {
    Expect(words, 1, 1);
    Grab(words[1]);
  } else if (what == "over") {
    Over(words, 1);
  } else if (what == "drop") {
    Expect(words, 0, 0);
    Drop();
  } else if (what == "drag") {
    Drag(words);
  } else if (what == "scroll") {
    Expect(words, 2, 2);
    Scroll(words[1], WholeNumber(words[2]));
  } else if (what == "tick") {
    Expect(words, 1, 2);
    Tick(words[1], words.size() > 2 ? WholeNumber(words[2]) : 1);
  } else if (what == "close") {
    Expect(words, 0, 0);
    Close();
  } else {
    return false;
  }
  return true;
}

bool Player::Ask(const std::vector<String>& words) {
  const String& what = words[0];
  if (what == "get") {
    Expect(words, 1, 1);
    Get(words[1]);
  } else if (what == "data") {
    Expect(words, 1, 1);
    Data(words[1]);
  } else if (what == "forms") {
    Expect(words, 0, 0);
    Forms();
  } else if (what == "dump") {
    Expect(words, 0, 1);
    Dump(words);
  } else if (what == "call") {
    Expect(words, 3, 3);
    Call(words);
  } else if (what == "shot") {
    Expect(words, 1, 1);
    Shot(words[1]);
  } else {
    return false;
  }
  return true;
}

}  // namespace Tarnwise
