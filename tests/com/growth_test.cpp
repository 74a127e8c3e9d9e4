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

template <class Round>
void ExpectNoGrowth(Round round) {
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
  EXPECT_LE(after.HeapBlocks, before.HeapBlocks + kBlocks);
  EXPECT_LE(after.HeapBytes, before.HeapBytes + kBytes);
}

ComRef<_TRN_DEA> Made() {
  ComRef<_TRN_DEA> object;
  EXPECT_EQ(Factory()->CreateInstance(nullptr, IID__TRN_DEA, reinterpret_cast<void**>(object.Receive())), S_OK);
  return object;
}

TEST(Growth, TheFirstStepOnTheComponentsOwnScreen) {
  ExpectNoGrowth([] {
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
  ExpectNoGrowth([] {
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
