// A model file laid down byte by byte, item by item, by the format's description alone: it shares no code with the
// writer or the reader.
#pragma once

#include "model/mdTRNMain.h"

#include <functional>

namespace Tarnwise {

class ModelFileBytes {
 public:
  std::vector<char> Bytes;

  template <class T>
  ModelFileBytes& Number(T value) {
    const auto* const from = reinterpret_cast<const char*>(&value);
    Bytes.insert(Bytes.end(), from, from + sizeof value);
    return *this;
  }
  ModelFileBytes& Int(int value) { return Number(static_cast<std::int16_t>(value)); }
  ModelFileBytes& Ints(int count, int value) {
    return Repeat(count, [&] { Int(value); });
  }
  ModelFileBytes& Doubles(int count, double value) {
    return Repeat(count, [&] { Number(value); });
  }
  ModelFileBytes& Block(int count, int value) {
    Bytes.insert(Bytes.end(), static_cast<std::size_t>(count), static_cast<char>(value));
    return *this;
  }
  ModelFileBytes& Text(const std::string& ansi) {
    Number(static_cast<std::uint16_t>(ansi.size()));
    Bytes.insert(Bytes.end(), ansi.begin(), ansi.end());
    return *this;
  }
  ModelFileBytes& Texts(int count, const std::string& ansi) {
    return Repeat(count, [&] { Text(ansi); });
  }
  ModelFileBytes& Tag(int tag) { return Int(tag); }
  ModelFileBytes& Empties(int count) { return Ints(count, 0); }
  ModelFileBytes& TaggedDouble(double value) { return Tag(5).Number(value); }

  ModelFileBytes& Header(int NumAtts) {
    for (int i = 1; i <= 6; ++i) Text("header text " + std::to_string(i));
    return Number(std::int32_t{0x44332211}).Int(NumAtts).Int(7);
  }
  ModelFileBytes& Settings() {
    for (int i = 1; i <= 30; ++i) Block(1, i);
    return *this;
  }
  ModelFileBytes& Alternatives() { return Text("first ward").Texts(50, "").Texts(50, "").Text("last note"); }
  // Every slot filled.
  ModelFileBytes& Attributes() {
    for (int i = 0; i < kMaxAtts; ++i) Text("name " + std::to_string(i));
    for (int i = 0; i < kMaxAtts; ++i) Text("description " + std::to_string(i));
    for (int i = 0; i < kMaxAtts; ++i) Text(i % 2 == 0 ? "0" : "1");
    for (int i = 0; i < kMaxAtts; ++i) Int(100 + i);
    return *this;
  }
  ModelFileBytes& RawScores() { return TaggedDouble(0.37).Tag(8).Text("raw").Empties(1578).Tag(2).Int(-3); }
  ModelFileBytes& Scores() {
    for (int n = 0; n < 1581; ++n) Number(0.25 + n);
    return *this;
  }
  ModelFileBytes& ValueBlockA() {
    for (int i = 0; i < kMaxAtts; ++i) Number(1.5 + i);
    Doubles(31, 100.37).Doubles(31, -1.25).Doubles(31, 3.17).Doubles(31, 90.5).Block(64, 0x98);
    return Ints(31, 4);
  }
  // ValuePointX, then ValuePointY: the number of the element and a fraction.
  ModelFileBytes& ValuePoints() {
    for (int n = 0; n < 341; ++n) TaggedDouble(n + 0.5);
    for (int n = 0; n < 341; ++n) TaggedDouble(n + 0.75);
    return *this;
  }
  ModelFileBytes& ValueBlocksBAndC() {
    for (int i = 0; i < kMaxAtts; ++i) Int(i % 3);
    return Doubles(31, 1.25).Doubles(31, -0.5).Doubles(31, 6.5).Doubles(31, 7.5);
  }
  ModelFileBytes& ValueData() { return ValueBlockA().ValuePoints().ValueBlocksBAndC(); }
  ModelFileBytes& Saved() {
    Text("DEA_DIRECT").Tag(2).Int(4).Tag(2).Int(9).TaggedDouble(0.75);
    return Doubles(31, 1.1).Doubles(31, 1.2).Doubles(31, 0.9).Text("end");
  }
  ModelFileBytes& Whole(int NumAtts = 31) {
    return Header(NumAtts).Settings().Alternatives().Attributes().RawScores().Scores().ValueData().Saved();
  }

 private:
  ModelFileBytes& Repeat(int count, const std::function<void()>& write) {
    for (int i = 0; i < count; ++i) write();
    return *this;
  }
};

}  // namespace Tarnwise
