#include "Processes.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace Tarnwise {

namespace {

[[noreturn]] void Become(const std::vector<std::string>& arguments) {
  std::string program = TARNWISE_PROGRAM;
  std::vector<std::string> words = arguments;
  std::vector<char*> argv = {program.data()};
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  if (std::freopen("/dev/null", "w", stdout) != nullptr) execv(TARNWISE_PROGRAM, argv.data());
  _exit(127);
}

double SecondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

std::optional<ProcessUse> RunProgram(const std::vector<std::string>& arguments) {
  const pid_t child = fork();
  if (child == 0) Become(arguments);
  int status = 0;
  rusage used{};
  if (child < 0 || wait4(child, &status, 0, &used) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) > 1) return {};
  return ProcessUse{SecondsOf(used.ru_utime) + SecondsOf(used.ru_stime), static_cast<double>(used.ru_maxrss) * 1024.0};
}

}  // namespace Tarnwise
