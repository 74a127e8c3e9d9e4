// Threads with a wizard each: every thread has wizard data of its own.
#include "Rounds.h"

#include <gtest/gtest.h>

#include <thread>

namespace Tarnwise {
namespace {

constexpr int kThreads = 4;
constexpr int kRoundsEach = 10;

TEST(Threads, EachWithAWizardOfItsOwnGetWhatOneAloneWouldGet) {
  const TemporaryFolder folder;
  std::vector<String> paths;
  std::vector<String> alone;
  const auto round = [](int k) { return k % 2 == 0 ? kDirectRound : kTradeOffRound; };
  for (int k = 0; k < kThreads; ++k) {
    WizardData model = ModelOf(2, 2);
    model.AttributeList.AttName[0] = "Thread " + std::to_string(k);
    model.AttValueData.ScoreMax[1] = 100.0 + k;
    paths.push_back(folder.File("model" + std::to_string(k) + ".kst"));
    WriteModel(paths.back(), model);
    alone.push_back(PlayRound(paths.back(), round(k) + "data AttName\ndata ScoreMax\n"));
  }
  std::vector<int> alike(kThreads, 0);
  std::vector<std::thread> threads;
  for (int k = 0; k < kThreads; ++k) {
    threads.emplace_back([&, k] {
      const auto at = static_cast<std::size_t>(k);
      for (int time = 0; time < kRoundsEach; ++time) {
        const String printed = PlayRound(paths[at], round(k) + "data AttName\ndata ScoreMax\n");
        alike[at] += printed == alone[at] ? 1 : 0;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(alike, std::vector<int>(kThreads, kRoundsEach));
}

}  // namespace
}  // namespace Tarnwise
