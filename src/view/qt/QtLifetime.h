// Widgets of a form that is released, or of a control that is unloaded, inside one of its own handlers: Qt still runs
// their code then. They are hidden at once and deleted when none of it can be on the stack any more.
#pragma once

#include "view/Form.h"

#include <QObject>
#include <memory>

namespace Tarnwise {

// Stands on the stack while what a person did is carried out: holds the form, and with it the platform and the toolkit.
class QtEntry {
 public:
  explicit QtEntry(Form& form);
  ~QtEntry();
  QtEntry(const QtEntry&) = delete;
  QtEntry& operator=(const QtEntry&) = delete;

 private:
  std::shared_ptr<Form> form_;
};

// Deletes the object once what runs now has returned.
void Bury(QObject* object);

}  // namespace Tarnwise
