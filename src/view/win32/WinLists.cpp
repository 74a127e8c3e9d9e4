// List boxes, tab strips and combos.
#include "view/Captions.h"
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

using Texts = std::vector<std::wstring>;

Texts WideTexts(const std::vector<String>& list) {
  Texts texts;
  for (const String& text : list) texts.push_back(Wide(text));
  return texts;
}

LRESULT Tell(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return SendMessageW(window, message, wParam, lParam);
}

LPARAM Pointer(const std::wstring& text) { return reinterpret_cast<LPARAM>(text.c_str()); }

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

std::wstring RowText(HWND window, const ListMessages& list, int row) {
  std::wstring text(static_cast<std::size_t>(Tell(window, list.TextLength, static_cast<WPARAM>(row))) + 1, L'\0');
  const LRESULT length = Tell(window, list.Text, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
  return text;
}

void SyncRows(HWND window, const ListMessages& list, const Texts& texts, int current) {
  const int wanted = static_cast<int>(texts.size());
  while (Tell(window, list.Count) > wanted) Tell(window, list.Delete, static_cast<WPARAM>(wanted));
  for (int i = 0; i < wanted; ++i) {
    const std::wstring& text = texts[static_cast<std::size_t>(i)];
    const auto row = static_cast<WPARAM>(i);
    const bool there = i < Tell(window, list.Count);
    if (there && RowText(window, list, i) == text) continue;
    if (there) Tell(window, list.Delete, row);
    Tell(window, list.Insert, row, Pointer(text));
  }
  if (Tell(window, list.Current) != current) Tell(window, list.SetCurrent, static_cast<WPARAM>(current));
}

HWND MakeListBox(WinForm& form, Control& /*control*/, HWND parent) {
  return NewChild(form, L"LISTBOX", WS_VSCROLL | WS_BORDER | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                  0, parent);
}

void SyncListBox(WinForm& form, Control& control, HWND window) {
  auto& box = static_cast<ListBox&>(control);
  UseBaseFont(form, window);
  const int height = Scaled(kRowHeight, form.Scale());
  if (Tell(window, LB_GETITEMHEIGHT) != height) Tell(window, LB_SETITEMHEIGHT, 0, height);
  SyncRows(window, kOfListBox, WideTexts(box.List), box.ListIndex);
}

// A row with its text in the middle of its height.
void DrawRow(WinForm& form, Control& /*control*/, const DRAWITEMSTRUCT& item) {
  if (item.itemID == static_cast<UINT>(-1)) return;
  const bool chosen = (item.itemState & ODS_SELECTED) != 0;
  FillRect(item.hDC, &item.rcItem, form.BrushOf(chosen ? form.Colours().Highlight : form.Colours().Base));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, chosen ? form.Colours().HighlightText : form.Colours().Text);
  const Selected font(item.hDC, BaseFont(form.Scale()));
  RECT room = item.rcItem;
  InflateRect(&room, -Scaled(6, form.Scale()), 0);
  const std::wstring text = RowText(item.hwndItem, kOfListBox, static_cast<int>(item.itemID));
  DrawTextW(item.hDC, text.c_str(), -1, &room, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
  if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &item.rcItem);
}

HWND MakeTabStrip(WinForm& form, Control& /*control*/, HWND parent) {
  return NewChild(form, WC_TABCONTROLW, TCS_TABS | TCS_SINGLELINE, 0, parent);
}

void SyncTabStrip(WinForm& form, Control& control, HWND window) {
  auto& strip = static_cast<TabStrip&>(control);
  UseBaseFont(form, window);
  const int wanted = static_cast<int>(strip.Tabs.size());
  while (TabCtrl_GetItemCount(window) > wanted) TabCtrl_DeleteItem(window, wanted);
  for (int i = 0; i < wanted; ++i) {
    std::wstring caption = Wide(MarkedCaption(strip.Tabs[static_cast<std::size_t>(i)].Caption));
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    if (i >= TabCtrl_GetItemCount(window))
      Tell(window, TCM_INSERTITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    else
      Tell(window, TCM_SETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
  if (TabCtrl_GetCurSel(window) != strip.SelectedItem - 1) TabCtrl_SetCurSel(window, strip.SelectedItem - 1);
}

constexpr DWORD kDropList = CBS_DROPDOWNLIST | WS_VSCROLL | CBS_HASSTRINGS;

HWND MakeComboBox(WinForm& form, Control& /*control*/, HWND parent) {
  return NewChild(form, L"COMBOBOX", kDropList, 0, parent);
}

// The closed part is as high as the record says.
void SetClosedHeight(HWND combo, const Control& control, double scale) {
  const int height = std::max(PixelPlace(control, scale).Height() - Scaled(6, scale), 8);
  if (Tell(combo, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)) != height) {
    Tell(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
  }
}

void SyncComboBox(WinForm& form, Control& control, HWND window) {
  auto& box = static_cast<ComboBox&>(control);
  UseBaseFont(form, window);
  SetClosedHeight(window, control, form.Scale());
  SyncRows(window, kOfCombo, WideTexts(box.List), box.ListIndex);
}

HWND MakeImageCombo(WinForm& form, Control& control, HWND parent) {
  const HWND window = NewChild(form, WC_COMBOBOXEXW, CBS_DROPDOWNLIST | WS_VSCROLL, 0, parent);
  const auto combo = reinterpret_cast<HWND>(Tell(window, CBEM_GETCOMBOCONTROL));
  if (combo != nullptr) form.Watch(combo, control);
  return window;
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
  if (Tell(window, CB_GETCURSEL) != box.SelectedItem - 1) {
    Tell(window, CB_SETCURSEL, static_cast<WPARAM>(box.SelectedItem - 1));
  }
  InvalidateRect(window, nullptr, FALSE);
}

}  // namespace

int ChosenRow(const Control& control, HWND window) {
  if (control.Type == Kind::TabStrip) return TabCtrl_GetCurSel(window) + 1;
  const int row = static_cast<int>(Tell(window, control.Type == Kind::ListBox ? LB_GETCURSEL : CB_GETCURSEL));
  return control.Type == Kind::ImageCombo ? row + 1 : row;
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

const WinKind kWinListBox{MakeListBox, SyncListBox, DrawRow};
const WinKind kWinTabStrip{MakeTabStrip, SyncTabStrip, nullptr};
const WinKind kWinComboBox{MakeComboBox, SyncComboBox, nullptr};
const WinKind kWinImageCombo{MakeImageCombo, SyncImageCombo, nullptr};

}  // namespace Tarnwise
