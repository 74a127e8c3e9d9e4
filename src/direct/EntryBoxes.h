// The two boxes in which an interval is typed: which keys pass, and what is checked when one is left.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

enum class EntryBox { Lower, Upper };

struct EntryBoxes {
  // `away` is where Return sends the focus.
  EntryBoxes(TextBox& lower, TextBox& upper, Control& away);

  std::function<void(EntryBox)> Typed;  // a box was left, or Return pressed in it, with a value that passes

  Double Lower() const;
  Double Upper() const;
  void Show(const String& lower, const String& upper);

  // Ready for use, but no event calls it: an upper value below the lower one is let through, and the chart sorts the
  // two.
  void CheckUpperEntry(TextBox& box);

  Integer mEntryOK = 0;  // 1 after a passed check

 private:
  void Connect(TextBox& box, EntryBox which);
  void FilterEntryKey(TextBox& box, EntryBox which, KeyEvent& key);
  void CheckEntry(TextBox& box);
  void RefuseEntry(TextBox& box, const String& wanted);
  void EntryLeft(TextBox& box, EntryBox which);

  TextBox& lower_;
  TextBox& upper_;
  Control& away_;
  bool returning_ = false;  // Return is moving the focus: leaving the box is part of it
};

}  // namespace Tarnwise
