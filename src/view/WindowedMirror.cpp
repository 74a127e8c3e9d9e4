#include "view/WindowedMirror.h"

#include "view/Gesture.h"
#include "view/Rows.h"

#include <utility>

namespace Tarnwise {

void WindowedMirror::Clicked(Control* control) {
  if (control != nullptr) Hand().Clicked(*this, *control);
}

void WindowedMirror::RowChosen(Control* list, int row) {
  if (list != nullptr) Hand().RowChosen(*this, *list, RowsOf(*list).First + row);
}

void WindowedMirror::ToolPressed(Control* bar, int tool) {
  if (bar != nullptr) Hand().ToolPressed(*this, static_cast<Toolbar&>(*bar), static_cast<std::size_t>(tool));
}

void WindowedMirror::Scrolled(Control* bar, int value, bool dragging) {
  if (bar != nullptr) Hand().Scrolled(*this, static_cast<VScrollBar&>(*bar), value, dragging);
}

void* WindowedMirror::NativeOf(const Control& control) const {
  const auto found = windows_.find(&control);
  return found == windows_.end() ? nullptr : found->second;
}

Control* WindowedMirror::OwnerOf(const void* window) const {
  const auto found = owners_.find(window);
  return found == owners_.end() ? nullptr : found->second;
}

void WindowedMirror::Keep(const Control& control, void* window) { windows_[&control] = window; }

void WindowedMirror::Watch(const void* window, Control& control) { owners_[window] = &control; }

void WindowedMirror::Lose(const void* window) {
  owners_.erase(window);
  std::erase_if(windows_, [window](const auto& entry) { return entry.second == window; });
}

void* WindowedMirror::KeyboardWindow() const {
  const Control* const active = Tree()->ActiveControl;
  void* const window = active != nullptr && IsUsable(*active) ? NativeOf(*active) : nullptr;
  return window != nullptr ? window : NativeOf(*Tree());
}

void WindowedMirror::Destroy(const Control& control) {
  if (const auto clock = clocks_.find(&control); clock != clocks_.end()) {
    StopClock(clock->second.Number);
    clocks_.erase(clock);
  }
  std::erase_if(owners_, [&control](const auto& entry) { return entry.second == &control; });
  const auto found = windows_.find(&control);
  if (found == windows_.end()) return;
  void* const window = found->second;
  windows_.erase(found);
  BuryWindow(window);
}

void WindowedMirror::DestroyAll() {
  for (const auto& [timer, clock] : std::exchange(clocks_, {})) StopClock(clock.Number);
  owners_.clear();
  windows_.clear();
  HideForm();
}

// One that runs as it should goes on: a change of something else is no new beginning.
void WindowedMirror::RunTimer(Timer& timer, int interval) {
  const auto running = clocks_.find(&timer);
  if (running != clocks_.end()) {
    if (running->second.Interval == interval) return;
    StopClock(running->second.Number);
    clocks_.erase(running);
  }
  if (interval > 0) clocks_[&timer] = {StartClock(interval), interval};
}

void WindowedMirror::TimeUp(int clock) {
  for (Control* control : Tree()->Controls()) {
    const auto running = clocks_.find(control);
    if (running == clocks_.end() || running->second.Number != clock) continue;
    Hand().Ticked(*this, static_cast<Timer&>(*control));
    return;
  }
}

}  // namespace Tarnwise
