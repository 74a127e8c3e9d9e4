// Automatic drag: a source is carried over the form, the control under the pointer is told, and gets the drop. Toolkits
// feed it with pointer positions, and the keyboard gives the very same notifications.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

class DragSession {
 public:
  bool Active() const { return source_ != nullptr; }
  Control* Source() const { return source_; }
  Control* Target() const { return target_; }
  Single X() const { return x_; }  // where the pointer stands on the target, in its scale
  Single Y() const { return y_; }

  // What is seen of it, whatever MousePointer and DragIcon of the source say for the moment: whether a drop where the
  // pointer stands would be taken, and the picture that stands for the source everywhere. Path or name of the last
  // DragIcon that it had, before the first one its own picture; empty when it has none.
  bool WouldBeTaken() const;
  const String& Icon() const { return icon_; }

  void Begin(Control& source);

  // The pointer stands at (x, y) of a control that takes drags, in that control's scale; or over nothing that does.
  void Over(Control& target, Single x, Single y);
  void OverNothing();
  // The pointer stands at a point of the source's form, in twips.
  void OverPoint(Double x, Double y);

  void Drop();    // on the present target; without one nothing happens
  void Cancel();  // the target gets its leave

  // Keyboard: arrows walk the targets, or move the pointer by units of the target's scale. Returns false when the key
  // is none of the drag's.
  bool Key(int code, bool shift);

  void Forget(const Control& control);

 private:
  void Notify(DragState state);
  void KeepIcon();
  void Step(Single dx, Single dy);
  void OverMiddle(Control& target);
  void Walk(int by);
  void WalkAcross();

  Control* source_ = nullptr;
  Control* target_ = nullptr;
  Single x_ = 0.0F;
  Single y_ = 0.0F;
  String icon_;
};

// The shape of the pointer over a control while nothing is dragged. A drag may leave its no-drop shape with the source,
// where it says nothing any more.
int PointerOver(const Control& control);

}  // namespace Tarnwise
