// What a person does to a form, as the events that a control raises for it. Toolkits call these; they go the road of a
// real press or key: the focus moves first, and a message on the way ends the matter.
#pragma once

#include "view/Form.h"

namespace Tarnwise::Input {

// The press: moves the focus where the control takes it. False when the click must not follow, because a modal form
// keeps the input from this one, or the move raised a message or left the control disabled, hidden or on a released
// form.
bool Press(Control& control);
// The focus goes to the control; false as with Press.
bool MoveFocus(Control& control);

// What the release does after a good press: toggles, chooses, raises Click.
void Activate(Control& control);
void SelectRow(Control& list, int index);  // in the control's own numbers
void PressToolButton(Toolbar& toolbar, const String& key);
void ScrollTo(VScrollBar& bar, int value, bool dragging);
// The wheel has turned over the control, in 120ths of a notch, positive away from the person: the bar that it is, or
// that of the nearest viewport around it, goes by three small changes a notch. False: a control that scrolls by itself.
bool Wheel(Control& control, int by);
void Tick(Timer& timer);
void CloseForm(Form& form);

// Text boxes. KeyDown and KeyPress return false when the key was dropped; KeyPress may have replaced it.
bool KeyDown(TextBox& box, KeyEvent& key);
bool KeyPress(TextBox& box, KeyEvent& key);
void KeyUp(TextBox& box, KeyEvent key);
// Behind the last character, with nothing selected; what is no text box is left alone.
void PutCaretAtEnd(Control& control);
// The text has become this one by the person's hand.
void TextEdited(TextBox& box, const String& text, int caret);

// A key on the control with the focus that is no text box: Space and Return press, pick up and drop, arrows choose rows
// and scroll, a letter or a digit goes to the next row that begins with it. False: not used.
bool ControlKey(Control& control, int code, int shift);
// Tab and Shift+Tab.
void TabKey(Form& form, bool back);

}  // namespace Tarnwise::Input
