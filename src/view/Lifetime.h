// Windows of a form that is released, or of a control that is unloaded, inside one of its own handlers: the platform
// still runs code of theirs then. They are hidden at once and destroyed when none of it can be on the stack any more.
#pragma once

#include "view/Form.h"

#include <functional>
#include <memory>

namespace Tarnwise {

// Stands on the stack while what a person did is carried out: holds the form, and with it the platform and the toolkit.
class Entry {
 public:
  explicit Entry(Form& form);
  ~Entry();
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;

 private:
  std::shared_ptr<Form> form_;
};

// Destroys a window, or all of a form's, once what runs now on this thread has returned; and where it is the form's,
// the outermost of what is carried out on that form: it may wait in a modal call.
void Bury(std::function<void()> destroy, const Form* of = nullptr);

// How a toolkit has Dig called from the thread's message loop. `atOnce`: what is buried while nothing runs need not
// wait for it.
void DigBy(std::function<void()> soon, bool atOnce);
void Dig();     // destroys what nothing on the stack can need any more
void DigAll();  // no loop will come any more
bool IsDug();   // nothing waits

}  // namespace Tarnwise
