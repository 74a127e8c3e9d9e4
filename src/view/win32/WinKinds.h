// The native window of each kind of control: how it is made, and how it is brought to what its record says.
// Programmatic changes raise nothing.
#pragma once

#include "view/Mirror.h"

#include "view/win32/WinApi.h"

#include <commctrl.h>

#include <optional>

namespace Tarnwise {

inline LRESULT Tell(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return SendMessageW(window, message, wParam, lParam);
}

class WinForm;

struct WinKind {
  const wchar_t* Class;
  DWORD Style;
  DWORD ExStyle;
  void (*Sync)(WinForm& form, Control& control, HWND window);
  void (*Made)(WinForm& form, Control& control, HWND window) = nullptr;  // what else it needs once
};

// Null for kinds without a window of their own: timers, lines, and shapes that only stand there.
const WinKind* KindOf(const Control& control);

bool IsBox(const Control& control);  // a window of our own class, drawn by PaintBoxWindow
bool IsContainer(const Control& control);

extern const WinKind kWinLabel;
extern const WinKind kWinBox;  // picture boxes, frames, images, and shapes that can be dragged
extern const WinKind kWinCommandButton;
extern const WinKind kWinOptionButton;
extern const WinKind kWinCheckBox;
extern const WinKind kWinToolbar;
extern const WinKind kWinTextBox;
extern const WinKind kWinListBox;
extern const WinKind kWinTabStrip;
extern const WinKind kWinComboBox;
extern const WinKind kWinImageCombo;
extern const WinKind kWinGrid;
extern const WinKind kWinScrollBar;

// A window class of this module without a procedure of its own, registered where it is not yet; its name.
const wchar_t* OwnClass(const wchar_t* name);

// The form's font, in the size of the present scale.
void UseBaseFont(const WinForm& form, HWND window);
void UseFont(HWND window, HFONT font);

// Rows of native lists, in the control's own numbers but for the chosen one.
int ChosenRow(const Control& control, HWND window);        // from 0
int RowAt(const Control& control, HWND window, POINT at);  // of a list box or a tab strip; -1 where there is none

// Text boxes.
Entered EnteredInto(HWND edit);
void TypeCharacter(HWND edit, int character);
LRESULT NarrowEdit(HWND edit, WPARAM wParam, LPARAM lParam);       // WM_NCCALCSIZE
LRESULT PaintEditBorder(HWND edit, WPARAM wParam, LPARAM lParam);  // WM_NCPAINT

// Scroll bars: what the code of a WM_VSCROLL makes of the value.
int ScrolledValue(const VScrollBar& bar, HWND window, int code);

// Tool bars: the button that is pressed, or would be, in the person's colours (NM_CUSTOMDRAW).
LRESULT PaintTool(WinForm& form, const Control& bar, const NMTBCUSTOMDRAW& drawn);

// Grids: what the list view notifies of.
std::optional<LRESULT> AnswerGrid(const WinForm& form, const NMHDR& notice);
void SpreadColumns(const Grid& grid, HWND list, double scale);

// --- what is drawn by the tree ---

constexpr const wchar_t* kBoxClass = L"TarnwiseBox";
constexpr int kBorderId = 1;  // the child window that is a bordered box's frame

// The area of the control's window, with what is behind it.
void PaintOnto(HDC dc, const WinForm& form, const Control& control, const RECT& area, bool pressed);
void PaintBoxWindow(const WinForm& form, const Control& control, HWND window);
void DrawRow(WinForm& form, const DRAWITEMSTRUCT& item);  // of a list box

}  // namespace Tarnwise
