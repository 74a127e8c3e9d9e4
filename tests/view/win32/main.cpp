// A modal form that nobody ends would wait for ever: no test may take longer than this.
#include "view/win32/WinApi.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <thread>

namespace {

constexpr DWORD kLongest = 300000;  // milliseconds

class Watchdog : public testing::EmptyTestEventListener {
 public:
  void OnTestStart(const testing::TestInfo& test) override {
    done_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    watch_ = std::thread([this, &test] {
      if (WaitForSingleObject(done_, kLongest) == WAIT_OBJECT_0) return;
      std::printf("%s.%s does not end.\n", test.test_suite_name(), test.name());
      std::fflush(stdout);
      TerminateProcess(GetCurrentProcess(), 3);
    });
  }
  void OnTestEnd(const testing::TestInfo& /*test*/) override {
    SetEvent(done_);
    watch_.join();
    CloseHandle(done_);
  }

 private:
  HANDLE done_ = nullptr;
  std::thread watch_;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new Watchdog);
  return RUN_ALL_TESTS();
}
