#include "view/Speech.h"

#include "view/Captions.h"
#include "view/Lettering.h"
#include "view/Reach.h"

#include <utility>

namespace Tarnwise {

namespace {

// The part of it that is told without asking; empty: nothing.
String SaidBy(const Label& label) {
  const bool speaks =
      label.Announces == Announce::Caption || (label.Announces == Announce::Lit && label.ForeColor == kHighlightText);
  return speaks && IsOnScreen(label) ? label.Caption() : String();
}

// True when it says something, and not what it said before.
bool TakeSaid(Label& label) {
  const String former = std::exchange(label.Told, SaidBy(label));
  return !label.Told.empty() && label.Told != former;
}

}  // namespace

String SpokenName(const Control& control) {
  if (control.Type != Kind::Label && control.Type != Kind::Frame) return control.AccessibleName;
  const String caption = UnmarkedCaption(CaptionOf(control));
  return control.AccessibleName().empty() ? caption : control.AccessibleName() + ": " + caption;
}

void TakeAsTold(const Form& form) {
  for (Control* control : form.Controls()) {
    if (control->Type == Kind::Label) TakeSaid(static_cast<Label&>(*control));
  }
}

std::vector<Label*> TakeNews(const Form& form) {
  std::vector<Label*> news;
  for (Control* control : form.ChangedControls) {
    if (control->Type != Kind::Label) continue;
    auto& label = static_cast<Label&>(*control);
    if (TakeSaid(label)) news.push_back(&label);
  }
  return news;
}

}  // namespace Tarnwise
