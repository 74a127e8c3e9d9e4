// A host of its own for tests of what a host may do inside an event, and of forms by themselves. No screen.
#pragma once

#include "support/Session.h"
#include "view/headless/HeadlessToolkit.h"

#include <tarnwise/TRN_DEA.h>

#include <deque>
#include <functional>

namespace Tarnwise {

// A screen that nobody looks at, and a note of what happened on it: "show frmDirectB modal", "hide ...",
// "release ...", "beep", "pointer 11", "msgbox TEXT", "error 9 in frmDirectB.Form_Load", "help PATH", "focus NAME".
class TestScreen {
 public:
  TestScreen();
  ~TestScreen();
  TestScreen(const TestScreen&) = delete;
  TestScreen& operator=(const TestScreen&) = delete;

  // What a user does next, carried out one after the other, inside modal calls too.
  void Run(std::vector<std::function<void()>> steps);
  bool StepsLeft() const { return !steps_.empty(); }

  // User actions on the active form. One that a person could not do now fails the test.
  void Click(const String& control);
  void Drag(const String& source, const String& target);
  void Close();
  Control& Named(const String& control) const;
  String Active() const;  // the active form's name, empty without one
  Lines Forms() const;    // names of the forms that exist
  Lines TakeNotes() { return std::exchange(Notes, {}); }

  std::shared_ptr<HeadlessToolkit> Tools = std::make_shared<HeadlessToolkit>();
  std::shared_ptr<Platform> Screen = std::make_shared<Platform>(Tools);
  Lines Notes;

 private:
  bool Step();

  std::deque<std::function<void()>> steps_;
};

// A step form without the class around it, loaded and shown.
template <class StepForm>
struct OpenForm : TestScreen {
  explicit OpenForm(const WizardData& model) : Data(model), Form(std::make_shared<StepForm>(Screen, Data)) {
    Form->SendMasseges = [this](const String& text) { Notes.push_back("say " + text); };
    Screen->Created(*Form);
  }
  ~OpenForm() { Screen->Release(*Form); }

  OpenForm& Open() {
    Form->Load();
    Screen->Show(*Form);
    return *this;
  }

  WizardData Data;
  std::shared_ptr<StepForm> Form;
};

// The wizard and a host that notes its events and answers UnloadTarnwise by the method.
class TestHost : public TestScreen {
 public:
  explicit TestHost(const WizardData& model);
  ~TestHost();

  void Load();  // GetCurFileData

  std::unique_ptr<TRN_DEA> Wizard;
  TemporaryFolder Folder;
  bool Answers = true;
  // Called inside the event of that name, after it was noted; empty for none.
  std::function<void(const String& event)> InEvent;

 private:
  void Noted(const String& event, const String& note);
};

}  // namespace Tarnwise
