// List boxes, tab strips and combos.
#include "view/Captions.h"
#include "view/Rows.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <commctrl.h>

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr int kRowHeight = 24;  // pixels of the design, of a list box
constexpr int kIconSide = 16;

// A list box or a plain combo, by its own numbers of the same messages.
struct ListMessages {
  UINT Count;
  UINT TextLength;
  UINT Text;
  UINT Delete;
  UINT Insert;
  UINT Current;
  UINT SetCurrent;
};

constexpr ListMessages kOfListBox{LB_GETCOUNT,     LB_GETTEXTLEN, LB_GETTEXT,  LB_DELETESTRING,
                                  LB_INSERTSTRING, LB_GETCURSEL,  LB_SETCURSEL};
constexpr ListMessages kOfCombo{CB_GETCOUNT,     CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_DELETESTRING,
                                CB_INSERTSTRING, CB_GETCURSEL,    CB_SETCURSEL};

std::wstring NativeText(HWND window, const ListMessages& list, int row) {
  std::wstring text(static_cast<std::size_t>(Tell(window, list.TextLength, static_cast<WPARAM>(row))) + 1, L'\0');
  const LRESULT length = Tell(window, list.Text, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
  return text;
}

// Counted from 0, as Windows does; -1: none.
int ChosenOf(const Control& control) { return RowsOf(control).Chosen - RowsOf(control).First; }

void SyncRows(HWND window, const ListMessages& list, const Control& control) {
  const std::vector<String> texts = RowTexts(control);
  const int wanted = static_cast<int>(texts.size());
  while (Tell(window, list.Count) > wanted) Tell(window, list.Delete, static_cast<WPARAM>(wanted));
  for (int i = 0; i < wanted; ++i) {
    const std::wstring text = Wide(texts[static_cast<std::size_t>(i)]);
    const auto row = static_cast<WPARAM>(i);
    const bool there = i < Tell(window, list.Count);
    if (there && NativeText(window, list, i) == text) continue;
    if (there) Tell(window, list.Delete, row);
    Tell(window, list.Insert, row, reinterpret_cast<LPARAM>(text.c_str()));
  }
  const int chosen = ChosenOf(control);
  if (Tell(window, list.Current) != chosen) Tell(window, list.SetCurrent, static_cast<WPARAM>(chosen));
}

void SyncListBox(WinForm& form, Control& control, HWND window) {
  UseBaseFont(form, window);
  const int height = Scaled(kRowHeight, form.Scale());
  if (Tell(window, LB_GETITEMHEIGHT) != height) Tell(window, LB_SETITEMHEIGHT, 0, height);
  SyncRows(window, kOfListBox, control);
}

void SyncTabStrip(WinForm& form, Control& control, HWND window) {
  UseBaseFont(form, window);
  const std::vector<String> captions = RowTexts(control);
  const int wanted = static_cast<int>(captions.size());
  while (TabCtrl_GetItemCount(window) > wanted) TabCtrl_DeleteItem(window, wanted);
  for (int i = 0; i < wanted; ++i) {
    std::wstring caption = Wide(MarkedCaption(captions[static_cast<std::size_t>(i)]));
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    const UINT put = i >= TabCtrl_GetItemCount(window) ? TCM_INSERTITEMW : TCM_SETITEMW;
    Tell(window, put, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
  if (TabCtrl_GetCurSel(window) != ChosenOf(control)) TabCtrl_SetCurSel(window, ChosenOf(control));
}

// The closed part is as high as the record says.
void SetClosedHeight(HWND combo, const Control& control, double scale) {
  const int height = std::max(PixelPlace(control, scale).Height() - Scaled(6, scale), 8);
  if (Tell(combo, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)) != height) {
    Tell(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
  }
}

void SyncComboBox(WinForm& form, Control& control, HWND window) {
  UseBaseFont(form, window);
  SetClosedHeight(window, control, form.Scale());
  SyncRows(window, kOfCombo, control);
}

void WatchCombo(WinForm& form, Control& control, HWND window) {
  const auto combo = reinterpret_cast<HWND>(Tell(window, CBEM_GETCOMBOCONTROL));
  if (combo != nullptr) form.Watch(combo, control);
}

// Every picture that the rows name, once each.
std::vector<String> PicturesOf(const ImageCombo& combo) {
  std::vector<String> names;
  for (const ImageCombo::Item& item : combo.Items) {
    for (const String& name : {item.Picture, item.SelectedPicture}) {
      if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
  }
  return names;
}

int PlaceIn(const std::vector<String>& names, const String& name) {
  return static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin());
}

void SyncPictures(WinForm& form, HWND window, const std::vector<String>& names) {
  const Colour ground = form.Colours().Base;
  std::wstring signature = std::to_wstring(form.Scale()) + L" on " + std::to_wstring(ground) + L":";
  for (const String& name : names) signature += Wide(name) + L"|";
  const wchar_t* const kProperty = L"TarnwisePictures";
  const auto stamp = reinterpret_cast<HANDLE>(std::hash<std::wstring>()(signature) | 1U);
  if (GetPropW(window, kProperty) == stamp) return;
  SetPropW(window, kProperty, stamp);
  const int side = Scaled(kIconSide, form.Scale());
  Images images(ImageList_Create(side, side, ILC_COLOR32, static_cast<int>(names.size()), 1));
  for (const String& name : names) {
    const HICON icon = MakePictureIcon(name, side, ground);
    ImageList_ReplaceIcon(images.get(), -1, icon);
    if (icon != nullptr) DestroyIcon(icon);
  }
  Tell(window, CBEM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
  form.KeepImages(window, std::move(images));
}

void SetItem(HWND window, int row, const ImageCombo::Item& item, const std::vector<String>& names, bool insert) {
  std::wstring text = Wide(item.Text);
  COMBOBOXEXITEMW entry{};
  entry.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE;
  entry.iItem = row;
  entry.pszText = text.data();
  entry.iImage = PlaceIn(names, item.Picture);
  entry.iSelectedImage = PlaceIn(names, item.SelectedPicture.empty() ? item.Picture : item.SelectedPicture);
  Tell(window, insert ? CBEM_INSERTITEMW : CBEM_SETITEMW, 0, reinterpret_cast<LPARAM>(&entry));
}

void SyncImageCombo(WinForm& form, Control& control, HWND window) {
  auto& box = static_cast<ImageCombo&>(control);
  UseBaseFont(form, window);
  const auto combo = reinterpret_cast<HWND>(Tell(window, CBEM_GETCOMBOCONTROL));
  if (combo != nullptr) SetClosedHeight(combo, control, form.Scale());
  const std::vector<String> names = PicturesOf(box);
  SyncPictures(form, window, names);
  const int wanted = static_cast<int>(box.Items.size());
  while (Tell(window, CB_GETCOUNT) > wanted) Tell(window, CBEM_DELETEITEM, static_cast<WPARAM>(wanted));
  for (int i = 0; i < wanted; ++i) {
    SetItem(window, i, box.Items[static_cast<std::size_t>(i)], names, i >= Tell(window, CB_GETCOUNT));
  }
  const int chosen = ChosenOf(control);
  if (Tell(window, CB_GETCURSEL) != chosen) Tell(window, CB_SETCURSEL, static_cast<WPARAM>(chosen));
  InvalidateRect(window, nullptr, FALSE);
}

}  // namespace

// A row with its text in the middle of its height.
void DrawRow(WinForm& form, const DRAWITEMSTRUCT& item) {
  if (item.itemID == static_cast<UINT>(-1)) return;
  const bool chosen = (item.itemState & ODS_SELECTED) != 0;
  FillRect(item.hDC, &item.rcItem, form.BrushOf(chosen ? form.Colours().Highlight : form.Colours().Base));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, chosen ? form.Colours().HighlightText : form.Colours().Text);
  const Selected font(item.hDC, BaseFont(form.Scale()));
  RECT room = item.rcItem;
  InflateRect(&room, -Scaled(6, form.Scale()), 0);
  const std::wstring text = NativeText(item.hwndItem, kOfListBox, static_cast<int>(item.itemID));
  DrawTextW(item.hDC, text.c_str(), -1, &room, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
  if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &item.rcItem);
}

int ChosenRow(const Control& control, HWND window) {
  const UINT asked = control.Type == Kind::ListBox    ? LB_GETCURSEL
                     : control.Type == Kind::TabStrip ? TCM_GETCURSEL
                                                      : CB_GETCURSEL;
  return static_cast<int>(Tell(window, asked));
}

int RowAt(const Control& control, HWND window, POINT at) {
  if (control.Type == Kind::ListBox) {
    const LRESULT found = Tell(window, LB_ITEMFROMPOINT, 0, MAKELPARAM(at.x, at.y));
    return HIWORD(found) != 0 ? -1 : LOWORD(found);
  }
  if (control.Type != Kind::TabStrip) return -1;
  TCHITTESTINFO hit{at, 0};
  const int tab = TabCtrl_HitTest(window, &hit);
  return tab < 0 ? -1 : tab + 1;
}

const WinKind kWinListBox{
    L"LISTBOX", WS_VSCROLL | WS_BORDER | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, 0, SyncListBox};
const WinKind kWinTabStrip{WC_TABCONTROLW, TCS_TABS | TCS_SINGLELINE, 0, SyncTabStrip};
const WinKind kWinComboBox{L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | CBS_HASSTRINGS, 0, SyncComboBox};
const WinKind kWinImageCombo{WC_COMBOBOXEXW, CBS_DROPDOWNLIST | WS_VSCROLL, 0, SyncImageCombo, WatchCombo};

}  // namespace Tarnwise
