#include "model/ModelFile.h"

#include "runtime/AnsiText.h"
#include "runtime/Paths.h"

#include <algorithm>
#include <cstring>
#include <fstream>

namespace Tarnwise {

namespace {

// No model is as long: 2469 texts, or Variants that hold one, of 65535 bytes, and the blocks come to 162 MB. A longer
// file is not read on.
constexpr std::uintmax_t kLargestModel = 200'000'000;

// A tag that no Variant has: what is left of the item is not read.
struct BadTag {};

// Reads from where it stands. What does not fit any more is left as it was, and the stream stands at its end.
class Stream {
 public:
  Stream(const std::vector<char>& bytes, const CodePage& texts)
      : at_(bytes.data()), end_(bytes.data() + bytes.size()), texts_(texts) {}

  template <class T>
  bool Read(T& value) {
    return ReadBlock(&value, sizeof value);
  }

  bool ReadBlock(void* to, std::size_t size) {
    if (static_cast<std::size_t>(end_ - at_) < size) {
      at_ = end_;
      return false;
    }
    std::memcpy(to, at_, size);
    at_ += size;
    return true;
  }

  // Numbers one after the other, as many as are whole.
  template <class T>
  void ReadAll(std::vector<T>& items) {
    const std::size_t whole = std::min(items.size(), static_cast<std::size_t>(end_ - at_) / sizeof(T));
    if (whole != 0) ReadBlock(items.data(), whole * sizeof(T));
    if (whole < items.size()) at_ = end_;
  }

  bool Read(String& text) {
    std::uint16_t length = 0;
    if (!Read(length)) return false;
    if (end_ - at_ < length) {
      at_ = end_;
      return false;
    }
    const std::string_view ansi(at_, length);
    if (IsAscii(ansi)) {
      text = ansi;
    } else {
      text = texts_.ToText(ansi);
    }
    at_ += length;
    return true;
  }

  void Read(Variant& value);

  void ReadAll(std::vector<Variant>& items) {
    for (Variant& item : items) {
      if (at_ == end_) return;
      if (!ReadDouble(item)) Read(item);
    }
  }

 private:
  // The short way for what nearly all Variants are; false when this is none, and then nothing has been read.
  bool ReadDouble(Variant& value) {
    std::uint16_t tag = 0;
    Double payload = 0.0;
    if (static_cast<std::size_t>(end_ - at_) < sizeof tag + sizeof payload) return false;
    std::memcpy(&tag, at_, sizeof tag);
    if (tag != 5) return false;
    std::memcpy(&payload, at_ + sizeof tag, sizeof payload);
    value.emplace<Double>(payload);
    at_ += sizeof tag + sizeof payload;
    return true;
  }

  template <class T>
  void ReadAs(Variant& value) {
    T payload{};
    if (Read(payload)) value.emplace<T>(payload);
  }

