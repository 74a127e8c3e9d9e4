#include "program/Interrupt.h"

#include <csignal>

namespace Tarnwise {

namespace {

std::atomic<bool> interrupted{false};
std::atomic<int> received{0};
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<int>::is_always_lock_free,
              "a signal handler may touch nothing else");

void Note(int signal) {
  std::signal(signal, SIG_DFL);
  received = signal;
  interrupted = true;
}

}  // namespace

Interrupt::Interrupt() {
  interrupted = false;
  received = 0;
  std::signal(SIGINT, Note);
  std::signal(SIGTERM, Note);
}

Interrupt::~Interrupt() {
  std::signal(SIGINT, SIG_DFL);
  std::signal(SIGTERM, SIG_DFL);
}

const std::atomic<bool>* Interrupt::Flag() const { return &interrupted; }

int Interrupt::Status() const {
  constexpr int kBySignal = 128;
  return kBySignal + received.load();
}

}  // namespace Tarnwise
