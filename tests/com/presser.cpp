// Presses the buttons of a wizard as a person would, in a host that waits for one.
//
//   presser [--seconds N] [--process ID] STEP...
//
// A step is a button's caption without its decoration, "Next" for "&Next >", or "close" for the window's own close
// button. Pressed is in the visible, enabled top-level windows of the process, or in those whose title begins with
// "Tarnwise" or "KESTA". Each step waits until its button can be pressed, and then until the screen has come to rest.
// Status 1: a step's button did not come in time; the windows that were there are printed.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Job {
  DWORD Seconds = 20;  // for each step
  DWORD Process = 0;   // 0: by the title
  std::vector<std::wstring> Steps;
};

std::wstring TextOf(HWND window) {
  wchar_t text[256] = L"";
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 2000, &length);
  return text;
}

std::wstring Undecorated(const std::wstring& caption) {
  std::wstring plain;
  for (const wchar_t c : caption) {
    if (c != L'&' && c != L'<' && c != L'>') plain += c;
  }
  const std::size_t first = plain.find_first_not_of(L' ');
  if (first == std::wstring::npos) return L"";
  return plain.substr(first, plain.find_last_not_of(L' ') - first + 1);
}

bool BeginsWith(const std::wstring& text, const std::wstring& start) { return text.rfind(start, 0) == 0; }

struct WindowSearch {
  DWORD Process;
  std::vector<HWND> Found;
};

BOOL CALLBACK AddWindow(HWND window, LPARAM search_address) {
  auto& search = *reinterpret_cast<WindowSearch*>(search_address);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == GetCurrentProcessId() || !IsWindowVisible(window)) return TRUE;
  if (search.Process != 0 && process != search.Process) return TRUE;
  if (search.Process == 0) {
    const std::wstring title = TextOf(window);
    if (!BeginsWith(title, L"Tarnwise") && !BeginsWith(title, L"KESTA")) return TRUE;
  }
  search.Found.push_back(window);
  return TRUE;
}

std::vector<HWND> WindowsOf(const Job& job) {
  WindowSearch search = {job.Process, {}};
  EnumWindows(AddWindow, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

BOOL CALLBACK AddChild(HWND child, LPARAM children) {
  reinterpret_cast<std::vector<HWND>*>(children)->push_back(child);
  return TRUE;
}

std::vector<HWND> ChildrenOf(HWND window) {
  std::vector<HWND> children;
  EnumChildWindows(window, AddChild, reinterpret_cast<LPARAM>(&children));
  return children;
}

// All that a person would see change: windows, texts, what is shown and what can be used.
std::wstring ScreenOf(const Job& job) {
  std::wstring screen;
  for (const HWND window : WindowsOf(job)) {
    screen += L"[" + TextOf(window) + (IsWindowEnabled(window) ? L"]\n" : L"] disabled\n");
    for (const HWND child : ChildrenOf(window)) {
      const std::wstring text = TextOf(child);
      if (text.empty() || !IsWindowVisible(child)) continue;
      screen += L"  " + text + (IsWindowEnabled(child) ? L"\n" : L" (disabled)\n");
    }
  }
  return screen;
}

HWND ButtonFor(const Job& job, const std::wstring& step) {
  for (const HWND window : WindowsOf(job)) {
    if (!IsWindowEnabled(window)) continue;  // another one is modal above it
    for (const HWND child : ChildrenOf(window)) {
      if (IsWindowVisible(child) && IsWindowEnabled(child) && Undecorated(TextOf(child)) == step) return child;
    }
  }
  return nullptr;
}

bool Press(const Job& job, const std::wstring& step) {
  if (step == L"close") {
    for (const HWND window : WindowsOf(job)) {
      if (IsWindowEnabled(window)) return PostMessageW(window, WM_CLOSE, 0, 0) != FALSE;
    }
    return false;
  }
  const HWND button = ButtonFor(job, step);
  return button != nullptr && PostMessageW(button, BM_CLICK, 0, 0) != FALSE;
}

// A press that changes nothing to be seen is taken for done after two seconds.
void WaitForRest(const Job& job, const std::wstring& before) {
  std::wstring last = before;
  const ULONGLONG start = GetTickCount64();
  ULONGLONG changed = 0;
  while (GetTickCount64() - start < (changed == 0 ? 2000 : 10000)) {
    Sleep(50);
    const std::wstring now = ScreenOf(job);
    if (now != last) changed = GetTickCount64();
    last = now;
    if (changed != 0 && GetTickCount64() - changed >= 200) return;
  }
}

bool Take(const Job& job, const std::wstring& step) {
  const ULONGLONG start = GetTickCount64();
  while (GetTickCount64() - start < ULONGLONG{1000} * job.Seconds) {
    const std::wstring before = ScreenOf(job);
    if (Press(job, step)) {
      std::printf("pressed %ls\n", step.c_str());
      std::fflush(stdout);
      WaitForRest(job, before);
      return true;
    }
    Sleep(50);
  }
  std::printf("no %ls to press within %lu s; there is:\n%ls", step.c_str(), job.Seconds, ScreenOf(job).c_str());
  return false;
}

bool ReadArguments(int argc, wchar_t** argv, Job& job) {
  for (int i = 1; i < argc; ++i) {
    const std::wstring word = argv[i];
    if (word != L"--seconds" && word != L"--process") {
      job.Steps.push_back(word);
      continue;
    }
    if (++i == argc) return false;
    (word == L"--seconds" ? job.Seconds : job.Process) = std::wcstoul(argv[i], nullptr, 10);
  }
  return !job.Steps.empty();
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  Job job;
  if (!ReadArguments(argc, argv, job)) {
    std::fputs("usage: presser [--seconds N] [--process ID] STEP...\n", stderr);
    return 2;
  }
  for (const std::wstring& step : job.Steps) {
    if (!Take(job, step)) return 1;
  }
  return 0;
}
