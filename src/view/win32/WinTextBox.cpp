// Text boxes and scroll bars.
#include "runtime/Utf8.h"
#include "view/Keys.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <commctrl.h>

#include <algorithm>

namespace Tarnwise {

namespace {

struct Selection {
  int From = 0;
  int To = 0;
};

Selection SelectionOf(HWND edit) {
  DWORD from = 0;
  DWORD to = 0;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
  return {static_cast<int>(from), static_cast<int>(to)};
}

// The line stands in the middle of the box: what is above and below it is made part of the border.
int PaddingOf(HWND edit, int height) {
  const HDC dc = GetDC(edit);
  TEXTMETRICW metrics{};
  {
    const Selected font(dc, reinterpret_cast<HFONT>(SendMessageW(edit, WM_GETFONT, 0, 0)));
    GetTextMetricsW(dc, &metrics);
  }
  ReleaseDC(edit, dc);
  return std::max((height - static_cast<int>(metrics.tmHeight)) / 2, 0);
}

void SyncTextBox(WinForm& form, Control& control, HWND window) {
  auto& box = static_cast<TextBox&>(control);
  UseBaseFont(form, window);
  RECT client{};
  GetClientRect(window, &client);
  if (PaddingOf(window, HeightOf(client)) > 1) {
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  SetText(window, Wide(box.Text));
  const int start = Utf16UnitsBefore(box.Text(), box.SelStart);
  const int end = Utf16UnitsBefore(box.Text(), box.SelStart() + box.SelLength());
  const Selection now = SelectionOf(window);
  if (now.From != start || now.To != end) {
    SendMessageW(window, EM_SETSEL, static_cast<WPARAM>(start), static_cast<LPARAM>(end));
  }
}

constexpr int kPageOf = 1;

void SyncScrollBar(WinForm& /*form*/, Control& control, HWND window) {
  const auto& bar = static_cast<const VScrollBar&>(control);
  SCROLLINFO wanted{sizeof wanted,
                    SIF_RANGE | SIF_PAGE | SIF_POS,
                    bar.Min,
                    bar.Max + std::max(bar.LargeChange() - kPageOf, 0),
                    static_cast<UINT>(bar.LargeChange()),
                    bar.Value,
                    0};
  SCROLLINFO now{sizeof now, SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(window, SB_CTL, &now);
  if (now.nMin == wanted.nMin && now.nMax == wanted.nMax && now.nPage == wanted.nPage && now.nPos == wanted.nPos)
    return;
  SetScrollInfo(window, SB_CTL, &wanted, IsWindowVisible(window));
}

}  // namespace

LRESULT NarrowEdit(HWND edit, WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = DefSubclassProc(edit, WM_NCCALCSIZE, wParam, lParam);
  auto& client = *reinterpret_cast<RECT*>(lParam);
  const int padding = PaddingOf(edit, HeightOf(client));
  client.top += padding;
  client.bottom -= padding;
  return answer;
}

LRESULT PaintEditBorder(HWND edit, WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = DefSubclassProc(edit, WM_NCPAINT, wParam, lParam);
  RECT window{};
  RECT client{};
  GetWindowRect(edit, &window);
  GetClientRect(edit, &client);
  MapWindowPoints(edit, nullptr, reinterpret_cast<POINT*>(&client), 2);
  OffsetRect(&client, -window.left, -window.top);
  const int edge = client.left;
  const RECT above{edge, edge, client.right, client.top};
  const RECT below{edge, client.bottom, client.right, HeightOf(window) - edge};
  const HDC dc = GetWindowDC(edit);
  const HBRUSH ground = GetSysColorBrush(IsWindowEnabled(edit) != 0 ? COLOR_WINDOW : COLOR_BTNFACE);
  FillRect(dc, &above, ground);
  FillRect(dc, &below, ground);
  ReleaseDC(edit, dc);
  return answer;
}

Entered EnteredInto(HWND edit) {
  const String text = Utf8(TextOf(edit));
  const Selection selection = SelectionOf(edit);
  const int start = CharactersBefore(text, selection.From);
  const int end = CharactersBefore(text, selection.To);
  return {text, start, end - start, end};
}

void TypeCharacter(HWND edit, int character) {
  if (character == kCtrlA) {
    SendMessageW(edit, EM_SETSEL, 0, -1);
  } else if (character >= kBlank && character != kRubOut) {
    const std::wstring typed = WideCharacter(static_cast<char32_t>(character));
    SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(typed.c_str()));
  } else if (character != kTypedReturn && character != kTypedEscape && character < kBlank) {
    DefSubclassProc(edit, WM_CHAR, static_cast<WPARAM>(character), 0);  // backspace, the clipboard, undo
  }
}

int ScrolledValue(const VScrollBar& bar, HWND window, int code) {
  switch (code) {
    case SB_LINEUP: return bar.Value - bar.SmallChange;
    case SB_LINEDOWN: return bar.Value + bar.SmallChange;
    case SB_PAGEUP: return bar.Value - bar.LargeChange;
    case SB_PAGEDOWN: return bar.Value + bar.LargeChange;
    case SB_TOP: return bar.Min;
    case SB_BOTTOM: return bar.Max;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
      SCROLLINFO now{sizeof now, SIF_TRACKPOS | SIF_POS, 0, 0, 0, 0, 0};
      GetScrollInfo(window, SB_CTL, &now);
      return std::clamp(now.nTrackPos, static_cast<int>(bar.Min()), static_cast<int>(bar.Max()));
    }
    default: return bar.Value;
  }
}

const WinKind kWinTextBox{L"EDIT", ES_AUTOHSCROLL | ES_LEFT, WS_EX_CLIENTEDGE, SyncTextBox};
const WinKind kWinScrollBar{L"SCROLLBAR", SBS_VERT, 0, SyncScrollBar};

}  // namespace Tarnwise
