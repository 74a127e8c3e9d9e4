// Every line that a session script can have, but for comments. docs/session-scripts.md describes them.
#include "play/Player.h"
#include "play/ScriptLine.h"

namespace Tarnwise {

namespace {

using Words = std::vector<String>;

}  // namespace

const Player::Line Player::kHostLines[] = {
    {"load", 1, 3, [](Player& p, const Words& w) { p.HostLoad(w); }},
    {"points", 1, 1, [](Player& p, const Words& w) { p.HostPoints(w[1]); }},
    {"show", 0, 0,
     [](Player& p, const Words&) { p.HostCall("TRN_DEA.ShowTarnwise", [&p] { p.dea_->ShowTarnwise(); }); }},
    {"unload", 0, 0,
     [](Player& p, const Words&) { p.HostCall("TRN_DEA.UnloadTarnwise", [&p] { p.dea_->UnloadTarnwise(); }); }},
    {"answer", 1, 1, [](Player& p, const Words& w) { p.HostAnswer(w[1]); }},
    {"new", 0, 0, [](Player& p, const Words&) { p.NewObject(); }},
};

const Player::Line Player::kLines[] = {
    // What the user does.
    {"click", 1, 1, [](Player& p, const Words& w) { p.Click(w[1]); }},
    {"select", 2, 2, [](Player& p, const Words& w) { p.Select(w[1], WholeNumber(w[2])); }},
    {"press", 2, 2, [](Player& p, const Words& w) { p.PressTool(w[1], w[2]); }},
    {"focus", 1, 1, [](Player& p, const Words& w) { p.Focus(w[1]); }},
    {"type", 1, 1, [](Player& p, const Words& w) { p.Type(w[1]); }},
    {"key", 1, 1, [](Player& p, const Words& w) { p.Key(w[1]); }},
    {"grab", 1, 1, [](Player& p, const Words& w) { p.Grab(w[1]); }},
    {"over", 1, 3, [](Player& p, const Words& w) { p.Over(w, 1); }},
    {"drop", 0, 0, [](Player& p, const Words&) { p.Drop(); }},
    {"drag", 2, 4, [](Player& p, const Words& w) { p.Drag(w); }},
    {"scroll", 2, 2, [](Player& p, const Words& w) { p.Scroll(w[1], WholeNumber(w[2])); }},
    {"tick", 1, 2, [](Player& p, const Words& w) { p.Tick(w[1], w.size() > 2 ? WholeNumber(w[2]) : 1); }},
    {"close", 0, 0, [](Player& p, const Words&) { p.Close(); }},
    // What the script asks.
    {"get", 1, 1, [](Player& p, const Words& w) { p.Get(w[1]); }},
    {"data", 1, 1, [](Player& p, const Words& w) { p.Data(w[1]); }},
    {"forms", 0, 0, [](Player& p, const Words&) { p.Forms(); }},
    {"dump", 0, 1, [](Player& p, const Words& w) { p.Dump(w); }},
    {"call", 3, 3, [](Player& p, const Words& w) { p.Call(w); }},
    {"shot", 1, 1, [](Player& p, const Words& w) { p.Shot(w[1]); }},
};

const Player::Line* Player::FindLine(bool host, const String& word) {
  const auto find = [&word](const auto& lines) -> const Line* {
    for (const Line& line : lines) {
      if (line.Word == word) return &line;
    }
    return nullptr;
  };
  return host ? find(kHostLines) : find(kLines);
}

}  // namespace Tarnwise
