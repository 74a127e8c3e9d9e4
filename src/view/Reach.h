// Where controls stand and what a person can get at: geometry on the form, covering, hit testing, tab order.
#pragma once

#include "view/Drag.h"
#include "view/Form.h"

#include <vector>

namespace Tarnwise {

// Double, so that a point on a control is the same again after its way to the form and back.
struct Rect {
  Double X = 0.0;
  Double Y = 0.0;
  Double W = 0.0;
  Double H = 0.0;
  bool Contains(Double x, Double y) const { return x >= X && y >= Y && x <= X + W && y <= Y + H; }
  bool Contains(const Rect& r) const { return r.X >= X && r.Y >= Y && r.X + r.W <= X + W && r.Y + r.H <= Y + H; }
};

struct FormPoint {  // twips
  Double X = 0.0;
  Double Y = 0.0;
};

struct ControlPoint {  // in the control's own scale
  Single X = 0.0F;
  Single Y = 0.0F;
};

// Twips in a unit of the container that the control stands in, or of the control's own scale.
Double UnitOf(const Control& container);

// The control on its form, in twips; a point of it there, and back.
Rect PlaceOnForm(const Control& control);
FormPoint OnForm(const Control& control, ControlPoint at);
FormPoint MiddleOnForm(const Control& control);
ControlPoint InScaleOf(const Control& control, FormPoint at);
// The part of it that its viewports let through; no width or height when there is none.
Rect VisiblePlace(const Control& control);

bool IsOnScreen(const Control& control);  // it and all it stands in are visible
bool IsUsable(const Control& control);    // and enabled
bool IsCovered(const Control& control);   // a panel stands in front of it or of what it stands in
bool TakesFocus(const Control& control);  // by its kind, from a press
bool TakesTab(const Control& control);    // Tab also goes to toolbars, whose buttons a press leaves without the focus

// What toolkits ask of a kind: a native control that does the rest of a press by itself, a caption that is cut where
// there is no room, rows of which a press chooses one, keys that the native control may answer when the tree has no use
// for them.
bool FollowsMouse(const Control& control);
bool HasCaption(const Control& control);
bool HasRows(const Control& control);
bool AnswersKeys(const Control& control);

// The control that a label's mnemonic leads to: the next one in the tab order, in which a label stands in front of the
// control with its own number. Null when there is none, or when the label has no place in that order.
Control* LabelledBy(const Label& label);

// Why a person can't act on the control now: "hidden", "disabled", "covered", "blocked by a modal form"; empty: can.
String Refusal(const Control& control);

// The topmost visible control at a point of the form (twips) that handles drag notifications; null when there is none.
Control* DragTargetAt(const Form& form, FormPoint at);
// Where a drag's pointer stands; over nothing that takes it, the middle of its source.
FormPoint PointerOf(const DragSession& drag);
// The control itself or the nearest container of it that handles drag notifications.
Control* DragTargetFor(Control& control);

// Children of a container, back to front.
std::vector<Control*> ChildrenOf(const Form& form, const Control* container);

// The next control that Tab goes to (or the previous one), null when there is none.
Control* NextInTabOrder(const Form& form, bool back);

}  // namespace Tarnwise
