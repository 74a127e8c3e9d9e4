#include "support/TestHost.h"

#include "play/ScriptLine.h"
#include "view/Input.h"
#include "view/Reach.h"

#include <gtest/gtest.h>

namespace Tarnwise {

TestScreen::TestScreen() {
  Tools->Pump = [this] { return Step(); };
  PlatformTrace& trace = Screen->Trace;
  trace.Shown = [this](const Form& form, bool modal) {
    Notes.push_back("show " + form.Name + (modal ? " modal" : ""));
  };
  trace.Hidden = [this](const Form& form) { Notes.push_back("hide " + form.Name); };
  trace.Released = [this](const Form& form) { Notes.push_back("release " + form.Name); };
  trace.MessageBox = [this](const String& text, int, const String&) { Notes.push_back("msgbox " + text); };
  trace.Beep = [this] { Notes.push_back("beep"); };
  trace.Pointer = [this](int pointer) { Notes.push_back("pointer " + std::to_string(pointer)); };
  trace.Help = [this](const String& path, int command, int context) {
    Notes.push_back("help " + path + " " + std::to_string(command) + " " + std::to_string(context));
  };
  trace.Focus = [this](const Control& control) { Notes.push_back("focus " + control.FullName()); };
  trace.Failed = [this](const RuntimeError& error, const String& in) {
    Notes.push_back("error " + std::to_string(error.Number()) + " in " + in);
    return true;
  };
}

TestScreen::~TestScreen() {
  Screen->Trace = {};
  Tools->Pump = nullptr;
}

bool TestScreen::Step() {
  if (steps_.empty()) return false;
  const std::function<void()> step = std::move(steps_.front());
  steps_.pop_front();
  step();
  return true;
}

void TestScreen::Run(std::vector<std::function<void()>> steps) {
  steps_.assign(steps.begin(), steps.end());
  while (Step()) {
  }
}

Control& TestScreen::Named(const String& control) const { return NamedControl(*Screen, control); }

void TestScreen::Click(const String& control) {
  Control& found = Named(control);
  const std::shared_ptr<Form> held = found.Owner.shared_from_this();
  ASSERT_EQ(Refusal(found), "") << control;
  if (Input::Press(found)) Input::Activate(found);
}

void TestScreen::Drag(const String& source, const String& target) {
  Control& from = Named(source);
  Control& to = Named(target);
  const std::shared_ptr<Form> held = from.Owner.shared_from_this();
  ASSERT_EQ(Refusal(from), "") << source;
  ASSERT_EQ(Refusal(to), "") << target;
  Screen->Drag.Begin(from);
  Screen->Drag.Over(to, 1.0F, 1.0F);
  Screen->Drag.Drop();
}

void TestScreen::Close() {
  Form* const form = Screen->ActiveForm();
  ASSERT_NE(form, nullptr);
  Input::CloseForm(*form);
}

String TestScreen::Active() const {
  const Form* const form = Screen->ActiveForm();
  return form == nullptr ? String() : form->Name;
}

Lines TestScreen::Forms() const {
  Lines names;
  for (const Form* form : Screen->Forms()) names.push_back(form->Name);
  return names;
}

TestHost::TestHost(const WizardData& model) : Wizard(std::make_unique<TRN_DEA>(Screen)) {
  mdTRNMain() = WizardData();
  WriteModel(Folder.File("model.kst"), model);
  TRN_DEA_Events& events = Wizard->Events();
  events.SendMasseges = [this](const String& text) { Noted("SendMasseges", "say " + text); };
  events.ExportDirectBW = [this](const String& type, auto&&...) { Noted("ExportDirectBW", "export " + type); };
  events.ExportTradeOffsBW = [this](auto&&...) { Noted("ExportTradeOffsBW", "export by the event never raised"); };
  events.ExportABScores = [this](auto&&...) { Noted("ExportABScores", "export points"); };
  events.UnloadTarnwise = [this](Integer fIndex, Boolean done) {
    Noted("UnloadTarnwise", "unload " + std::to_string(fIndex) + (done ? " done" : " cancelled"));
    if (Answers && Wizard) Wizard->UnloadTarnwise();
  };
}

TestHost::~TestHost() {
  InEvent = nullptr;
  Wizard.reset();
}

void TestHost::Load() { Wizard->GetCurFileData(String("C:/KESTA"), 3, Folder.File("model.kst")); }

void TestHost::Noted(const String& event, const String& note) {
  Notes.push_back(note);
  if (InEvent) InEvent(event);
}

}  // namespace Tarnwise
