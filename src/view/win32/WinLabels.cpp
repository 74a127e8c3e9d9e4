// Labels: static controls that we draw, so that they are see-through, fitted to their room, and lit where they signal.
#include "view/Captions.h"
#include "view/Painting.h"
#include "view/Speech.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinSurface.h"
#include "view/win32/WinText.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr int kSmooth = 3;
constexpr int kLitPadding = 8;

// A caption in the colour of highlighted text is a lit sign: it stands on the highlight's own colour.
void PaintLit(HDC dc, const WinForm& form, const Label& label, const RECT& client) {
  Canvas canvas(WidthOf(client), HeightOf(client), kSmooth);
  RECT area = client;
  MapWindowPoints(form.WindowOf(label), form.WindowOf(*label.Parent), reinterpret_cast<POINT*>(&area), 2);
  PaintGround(canvas, form, *label.Parent, area);
  WinSurface surface(canvas);
  PaintSign({surface, form.Colours(), form.Scale()}, ToPixelRect(client), form.Colours().Highlight);
  canvas.PutOnto(dc, 0, 0);
}

HWND MakeLabel(WinForm& form, Control& control, HWND parent) {
  const DWORD notify = control.Click || control.DragAutomatic ? SS_NOTIFY : 0;
  return NewChild(form, L"STATIC", SS_OWNERDRAW | notify, 0, parent);
}

bool IsMarked(const Label& label) {
  return MnemonicOf(label.Caption) != 0 && UnmarkedCaption(label.Caption) != label.Caption();
}

void SyncLabel(WinForm& form, Control& control, HWND window) {
  auto& label = static_cast<Label&>(control);
  const std::wstring plain = Wide(UnmarkedCaption(label.Caption));
  SetText(window, Wide(SpokenName(label)));
  RECT client{};
  GetClientRect(window, &client);
  const HFONT font = FittedFont(form.Scale(), label.Points, label.Bold, plain, client.right);
  const bool cut = !label.WordWrap && TextWidthIn(font, plain) > client.right + 1;
  if (label.ToolTipText().empty()) form.SetTip(window, cut ? plain : std::wstring());
  InvalidateRect(window, nullptr, FALSE);
}

void DrawLabel(WinForm& form, Control& control, const DRAWITEMSTRUCT& item) {
  const auto& label = static_cast<const Label&>(control);
  RECT room = item.rcItem;
  const LabelLook look = LookOf(label, form.Colours());
  if (look.Lit) {
    PaintLit(item.hDC, form, label, room);
    InflateRect(&room, -Scaled(kLitPadding / 2, form.Scale()), 0);
  } else if (!look.Ground) {
    PaintBehind(item.hDC, form, control, room);
  } else {
    FillRect(item.hDC, &room, form.BrushOf(*look.Ground));
  }
  const bool marked = IsMarked(label);
  const std::wstring text = Wide(marked ? MarkedCaption(label.Caption) : label.Caption());
  const std::wstring plain = Wide(UnmarkedCaption(label.Caption));
  const HFONT font = label.WordWrap ? BaseFont(form.Scale(), label.Points, label.Bold)
                                    : FittedFont(form.Scale(), label.Points, label.Bold, plain, WidthOf(room));
  const Selected selected(item.hDC, font);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, control.Enabled ? look.Ink : GetSysColor(COLOR_GRAYTEXT));
  const UINT across = label.Alignment == Align::Left ? DT_LEFT : label.Alignment == Align::Right ? DT_RIGHT : DT_CENTER;
  const UINT lines = label.WordWrap ? DT_WORDBREAK | DT_TOP : DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
  DrawTextW(item.hDC, text.c_str(), -1, &room, across | lines | (marked ? 0U : DT_NOPREFIX));
}

}  // namespace

const WinKind kWinLabel{MakeLabel, SyncLabel, DrawLabel};

}  // namespace Tarnwise
