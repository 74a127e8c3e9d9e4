#include "modelfiles/ModelWriter.h"

#include "runtime/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace Tarnwise {

namespace {

constexpr std::size_t kLongestText = 65535;

// A field and whose it is, for messages: "AttName of attribute 3 (Nurses)".
struct Place {
  const char* Field;
  String Of;

  String Text() const { return Of.empty() ? String(Field) : String(Field) + " of " + Of; }
};

String CodePoint(char32_t character) {
  std::array<char, 16> text{};
  (void)std::snprintf(text.data(), text.size(), "U+%04X", static_cast<unsigned>(character));
  return text.data();
}

[[noreturn]] void RefuseText(std::string_view text, const Place& place, const CodePage& texts) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t first = i;
    const auto character = NextCharacter(text, i);
    if (!character) break;
    const std::string_view bytes = text.substr(first, i - first);
    if (texts.ToBytes(bytes)) continue;
    throw ModelFault(place.Text() + ": the character '" + String(bytes) + "' (" + CodePoint(*character) +
                     ") is not in " + texts.Name);
  }
  throw ModelFault(place.Text() + ": the text is not valid UTF-8");
}

class Sink {
 public:
  explicit Sink(const CodePage& texts) : texts_(texts) {}

  template <class T>
  void Number(T value) {
    const auto* const from = reinterpret_cast<const char*>(&value);
    Bytes.insert(Bytes.end(), from, from + sizeof value);
  }

  template <class T>
  void Numbers(const Array<T>& values) {
    for (const T& value : values.Items()) Number(value);
  }

  void Block(const std::vector<std::uint8_t>& block) {
    for (const std::uint8_t byte : block) Number(byte);
  }

  void Text(const String& text, const Place& place) {
    const auto bytes = texts_.ToBytes(text);
    if (!bytes) RefuseText(text, place, texts_);
    if (bytes->size() > kLongestText) {
      throw ModelFault(place.Text() + ": the text takes " + std::to_string(bytes->size()) + " bytes, more than " +
                       std::to_string(kLongestText));
    }
    Number(static_cast<std::uint16_t>(bytes->size()));
    Bytes.insert(Bytes.end(), bytes->begin(), bytes->end());
  }

  void Tagged(const Variant& value, const Place& place);

  std::vector<char> Bytes;

 private:
  const CodePage& texts_;
};

// One Variant: the tag, then its payload.
struct PayloadWriter {
  Sink& Out;
  const Place& Where;

  void Tag(std::uint16_t tag) const { Out.Number(tag); }

  template <class T>
  void Number(std::uint16_t tag, T payload) const {
    Tag(tag);
    Out.Number(payload);
  }

  void operator()(std::monostate) const { Tag(0); }
  void operator()(Null) const { Tag(1); }
  void operator()(Integer v) const { Number(2, v); }
  void operator()(Long v) const { Number(3, v); }
  void operator()(Single v) const { Number(4, v); }
  void operator()(Double v) const { Number(5, v); }
  void operator()(Currency v) const { Number(6, v.Scaled); }
  void operator()(Date v) const { Number(7, v.Days); }
  void operator()(const String& v) const {
    Tag(8);
    Out.Text(v, Where);
  }
  void operator()(bool v) const { Number(11, static_cast<std::int16_t>(v ? -1 : 0)); }
  void operator()(std::uint8_t v) const { Number(17, v); }
};

void Sink::Tagged(const Variant& value, const Place& place) { std::visit(PayloadWriter{*this, place}, value); }

void WriteHeader(Sink& out, const ModelHeader& item) {
  for (int i = 0; i < item.Unused.Count(); ++i)
    out.Text(item.Unused[i], {"text", NameInMessages("header text", i, {})});
  out.Number(item.UnusedNumber);
  out.Number(item.NumAtts);
  out.Number(item.UnusedLast);
}

void WriteAlternatives(Sink& out, const AlternativeList& item) {
  for (int a = 0; a < kMaxAlternatives; ++a)
    out.Text(item.Unused1[a], {"the name", NameInMessages("alternative", a, {})});
  for (int a = 0; a < kMaxAlternatives; ++a) {
    out.Text(item.Unused2[a], {"the note", NameInMessages("alternative", a, item.Unused1[a])});
  }
}

