// What a screen reader is told of labels: what they are called, and what of them is news.
#pragma once

#include "view/Form.h"

namespace Tarnwise {

// What it is called. A label or a frame says its caption, without marks, behind the accessible name where it has one:
// "Cost reference: Nurses". Empty where the native control's own text says it.
String SpokenName(const Control& control);

// What the form's labels say, when it comes to the screen, is no news.
void TakeAsTold(const Form& form);

// Those of the form's changed labels that now say what they did not say when they were asked the last time.
std::vector<Label*> TakeNews(const Form& form);

}  // namespace Tarnwise
