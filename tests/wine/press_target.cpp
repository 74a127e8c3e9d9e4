// A window such as the wizard's steps, for the test of the presser: its buttons tell on standard output that they were
// pressed. "Next" opens the second page from within the button's own handler and waits there, as the steps do.
#include <windows.h>

#include <cstdio>

namespace {

enum Button : int { kBack = 100, kNext, kFinish, kCancel };

HWND OpenPage(const wchar_t* title, Button forward, const wchar_t* forward_caption);

// Status 0 only by Finish: what else ends the program is told by its status.
void Pressed(HWND page, int button) {
  const char* const names[] = {"back", "next", "finish", "cancel"};
  if (button < kBack || button > kCancel) return;
  std::printf("%s\n", names[button - kBack]);
  std::fflush(stdout);
  if (button != kNext) {
    PostQuitMessage(button == kFinish ? 0 : 3);
    return;
  }
  ShowWindow(page, SW_HIDE);
  OpenPage(L"Tarnwise: second page", kFinish, L"&Finish");
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  PostQuitMessage(static_cast<int>(message.wParam));
}

LRESULT CALLBACK PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: Pressed(page, LOWORD(wParam)); return 0;
    case WM_CLOSE:
      std::puts("closed");
      PostQuitMessage(4);
      return 0;
    default: return DefWindowProcW(page, message, wParam, lParam);
  }
}

void AddButton(HWND page, Button id, const wchar_t* caption, DWORD style) {
  CreateWindowW(L"BUTTON", caption, WS_CHILD | WS_VISIBLE | style, 10 + 90 * (id - kBack), 100, 80, 25, page,
                reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
}

HWND OpenPage(const wchar_t* title, Button forward, const wchar_t* forward_caption) {
  const HWND page =
      CreateWindowW(L"page", title, WS_OVERLAPPEDWINDOW, 50, 50, 420, 200, nullptr, nullptr, nullptr, nullptr);
  AddButton(page, kBack, L"< &Back", WS_DISABLED);
  AddButton(page, forward, forward_caption, 0);
  AddButton(page, kCancel, L"&Cancel", 0);
  ShowWindow(page, SW_SHOW);
  return page;
}

}  // namespace

int main() {
  WNDCLASSW page_class = {};
  page_class.lpfnWndProc = PageProcedure;
  page_class.lpszClassName = L"page";
  RegisterClassW(&page_class);
  OpenPage(L"Tarnwise: first page", kNext, L"&Next >");
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return static_cast<int>(message.wParam);
}
