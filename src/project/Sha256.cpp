#include "project/Sha256.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace Tarnwise {

namespace {

constexpr std::size_t kBlock = 64;

constexpr std::array<std::uint32_t, 64> kConstants = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

using State = std::array<std::uint32_t, 8>;

std::uint32_t BigEndian(const unsigned char* at) {
  return static_cast<std::uint32_t>(at[0]) << 24U | static_cast<std::uint32_t>(at[1]) << 16U |
         static_cast<std::uint32_t>(at[2]) << 8U | at[3];
}

void TakeBlock(State& state, const unsigned char* block) {
  std::array<std::uint32_t, 64> w{};
  for (std::size_t i = 0; i < 16; ++i) w[i] = BigEndian(block + 4 * i);
  for (std::size_t i = 16; i < 64; ++i) {
    const std::uint32_t s0 = std::rotr(w[i - 15], 7) ^ std::rotr(w[i - 15], 18) ^ (w[i - 15] >> 3U);
    const std::uint32_t s1 = std::rotr(w[i - 2], 17) ^ std::rotr(w[i - 2], 19) ^ (w[i - 2] >> 10U);
    w[i] = w[i - 16] + s0 + w[i - 7] + s1;
  }
  auto [a, b, c, d, e, f, g, h] = state;
  for (std::size_t i = 0; i < 64; ++i) {
    const std::uint32_t s1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
    const std::uint32_t t1 = h + s1 + ((e & f) ^ (~e & g)) + kConstants[i] + w[i];
    const std::uint32_t s0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
    const std::uint32_t t2 = s0 + ((a & b) ^ (a & c) ^ (b & c));
    h = g, g = f, f = e, e = d + t1, d = c, c = b, b = a, a = t1 + t2;
  }
  const State worked = {a, b, c, d, e, f, g, h};
  for (std::size_t i = 0; i < state.size(); ++i) state[i] += worked[i];
}

// What is left of the bytes, a single one bit, zeros, and the length in bits at the end of the last block.
String Padded(std::string_view rest, std::size_t length) {
  String end(rest);
  end += '\x80';
  while (end.size() % kBlock != kBlock - 8) end += '\0';
  for (unsigned shift = 64; shift > 0;) {
    shift -= 8;
    end += static_cast<char>(static_cast<std::uint64_t>(length) * 8U >> shift & 0xFFU);
  }
  return end;
}

void TakeBlocks(State& state, std::string_view bytes) {
  const auto* const at = reinterpret_cast<const unsigned char*>(bytes.data());
  for (std::size_t i = 0; i + kBlock <= bytes.size(); i += kBlock) TakeBlock(state, at + i);
}

}  // namespace

String Sha256(std::string_view bytes) {
  State state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a, 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  const std::size_t whole = bytes.size() - bytes.size() % kBlock;
  TakeBlocks(state, bytes.substr(0, whole));
  TakeBlocks(state, Padded(bytes.substr(whole), bytes.size()));
  constexpr const char* kDigits = "0123456789abcdef";
  String digest;
  for (const std::uint32_t word : state) {
    for (unsigned shift = 32; shift > 0;) {
      shift -= 4;
      digest += kDigits[word >> shift & 0x0FU];
    }
  }
  return digest;
}

}  // namespace Tarnwise
