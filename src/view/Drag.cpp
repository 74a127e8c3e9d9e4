#include "view/Drag.h"

#include "view/Dispatch.h"
#include "view/Keys.h"
#include "view/Reach.h"

#include <algorithm>

namespace Tarnwise {

namespace {

int DepthOf(const Control* control) {
  int depth = 0;
  for (; control != nullptr; control = control->Parent) ++depth;
  return depth;
}

// How deep the nearest container is that holds both.
int Closeness(const Control& a, const Control& b) {
  for (const Control* c = a.Parent; c != nullptr; c = c->Parent) {
    for (const Control* d = b.Parent; d != nullptr; d = d->Parent) {
      if (c == d) return DepthOf(c);
    }
  }
  return 0;
}

// The panels that take a drop, those nearest to the source first, from top to bottom.
std::vector<Control*> PanelsFor(const Control& source) {
  std::vector<Control*> panels;
  for (Control* control : source.Owner.Controls()) {
    if (control->Type == Kind::PictureBox && control->DragDrop && !control->DragAutomatic && IsUsable(*control) &&
        !IsCovered(*control)) {
      panels.push_back(control);
    }
  }
  std::stable_sort(panels.begin(), panels.end(), [&source](const Control* a, const Control* b) {
    const int ca = Closeness(source, *a);
    const int cb = Closeness(source, *b);
    if (ca != cb) return ca > cb;
    return a->Parent != b->Parent ? a->Parent->Order() < b->Parent->Order() : a->Top() < b->Top();
  });
  return panels;
}

}  // namespace

void DragSession::Begin(Control& source) {
  source_ = &source;
  target_ = nullptr;
  icon_ = source.DragIcon;
  if (icon_.empty() && source.Type == Kind::PictureBox) icon_ = static_cast<PictureBox&>(source).Picture;
}

bool DragSession::WouldBeTaken() const {
  if (source_ == nullptr || target_ == nullptr) return false;
  return target_->AcceptsDrop ? target_->AcceptsDrop(*source_) : target_->DragDrop != nullptr;
}

void DragSession::Notify(DragState state) {
  Control* const target = target_;
  Control* const source = source_;
  if (target == nullptr || source == nullptr || !target->DragOver) return;
  const auto handler = target->DragOver;
  Dispatch(*target, "DragOver", [&] { handler(*source, x_, y_, state); });
  KeepIcon();
}

// The handler may have given the source another one, or have ended the drag.
void DragSession::KeepIcon() {
  if (source_ != nullptr && !source_->DragIcon().empty()) icon_ = source_->DragIcon;
}

void DragSession::Over(Control& target, Single x, Single y) {
  if (source_ == nullptr) return;
  const bool enters = target_ != &target;
  if (enters && target_ != nullptr) Notify(DragState::Leave);
  target_ = &target;
  x_ = x;
  y_ = y;
  if (enters) Notify(DragState::Enter);
  if (target_ == &target) Notify(DragState::Over);
}

void DragSession::OverNothing() {
  if (target_ != nullptr) Notify(DragState::Leave);
  target_ = nullptr;
}

void DragSession::OverPoint(Double x, Double y) {
  if (source_ == nullptr) return;
  Control* const target = DragTargetAt(source_->Owner, {x, y});
  if (target == nullptr) {
    OverNothing();
    return;
  }
  const ControlPoint at = InScaleOf(*target, {x, y});
  Over(*target, at.X, at.Y);
}

void DragSession::Drop() {
  Control* const source = source_;
  Control* const target = target_;
  source_ = nullptr;
  target_ = nullptr;
  if (source == nullptr || target == nullptr || !target->DragDrop) return;
  const auto handler = target->DragDrop;
  Dispatch(*target, "DragDrop", [&] { handler(*source, x_, y_); });
}

void DragSession::Cancel() {
  OverNothing();
  source_ = nullptr;
}

bool DragSession::Key(int code, bool shift) {
  const bool across = code == kKeyLeft || code == kKeyRight;
  if (!across && code != kKeyUp && code != kKeyDown) return false;
  const bool forward = code == kKeyRight || code == kKeyDown;
  if (source_->KeyboardDrag == DragBy::Units) {
    const Single by = (forward ? 1.0F : -1.0F) * (shift ? 10.0F : 1.0F);
    Step(across ? by : 0.0F, across ? 0.0F : by);
  } else if (across && target_ != nullptr) {
    WalkAcross();
  } else {
    Walk(forward ? 1 : -1);
  }
  return true;
}

void DragSession::Step(Single dx, Single dy) {
  Control& area = *source_->Parent;
  if (target_ != &area) {
    x_ = source_->Left + source_->Width / 2.0F;
    y_ = source_->Top + source_->Height / 2.0F;
  }
  // A unit of a chart in twips is the pixel it is drawn in.
  const Single unit = area.Scale == ScaleMode::Pixels ? 1.0F : kTwipsPerPixel;
  Over(area, std::clamp(x_ + dx * unit, 0.0F, area.Width()), std::clamp(y_ + dy * unit, 0.0F, area.Height()));
}

void DragSession::OverMiddle(Control& target) {
  const ControlPoint middle = InScaleOf(target, MiddleOnForm(target));
  Over(target, middle.X, middle.Y);
}

void DragSession::Walk(int by) {
  const std::vector<Control*> panels = PanelsFor(*source_);
  if (panels.empty()) return;
  const auto present = std::find(panels.begin(), panels.end(), target_);
  std::ptrdiff_t next = by > 0 ? 0 : static_cast<std::ptrdiff_t>(panels.size()) - 1;
  if (present != panels.end()) {
    next = std::clamp<std::ptrdiff_t>(present - panels.begin() + by, 0, static_cast<std::ptrdiff_t>(panels.size()) - 1);
  }
  Control& target = *panels[static_cast<std::size_t>(next)];
  OverMiddle(target);
}

void DragSession::WalkAcross() {
  const std::vector<Control*> panels = PanelsFor(*source_);
  const auto other = std::find_if(panels.begin(), panels.end(),
                                  [this](const Control* panel) { return panel->Parent != target_->Parent; });
  if (other == panels.end()) return;
  Control& target = **other;
  OverMiddle(target);
}

void DragSession::Forget(const Control& control) {
  if (source_ == &control) {
    source_ = nullptr;
    target_ = nullptr;
  }
  if (target_ == &control) target_ = nullptr;
}

int PointerOver(const Control& control) {
  return control.DragAutomatic && control.MousePointer == kNoDrop ? 0 : control.MousePointer();
}

}  // namespace Tarnwise
