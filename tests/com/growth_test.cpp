// Many rounds of a host's life with the component leave nothing behind in the process.
#include "Client.h"

#include <gtest/gtest.h>

#include <iostream>

namespace Tarnwise {
namespace {

// Where the system does not count handles and user objects (Wine says 0), the number that a new handle gets and the
// thread's own windows tell.
struct Used {
  DWORD Handles = 0;
  DWORD Drawing = 0;
  DWORD UserObjects = 0;
  std::size_t NextHandle = 0;
  std::size_t Windows = 0;
  std::size_t HeapBlocks = 0;
  std::size_t HeapBytes = 0;
};

BOOL CALLBACK CountWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<std::size_t*>(count);
  return TRUE;
}

Used Now() {
  Used used;
  GetProcessHandleCount(GetCurrentProcess(), &used.Handles);
  used.Drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  used.UserObjects = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  const HANDLE probe = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  used.NextHandle = reinterpret_cast<std::size_t>(probe);
  CloseHandle(probe);
  EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&used.Windows));
  HANDLE heaps[64] = {};
  const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry = {};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry)) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) == 0) continue;
      ++used.HeapBlocks;
      used.HeapBytes += entry.cbData;
    }
    HeapUnlock(heaps[i]);
  }
  return used;
}

void Print(const char* when, const Used& used) {
  std::cout << when << ": handles " << used.Handles << ", drawing objects " << used.Drawing << ", user objects "
            << used.UserObjects << ", next handle " << used.NextHandle << ", windows " << used.Windows << ", heap "
            << used.HeapBlocks << " blocks, " << used.HeapBytes << " bytes\n";
}

constexpr int kWarmUp = 50;
constexpr int kRounds = 1000;
// A leak of one block a round would show as 1,000 blocks; the heap's own caches and the system's threads come and go by
// some dozens of blocks.
constexpr std::size_t kBlocks = 200;
constexpr std::size_t kBytes = 65536;
constexpr std::size_t kLabelBytes = 32;  // at most, in each block that a static control leaves
constexpr std::size_t kLabels = 3;       // static controls of the first step

// `systems`: blocks that the system's own controls of one round leave behind.
template <class Round>
void ExpectNoGrowth(std::size_t systems, Round round) {
  for (int i = 0; i < kWarmUp; ++i) round();
  const Used before = Now();
  for (int i = 0; i < kRounds; ++i) round();
  const Used after = Now();
  Print("before", before);
  Print("after", after);
  EXPECT_GT(before.HeapBlocks, 0U) << "the heap can't be looked at";
  EXPECT_LE(after.Handles, before.Handles);
  EXPECT_LE(after.Drawing, before.Drawing);
  EXPECT_LE(after.UserObjects, before.UserObjects);
  EXPECT_LE(after.NextHandle, before.NextHandle);
  EXPECT_LE(after.Windows, before.Windows);
  EXPECT_LE(after.HeapBlocks, before.HeapBlocks + kBlocks + systems * kRounds);
  EXPECT_LE(after.HeapBytes, before.HeapBytes + kBytes + systems * kRounds * kLabelBytes);
}

// What one of the system's own static controls leaves behind in this process when it goes: with Wine a small block,
// which is none of ours. Measured with the component's look, so that it is the same kind of control.
std::size_t BlocksLeftByALabel() {
  ACTCTXW context = {};
  context.cbSize = sizeof context;
  context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
  const std::wstring dll = DllPath();
  context.lpSource = dll.c_str();
  context.lpResourceName = MAKEINTRESOURCEW(2);
  const HANDLE look = CreateActCtxW(&context);
  ULONG_PTR cookie = 0;
  if (look == INVALID_HANDLE_VALUE || !ActivateActCtx(look, &cookie)) return 0;
  const auto make = [] {
    const HWND label =
        CreateWindowExW(0, L"STATIC", L"x", WS_POPUP | SS_OWNERDRAW, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)), FALSE);
    DestroyWindow(label);
  };
  constexpr int kTries = 200;
  for (int i = 0; i < kTries; ++i) make();
  const std::size_t before = Now().HeapBlocks;
  for (int i = 0; i < kTries; ++i) make();
  const std::size_t after = Now().HeapBlocks;
  DeactivateActCtx(0, cookie);
  ReleaseActCtx(look);
  return after <= before ? 0 : (after - before + kTries / 2) / kTries;
}

ComRef<_TRN_DEA> Made() {
  ComRef<_TRN_DEA> object;
  EXPECT_EQ(Factory()->CreateInstance(nullptr, IID__TRN_DEA, reinterpret_cast<void**>(object.Receive())), S_OK);
  return object;
}

TEST(Growth, TheFirstStepOnTheComponentsOwnScreen) {
  const std::size_t left = BlocksLeftByALabel();
  std::cout << "blocks that a static control of the system leaves: " << left << '\n';
  ExpectNoGrowth(left * kLabels, [] {
    const ComRef<_TRN_DEA> object = Made();
    Sink* const sink = new Sink;
    Advised(object.Get(), *sink);
    EXPECT_EQ(object->ShowTarnwise(), S_OK);
    EXPECT_EQ(sink->Notes.size(), 1U);
    EXPECT_EQ(object->UnloadTarnwise(), S_OK);
    sink->Release();
  });
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Growth, AWholeRunWithItsEventsAndFaults) {
  ExpectNoGrowth(0, [] {
    Client client(Judged(kDirectType));
    Sink* const sink = new Sink;
    Advised(client.Object.Get(), *sink);
    client.Load();
    client.Points();
    EXPECT_EQ(CallLate(client.Object.Get(), L"TranferABCoordinates", std::vector<VARIANT>(9)).Outcome,
              DISP_E_TYPEMISMATCH);
    SAFEARRAY* none = nullptr;
    EXPECT_TRUE(
        FAILED(client.Object->TranferABCoordinates(&none, &none, &none, &none, &none, &none, &none, &none, &none)));
    client.Finishes();
    EXPECT_EQ(sink->Notes.size(), 5U);
    EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
    sink->Release();
  });
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace Tarnwise