  const char* at_;
  const char* end_;
  const CodePage& texts_;
};

void Stream::Read(Variant& value) {
  std::uint16_t tag = 0;
  if (!Read(tag)) return;
  switch (tag) {
    case 0: value = Variant(); return;
    case 1: value = Null(); return;
    case 2: ReadAs<Integer>(value); return;
    case 3: ReadAs<Long>(value); return;
    case 4: ReadAs<Single>(value); return;
    case 5: ReadAs<Double>(value); return;
    case 6: ReadAs<Currency>(value); return;
    case 7: ReadAs<Date>(value); return;
    case 8: {
      String text;
      if (Read(text)) value = text;
      return;
    }
    case 11: {
      std::int16_t flag = 0;
      if (Read(flag)) value = flag != 0;
      return;
    }
    case 17: ReadAs<std::uint8_t>(value); return;
    default: throw BadTag();
  }
}

// What was read last time is mostly of the right size already.
void ClearVariants(Matrix<Variant>& values, int rows, int cols) {
  if (values.Rows() != rows || values.Cols() != cols) values.Allocate(rows, cols);
  for (Variant& value : values.Items()) {
    if (value.index() != 0) value.emplace<std::monostate>();
  }
}

void ClearHeader(ModelHeader& item) {
  item = {};
  item.Unused.Allocate(6);
}

void ClearAlternatives(AlternativeList& item) {
  item.Unused1.Allocate(kMaxAlternatives);
  item.Unused2.Allocate(kMaxAlternatives);
}

void ClearAttributes(AttributeList& item) {
  item.AttName.Allocate(kMaxAtts);
  item.AttDescription.Allocate(kMaxAtts);
  item.AttOrientation.Allocate(kMaxAtts);
  item.Unused.Allocate(kMaxAtts);
}

void ClearValueData(AttValueData& item) {
  for (auto* numbers : {&item.ScoreMin, &item.ScoreMax, &item.Unused1, &item.WorstScore, &item.BestScore,
                        &item.ValueFuncA, &item.ValueFuncB, &item.Unused3, &item.Unused4}) {
    numbers->Allocate(kMaxAtts);
  }
  item.Unused2.assign(64, 0);
  item.ValuePointCount.Allocate(kMaxAtts);
  item.ValueFuncType.Allocate(kMaxAtts);
  ClearVariants(item.ValuePointX, kMaxAtts, kMaxCurvePoints);
  ClearVariants(item.ValuePointY, kMaxAtts, kMaxCurvePoints);
}

void ClearSaved(SavedJudgments& item) {
  item = {};
  item.SavedWeights.Allocate(kMaxAtts);
  item.SavedWeightsH.Allocate(kMaxAtts);
  item.SavedWeightsL.Allocate(kMaxAtts);
}

void ReadHeader(Stream& in, ModelHeader& item) {
  for (String& text : item.Unused.Items()) in.Read(text);
  in.Read(item.UnusedNumber);
  in.Read(item.NumAtts);
  in.Read(item.UnusedLast);
}

void ReadAlternatives(Stream& in, AlternativeList& item) {
  for (String& text : item.Unused1.Items()) in.Read(text);
  for (String& text : item.Unused2.Items()) in.Read(text);
}

void ReadAttributes(Stream& in, AttributeList& item) {
  for (String& text : item.AttName.Items()) in.Read(text);
  for (String& text : item.AttDescription.Items()) in.Read(text);
  for (String& text : item.AttOrientation.Items()) in.Read(text);
  in.ReadAll(item.Unused.Items());
}

void ReadValueData(Stream& in, AttValueData& item) {
  in.ReadAll(item.ScoreMin.Items());
  in.ReadAll(item.ScoreMax.Items());
  in.ReadAll(item.Unused1.Items());
  in.ReadAll(item.WorstScore.Items());
  in.ReadAll(item.BestScore.Items());
  in.ReadAll(item.Unused2);
  in.ReadAll(item.ValuePointCount.Items());
  in.ReadAll(item.ValuePointX.Items());
  in.ReadAll(item.ValuePointY.Items());
  in.ReadAll(item.ValueFuncType.Items());
  in.ReadAll(item.ValueFuncA.Items());
  in.ReadAll(item.ValueFuncB.Items());
  in.ReadAll(item.Unused3.Items());
  in.ReadAll(item.Unused4.Items());
}

void ReadSaved(Stream& in, SavedJudgments& item) {
  in.Read(item.RJType);
  in.Read(item.SavedBRefAttID);
  in.Read(item.SavedCRefAttID);
  in.Read(item.SavedRefAttWR);
  in.ReadAll(item.SavedWeights.Items());
  in.ReadAll(item.SavedWeightsH.Items());
  in.ReadAll(item.SavedWeightsL.Items());
  in.Read(item.Unused);
}

// One item is one read: a bad tag abandons the rest of it, and the next one starts where the stream stands.
template <class Read>
void Leniently(Read read) {
  try {
    read();
  } catch (const BadTag&) {
    return;
  }
}

}  // namespace

void ClearModel(WizardData& data) {
  ClearHeader(data.ModelHeader);
  data.ModelSettings.Unused.assign(30, 0);
  ClearAlternatives(data.AlternativeList);
  ClearAttributes(data.AttributeList);
  ClearVariants(data.RawScores.RawScores, kMaxAlternatives, kMaxAtts);
  data.Scores.Scores.Allocate(kMaxAlternatives, kMaxAtts);
  ClearValueData(data.AttValueData);
  ClearSaved(data.SavedJudgments);
}

void ReadModel(WizardData& data, const std::vector<char>& bytes, const CodePage& texts) {
  ClearModel(data);
  Stream in(bytes, texts);
  Leniently([&] { ReadHeader(in, data.ModelHeader); });
  in.ReadAll(data.ModelSettings.Unused);
  Leniently([&] { ReadAlternatives(in, data.AlternativeList); });
  Leniently([&] { ReadAttributes(in, data.AttributeList); });
  Leniently([&] { in.ReadAll(data.RawScores.RawScores.Items()); });
  auto& scores = data.Scores.Scores.Items();
  in.ReadBlock(scores.data(), scores.size() * sizeof(Double));
  Leniently([&] { ReadValueData(in, data.AttValueData); });
  Leniently([&] { ReadSaved(in, data.SavedJudgments); });
}

std::optional<std::vector<char>> ModelFileContents(const String& PathAndFileName) {
  std::error_code error;
  const std::filesystem::path path = PathFromText(PathAndFileName);
  std::vector<char> bytes;
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    if (std::filesystem::exists(path, error)) return std::nullopt;
    const std::ofstream made(path, std::ios::binary | std::ios::app);
    if (!made) return std::nullopt;
    return bytes;
  }
  // On some systems a folder can be opened, but it has no size.
  const auto size = std::filesystem::file_size(path, error);
  if (error) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(std::min<std::uintmax_t>(size, kLargestModel)));
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

}  // namespace Tarnwise
