// The tests run on a thread of a host's kind: with a single-threaded apartment.
#include <windows.h>

#include <objbase.h>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  testing::InitGoogleTest(&argc, argv);
  const int failed = RUN_ALL_TESTS();
  CoUninitialize();
  return failed;
}