void WriteAttributes(Sink& out, const AttributeList& item) {
  const auto attribute = [&item](int i) { return NameInMessages("attribute", i, item.AttName[i]); };
  for (int i = 0; i < kMaxAtts; ++i) out.Text(item.AttName[i], {"AttName", attribute(i)});
  for (int i = 0; i < kMaxAtts; ++i) out.Text(item.AttDescription[i], {"AttDescription", attribute(i)});
  for (int i = 0; i < kMaxAtts; ++i) out.Text(item.AttOrientation[i], {"AttOrientation", attribute(i)});
  out.Numbers(item.Unused);
}

void WriteRawScores(Sink& out, const WizardData& data) {
  for (int b = 0; b < kMaxAtts; ++b) {
    for (int a = 0; a < kMaxAlternatives; ++a) {
      const String whose = NameInMessages("alternative", a, data.AlternativeList.Unused1[a]) + " in " +
                           NameInMessages("attribute", b, data.AttName(b));
      out.Tagged(data.RawScores.RawScores(a, b), {"RawScores", whose});
    }
  }
}

void WriteScores(Sink& out, const ScoreList& item) {
  for (int b = 0; b < kMaxAtts; ++b) {
    for (int a = 0; a < kMaxAlternatives; ++a) out.Number(item.Scores(a, b));
  }
}

void WritePoints(Sink& out, const WizardData& data, const Matrix<Variant>& points, const char* field) {
  for (int k = 0; k < kMaxCurvePoints; ++k) {
    for (int i = 0; i < kMaxAtts; ++i) {
      const String whose = "point " + std::to_string(k) + " of " + NameInMessages("attribute", i, data.AttName(i));
      out.Tagged(points(i, k), {field, whose});
    }
  }
}

void WriteValueData(Sink& out, const WizardData& data) {
  const AttValueData& item = data.AttValueData;
  out.Numbers(item.ScoreMin);
  out.Numbers(item.ScoreMax);
  out.Numbers(item.Unused1);
  out.Numbers(item.WorstScore);
  out.Numbers(item.BestScore);
  out.Block(item.Unused2);
  out.Numbers(item.ValuePointCount);
  WritePoints(out, data, item.ValuePointX, "ValuePointX");
  WritePoints(out, data, item.ValuePointY, "ValuePointY");
  out.Numbers(item.ValueFuncType);
  out.Numbers(item.ValueFuncA);
  out.Numbers(item.ValueFuncB);
  out.Numbers(item.Unused3);
  out.Numbers(item.Unused4);
}

void WriteSaved(Sink& out, const SavedJudgments& item) {
  out.Text(item.RJType, {"RJType", {}});
  out.Tagged(item.SavedBRefAttID, {"SavedBRefAttID", {}});
  out.Tagged(item.SavedCRefAttID, {"SavedCRefAttID", {}});
  out.Tagged(item.SavedRefAttWR, {"SavedRefAttWR", {}});
  out.Numbers(item.SavedWeights);
  out.Numbers(item.SavedWeightsH);
  out.Numbers(item.SavedWeightsL);
  out.Text(item.Unused, {"the last text of SavedJudgments", {}});
}

}  // namespace

String NameInMessages(const char* kind, int id, const String& name) {
  const String number = String(kind) + " " + std::to_string(id);
  return name.empty() ? number : number + " (" + name + ")";
}

std::vector<char> ModelBytes(const WizardData& data, const CodePage& texts) {
  Sink out(texts);
  WriteHeader(out, data.ModelHeader);
  out.Block(data.ModelSettings.Unused);
  WriteAlternatives(out, data.AlternativeList);
  WriteAttributes(out, data.AttributeList);
  WriteRawScores(out, data);
  WriteScores(out, data.Scores);
  WriteValueData(out, data);
  WriteSaved(out, data.SavedJudgments);
  return out.Bytes;
}

std::optional<String> Difference(const std::vector<char>& bytes, const WizardData& data, const CodePage& texts) {
  std::vector<char> written;
  try {
    written = ModelBytes(data, texts);
  } catch (const ModelFault&) {
    return "it holds text that can't be read in " + texts.Name;
  }
  if (bytes == written) return std::nullopt;
  const auto parting = std::mismatch(bytes.begin(), bytes.end(), written.begin(), written.end());
  const String at = std::to_string(parting.first - bytes.begin());
  if (parting.first == bytes.end()) return "it ends within the model, after " + at + " bytes";
  if (parting.second == written.end()) {
    return std::to_string(bytes.end() - parting.first) + " bytes follow the model in it";
  }
  return "from byte " + at + " on it is no whole model or holds a value in an unusual form";
}

}  // namespace Tarnwise
