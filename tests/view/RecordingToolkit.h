// A whole toolkit in one file: it shows forms on a list of lines. What a toolkit has to say is what stands here; all
// the rest is the tree's.
#pragma once

#include "view/Gesture.h"
#include "view/Mirror.h"
#include "view/Platform.h"

#include <cmath>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Tarnwise {

class RecordingMirror : public Mirror {
 public:
  RecordingMirror(Form& form, std::vector<String>& lines) : Mirror(form), lines_(lines) { windows_.insert(&form); }

  bool HasWindow(const Control& control) const override { return windows_.count(&control) != 0; }
  void FocusTree() override {
    const Control* const active = Tree() == nullptr ? nullptr : Tree()->ActiveControl;
    if (active != focus_ && active != nullptr) Note("focus", *active);
    focus_ = active;
  }
  Touch TouchOf(const Control& control, FormPoint at) const override {
    return {PlaceOnForm(control).Contains(at.X, at.Y), -1};
  }
  bool IsFar(FormPoint from, FormPoint to) const override {
    return std::abs(to.X - from.X) + std::abs(to.Y - from.Y) > 100.0;
  }
  Entered EnteredIn(const TextBox& box) const override { return {box.Text, box.SelStart, box.SelLength, 0}; }
  void Announce(const Label& label, bool /*renamed*/) override { Note("announce", label); }
  void ShowCarried(const Carried& carried) override { Note(carried.Taken ? "carried" : "refused", carried.Source); }
  void HideCarried() override { lines_.emplace_back("carried no more"); }

 protected:
  bool Create(Control& control) override {
    Note("create", control);
    return windows_.insert(&control).second;
  }
  void PutAt(Control& /*control*/, const PixelRect& /*place*/) override {}
  void Apply(Control& control) override { Note("apply", control); }
  void ShowTip(const Control& control, const String& tip) override {
    if (!tip.empty()) lines_.push_back("tip " + control.FullName() + ": " + tip);
  }
  int TextWidth(const String& text, const TypeFace& face) const override {
    return static_cast<int>(text.size()) * face.Points;
  }
  void ApplyForm() override { Note("apply", *Tree()); }
  void Destroy(const Control& control) override {
    if (windows_.erase(&control) != 0) Note("destroy", control);
  }
  void DestroyAll() override { lines_.emplace_back("destroy all"); }
  void Repaint(const Control& container, const PixelRect& area) override {
    if (area.Width() > 0) Note("repaint", container);
  }
  void ToFront(const Control& control) override { Note("front", control); }
  void BorderToFront(const Control& /*container*/) override {}
  void RunTimer(Timer& timer, int interval) override { Note(interval > 0 ? "run" : "stop", timer); }

 private:
  void Note(const char* what, const Control& control) { lines_.push_back(String(what) + " " + control.FullName()); }

  std::vector<String>& lines_;
  std::set<const Control*> windows_;
  const Control* focus_ = nullptr;
};

class RecordingToolkit : public Toolkit {
 public:
  std::vector<String> Lines;

  RecordingMirror& MirrorOf(const Form& form) { return *mirrors_.at(&form); }

  void Show(Form& form, Showing /*how*/) override {
    auto& mirror = mirrors_[&form];
    if (mirror) return;
    mirror = std::make_unique<RecordingMirror>(form, Lines);
    mirror->SyncAll();
  }
  void Hide(Form& /*form*/) override {}
  void Release(Form& form) override {
    if (const auto found = mirrors_.find(&form); found != mirrors_.end()) found->second->Release();
  }
  void ControlUnloaded(Control& control) override {
    if (const auto found = mirrors_.find(&control.Owner); found != mirrors_.end()) found->second->Forget(control);
  }
  void Sync(Form& form) override {
    if (const auto found = mirrors_.find(&form); found != mirrors_.end()) found->second->Sync();
  }
  void RunModal(Form& form) override {
    while (form.Visible && !form.Released && Pump && Pump()) {
    }
  }
  void MessageBox(Form* /*over*/, const String& text, int /*style*/, const String& /*title*/) override {
    Lines.push_back("message " + text);
  }
  void Beep() override {}
  void SetPointer(int /*pointer*/) override {}
  void Help(Form& /*form*/, const String& /*path*/, int /*command*/, int /*context*/) override {}
  WindowHandle WindowOf(const Form& /*form*/) override { return 0; }
  void Focus(Control& /*control*/) override {}
  void AnnounceChange(Label& /*label*/) override {}
  Single TextWidth(const String& /*text*/) override { return 0.0F; }
  Single ScreenWidth() override { return 28800.0F; }
  Single ScreenHeight() override { return 16200.0F; }

 private:
  std::map<const Form*, std::unique_ptr<RecordingMirror>> mirrors_;
};

}  // namespace Tarnwise
