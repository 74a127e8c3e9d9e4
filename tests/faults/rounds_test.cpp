// Very many rounds in one process: neither memory nor file handles may grow.
#include "Rounds.h"

#include <gtest/gtest.h>

#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // its header is not everywhere
#endif

namespace Tarnwise {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int kRounds = 600;  // a sanitized round takes its time
std::size_t AllocatedBytes() { return __sanitizer_get_current_allocated_bytes(); }
#else
constexpr int kRounds = 10000;
std::size_t AllocatedBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}
#endif

int OpenHandles() {
  int count = 0;
  for ([[maybe_unused]] const auto& handle : std::filesystem::directory_iterator("/proc/self/fd")) ++count;
  return count;
}

TEST(Rounds, LeaveNoMemoryAndNoFileHandleBehind) {
  const TemporaryFolder folder;
  const String path = folder.File("model.kst");
  WriteModel(path, ModelOf(2, 2));
  const String direct = PlayRound(path, kDirectRound);
  const String traded = PlayRound(path, kTradeOffRound);
  ASSERT_NE(direct.find("\"WeightsDone\":true"), String::npos) << direct;
  ASSERT_NE(traded.find("\"ExportABScores\""), String::npos) << traded;
  ASSERT_EQ((direct + traded).find("{\"refused\":"), String::npos) << direct << traded;
  for (int round = 0; round < 20; ++round) PlayRound(path, round % 2 == 0 ? kDirectRound : kTradeOffRound);

  const std::size_t bytes = AllocatedBytes();
  const int handles = OpenHandles();
  for (int round = 0; round < kRounds; ++round) {
    const bool isDirect = round % 2 == 0;
    const String printed = PlayRound(path, isDirect ? kDirectRound : kTradeOffRound);
    ASSERT_EQ(printed, isDirect ? direct : traded) << "round " << round;
  }
  EXPECT_EQ(OpenHandles(), handles);
  EXPECT_LE(AllocatedBytes(), bytes + 16384);
  RecordProperty("rounds", kRounds);
}

}  // namespace
}  // namespace Tarnwise
