// A form: a window with its controls. Forms are shared objects, so that the one whose handler runs outlives its own
// release; see view/Dispatch.h.
#pragma once

#include "view/Controls.h"

#include <map>
#include <memory>

namespace Tarnwise {

class Platform;

struct Form : Control, std::enable_shared_from_this<Form> {
  Form(std::shared_ptr<Platform> platform, String name);
  ~Form() override;

  Platform& Screen() const { return *platform_; }

  virtual void Load() {}        // once, before it is shown; a fault in it ends the creation
  virtual void Activate() {}    // each time it is shown
  virtual void CloseBox() {}    // the window's own close button
  virtual void Disconnect() {}  // its events reach nobody from now on

  // The control of that name; of an array the element `index`. Null when there is none.
  Control* Find(const String& name, int index = -1) const;
  // The elements of a control array that exist, 0 when there is no such array.
  int CountOf(const String& name) const;

  // Controls in the order in which they came to be. A front order is given to each on its way in.
  const std::vector<Control*>& Controls() const { return controls_; }

  Property<String> Caption{*this, {}};
  Control* ActiveControl = nullptr;  // has the focus while the form is the active one
  bool Released = false;
  std::vector<Control*> ChangedControls;  // what the screen does not show yet

 private:
  friend struct Control;
  void Register(Control& control);
  void Unregister(Control& control);

  const std::shared_ptr<Platform> platform_;
  std::vector<Control*> controls_;
  int nextOrder_ = 1;
};

// A control array: elements by number, made on demand. An element that is there already is error 360, one that is not
// there is error 340.
template <class T>
class ControlArray {
 public:
  // `design` gives an element its design-time look.
  ControlArray(Form& form, Control* parent, String name, std::function<void(T&)> design)
      : form_(form), parent_(parent), name_(std::move(name)), design_(std::move(design)) {
    Load(0);
  }

  T& operator[](int index) const {
    const auto found = elements_.find(index);
    if (found == elements_.end()) throw RuntimeError(340);
    return *found->second;
  }

  T& Load(int index) {
    if (Has(index)) throw RuntimeError(360);
    auto& element = elements_[index] = std::make_unique<T>(form_, parent_, name_);
    element->Index = index;
    design_(*element);
    if (wire_) wire_(*element);
    return *element;
  }

  // An element of the array inside another container than the first one's.
  T& Load(int index, Control* parent) {
    Control* const former = std::exchange(parent_, parent);
    T& element = Load(index);
    parent_ = former;
    return element;
  }

  void Unload(int index) {
    if (elements_.erase(index) == 0) throw RuntimeError(340);
  }

  bool Has(int index) const { return elements_.count(index) != 0; }
  int Count() const { return static_cast<int>(elements_.size()); }

  // Connects the events of every element, those to come included.
  void Wire(std::function<void(T&)> wire) {
    wire_ = std::move(wire);
    for (auto& [index, element] : elements_) wire_(*element);
  }

  // Elements in ascending number.
  template <class Visit>
  void Each(Visit visit) const {
    for (const auto& [index, element] : elements_) visit(*element);
  }

 private:
  Form& form_;
  Control* parent_;
  String name_;
  std::function<void(T&)> design_;
  std::function<void(T&)> wire_;
  std::map<int, std::unique_ptr<T>> elements_;
};

}  // namespace Tarnwise
