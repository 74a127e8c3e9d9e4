// Drags by the mouse, and what is seen of a drag.
#include "view/Gesture.h"
#include "view/Lifetime.h"
#include "view/Platform.h"

#include <utility>

namespace Tarnwise {

void Gesture::BeginDrag() {
  if (dragging_ || source_ == nullptr) return;
  dragging_ = true;
  platform_.Drag.Begin(*source_);
}

bool Gesture::MoveDrag(FormPoint at) {
  if (source_ == nullptr || armed_ == nullptr) return false;
  if (!dragging_ && !armed_->IsFar(start_, at)) return false;
  Mirror& mirror = *armed_;
  const Entry entry(*mirror.Tree());
  BeginDrag();
  if (PlaceOnForm(*mirror.Tree()).Contains(at.X, at.Y)) {
    platform_.Drag.OverPoint(at.X, at.Y);
  } else {
    platform_.Drag.OverNothing();
  }
  if (dragging_ && mirror.Tree() != nullptr) Follow(mirror, at);
  return true;
}

void Gesture::CancelDrag() { EndDrag(&DragSession::Cancel); }

bool Gesture::EndDrag(void (DragSession::*how)()) {
  if (!dragging_ || armed_ == nullptr) {
    ClearDrag();
    return false;
  }
  const Entry entry(*armed_->Tree());
  ClearDrag();
  (platform_.Drag.*how)();
  return true;
}

void Gesture::ShowDrag(Mirror& mirror) {
  if (dragging_) return;
  const DragSession& drag = platform_.Drag;
  if (drag.Active() && &drag.Source()->Owner == mirror.Tree()) {
    Follow(mirror, PointerOf(drag));
  } else if (source_ == nullptr) {
    ClearDrag();
  }
}

void Gesture::Follow(Mirror& mirror, FormPoint at) {
  const DragSession& drag = platform_.Drag;
  if (!drag.Active()) {
    ClearDrag();
    return;
  }
  seenIn_ = &mirror;
  Control& source = *drag.Source();
  // What the handlers move themselves needs no second picture.
  const bool own = drag.Icon().empty() && source.KeyboardDrag != DragBy::Units;
  mirror.ShowCarried({source, drag.Icon(), own, at, dragging_, drag.WouldBeTaken()});
}

void Gesture::ClearDrag() {
  dragging_ = false;
  source_ = nullptr;
  armed_ = nullptr;
  if (seenIn_ != nullptr) std::exchange(seenIn_, nullptr)->HideCarried();
}

}  // namespace Tarnwise
