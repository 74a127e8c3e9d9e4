// The fuzzer's bytes as a row of small decisions. When they are used up every decision is 0.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstddef>
#include <cstdint>

namespace Tarnwise {

class ByteSource {
 public:
  ByteSource(const std::uint8_t* bytes, std::size_t size) : at_(bytes), end_(bytes + size) {}

  bool Done() const { return at_ == end_; }
  int Byte() { return Done() ? 0 : *at_++; }
  int Below(int count) { return count < 2 ? 0 : Byte() % count; }  // 0 to count - 1, count at most 256
  bool OneIn(int count) { return Below(count) == count - 1; }
  Double Part() { return Byte() / 255.0; }  // 0 to 1

 private:
  const std::uint8_t* at_;
  const std::uint8_t* end_;
};

}  // namespace Tarnwise
