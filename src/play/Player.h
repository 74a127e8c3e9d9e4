// The session player: a small host that carries out a script's lines one after the other and prints what the wizard
// did as JSON, one object a line. A script can do only what a person could. docs/session-scripts.md describes the
// lines.
#pragma once

#include "modelfiles/PlainJson.h"
#include "play/Hosted.h"
#include "view/Driver.h"

#include <tarnwise/TRN_DEA.h>

#include <deque>
#include <iosfwd>
#include <memory>
#include <vector>

namespace Tarnwise {

class Player {
 public:
  // `folder` is what relative model paths are taken from and what KestaDir defaults to; `shots` the folder of pictures.
  // `make` gives the wizard on the driver's screen, null the linked one.
  Player(Driver& driver, std::istream& script, String folder, String shots, std::ostream& out, std::ostream& err,
         MakeHosted make = nullptr);
  ~Player();

  // Exit status: 0 when every line was carried out, 1 when one was refused, 2 when one is no line of a script.
  int Play();

 private:
  // A line by its first word (after "host" its second), with how many words may follow it.
  struct Line {
    std::string_view Word;
    std::size_t Fewest;
    std::size_t Most;
    void (*Do)(Player& player, const std::vector<String>& words);
  };
  static const Line kHostLines[];
  static const Line kLines[];
  static const Line* FindLine(bool host, const String& word);  // null when there is none

  bool Step();  // the next line; false at the end
  void Carry(const std::vector<String>& words);

  void NewObject();
  void Watch();
  void Print(const Json& object);
  void HostCall(const String& in, const std::function<void()>& call);  // a fault is printed as one of `in`

  void HostLoad(const std::vector<String>& words);
  void HostPoints(const String& text);
  void HostAnswer(const String& word);

  void Click(const String& name);
  void Select(const String& name, int index);
  void PressTool(const String& name, const String& key);
  void Focus(const String& name);
  void Type(const String& text);
  bool TypeOn();  // the next character of the line that is being typed; false when there is none
  void Key(const String& name);
  void Stroke(const struct KeyStroke& key);
  void Grab(const String& name);
  void Over(const std::vector<String>& words, std::size_t first);
  void Drag(const std::vector<String>& words);
  void Drop();
  void Scroll(const String& name, int value);
  void Tick(const String& name, int times);
  void Close();

  void Get(const String& text);
  void Data(const String& name);
  void Forms();
  void Dump(const std::vector<String>& words);
  void Call(const std::vector<String>& words);
  void Shot(const String& file);

  Control& Usable(const String& name);  // named, and a person can act on it now
  void RefuseDuringDrag() const;

  Driver& driver_;
  std::shared_ptr<Platform> screen_;
  std::istream& script_;
  const String folder_;
  const String shots_;
  std::ostream& out_;
  std::ostream& err_;
  const MakeHosted make_;
  std::unique_ptr<Hosted> dea_;
  std::deque<char32_t> typed_;  // characters that are still to come
  bool answers_ = true;
  bool stopped_ = false;
  int line_ = 0;
  int status_ = 0;
};

}  // namespace Tarnwise
