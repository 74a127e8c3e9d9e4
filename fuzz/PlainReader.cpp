#include "PlainReader.h"

#include "runtime/AnsiText.h"

#include <cstring>
#include <optional>

namespace Tarnwise {

namespace {

struct Cursor {
  const std::vector<char>& Bytes;
  std::size_t At = 0;
  bool Abandoned = false;  // this item's rest is not read

  // Bytes of a field, nothing where they are not all there: then the stream stands at its end.
  std::optional<std::string> Take(std::size_t count) {
    if (Abandoned) return std::nullopt;
    if (Bytes.size() - At < count) {
      At = Bytes.size();
      return std::nullopt;
    }
    const std::string taken(Bytes.begin() + static_cast<std::ptrdiff_t>(At),
                            Bytes.begin() + static_cast<std::ptrdiff_t>(At + count));
    At += count;
    return taken;
  }
};

template <class T>
T NumberIn(const std::optional<std::string>& bytes) {
  T number{};
  if (bytes) std::memcpy(&number, bytes->data(), sizeof number);
  return number;
}

template <class T>
T TakeNumber(Cursor& in) {
  return NumberIn<T>(in.Take(sizeof(T)));
}

String TakeText(Cursor& in) {
  const auto length = in.Take(2);
  if (!length) return {};
  const auto ansi = in.Take(NumberIn<std::uint16_t>(length));
  return ansi ? FromAnsi(*ansi) : String();
}

// An empty Variant where its payload is not all there.
template <class T>
Variant TakePayload(Cursor& in) {
  const auto bytes = in.Take(sizeof(T));
  return bytes ? Variant(NumberIn<T>(bytes)) : Variant();
}

Variant TakeVariant(Cursor& in) {
  const auto tag = in.Take(2);
  if (!tag) return {};
  switch (NumberIn<std::uint16_t>(tag)) {
    case 0: return {};
    case 1: return Null();
    case 2: return TakePayload<Integer>(in);
    case 3: return TakePayload<Long>(in);
    case 4: return TakePayload<Single>(in);
    case 5: return TakePayload<Double>(in);
    case 6: return TakePayload<Currency>(in);
    case 7: return TakePayload<Date>(in);
    case 8: {
      const auto length = in.Take(2);
      if (!length) return {};
      const auto ansi = in.Take(NumberIn<std::uint16_t>(length));
      return ansi ? Variant(FromAnsi(*ansi)) : Variant();
    }
    case 11: {
      const auto flag = in.Take(2);
      return flag ? Variant(NumberIn<std::int16_t>(flag) != 0) : Variant();
    }
    case 17: return TakePayload<std::uint8_t>(in);
    default: in.Abandoned = true; return {};
  }
}

void TakeTexts(Cursor& in, Array<String>& texts) {
  for (String& text : texts.Items()) text = TakeText(in);
}

template <class T>
void TakeNumbers(Cursor& in, std::vector<T>& numbers) {
  for (T& number : numbers) number = TakeNumber<T>(in);
}

void TakeVariants(Cursor& in, Matrix<Variant>& variants) {
  for (Variant& variant : variants.Items()) variant = TakeVariant(in);
}

void TakeValueData(Cursor& in, AttValueData& values) {
  for (auto* numbers : {&values.ScoreMin, &values.ScoreMax, &values.Unused1, &values.WorstScore, &values.BestScore}) {
    TakeNumbers(in, numbers->Items());
  }
  TakeNumbers(in, values.Unused2);
  TakeNumbers(in, values.ValuePointCount.Items());
  TakeVariants(in, values.ValuePointX);
  TakeVariants(in, values.ValuePointY);
  TakeNumbers(in, values.ValueFuncType.Items());
  for (auto* numbers : {&values.ValueFuncA, &values.ValueFuncB, &values.Unused3, &values.Unused4}) {
    TakeNumbers(in, numbers->Items());
  }
}

WizardData PlainlyRead(const std::vector<char>& bytes) {
  WizardData data;
  Cursor in{bytes};
  TakeTexts(in, data.ModelHeader.Unused);
  data.ModelHeader.UnusedNumber = TakeNumber<Long>(in);
  data.ModelHeader.NumAtts = TakeNumber<Integer>(in);
  data.ModelHeader.UnusedLast = TakeNumber<Integer>(in);
  TakeNumbers(in, data.ModelSettings.Unused);
  TakeTexts(in, data.AlternativeList.Unused1);
  TakeTexts(in, data.AlternativeList.Unused2);
  TakeTexts(in, data.AttributeList.AttName);
  TakeTexts(in, data.AttributeList.AttDescription);
  TakeTexts(in, data.AttributeList.AttOrientation);
  TakeNumbers(in, data.AttributeList.Unused.Items());
  TakeVariants(in, data.RawScores.RawScores);
  in.Abandoned = false;
  auto& scores = data.Scores.Scores.Items();
  if (const auto block = in.Take(scores.size() * sizeof(Double)))
    std::memcpy(scores.data(), block->data(), block->size());
  TakeValueData(in, data.AttValueData);
  in.Abandoned = false;
  SavedJudgments& saved = data.SavedJudgments;
  saved.RJType = TakeText(in);
  saved.SavedBRefAttID = TakeVariant(in);
  saved.SavedCRefAttID = TakeVariant(in);
  saved.SavedRefAttWR = TakeVariant(in);
  for (auto* weights : {&saved.SavedWeights, &saved.SavedWeightsH, &saved.SavedWeightsL}) {
    TakeNumbers(in, weights->Items());
  }
  saved.Unused = TakeText(in);
  return data;
}

// A NaN is the same as itself: the bits count.
template <class T>
bool SameBits(const T& a, const T& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

bool SameVariant(const Variant& a, const Variant& b) {
  if (a.index() != b.index()) return false;
  if (const auto* x = std::get_if<Double>(&a)) return SameBits(*x, std::get<Double>(b));
  if (const auto* x = std::get_if<Single>(&a)) return SameBits(*x, std::get<Single>(b));
  if (const auto* x = std::get_if<Date>(&a)) return SameBits(x->Days, std::get<Date>(b).Days);
  return a == b;
}

bool SameItem(const Variant& a, const Variant& b) { return SameVariant(a, b); }
bool SameItem(Double a, Double b) { return SameBits(a, b); }

template <class T>
bool Same(const std::vector<T>& a, const std::vector<T>& b) {
  if (a.size() != b.size()) return false;
  if constexpr (std::is_same_v<T, Variant>) {
    for (std::size_t i = 0; i < a.size(); ++i) {
      if (!SameVariant(a[i], b[i])) return false;
    }
    return true;
  } else if constexpr (std::is_arithmetic_v<T>) {
    return a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
  } else {
    return a == b;
  }
}

template <class T>
bool Same(const Array<T>& a, const Array<T>& b) {
  return Same(a.Items(), b.Items());
}

template <class T>
bool Same(const Matrix<T>& a, const Matrix<T>& b) {
  if (a.Rows() != b.Rows() || a.Cols() != b.Cols()) return false;
  for (int col = 0; col < a.Cols(); ++col) {
    for (int row = 0; row < a.Rows(); ++row) {
      if (!SameItem(a(row, col), b(row, col))) return false;
    }
  }
  return true;
}

template <class T>
bool Same(const T& a, const T& b) {
  return a == b;
}

bool Same(const Variant& a, const Variant& b) { return SameVariant(a, b); }

}  // namespace

#define COMPARE(field) \
  if (!Same(a.field, b.field)) return #field

String FirstDifference(const WizardData& a, const WizardData& b) {
  COMPARE(ModelHeader.Unused);
  COMPARE(ModelHeader.UnusedNumber);
  COMPARE(ModelHeader.NumAtts);
  COMPARE(ModelHeader.UnusedLast);
  COMPARE(ModelSettings.Unused);
  COMPARE(AlternativeList.Unused1);
  COMPARE(AlternativeList.Unused2);
  COMPARE(AttributeList.AttName);
  COMPARE(AttributeList.AttDescription);
  COMPARE(AttributeList.AttOrientation);
  COMPARE(AttributeList.Unused);
  COMPARE(RawScores.RawScores);
  COMPARE(Scores.Scores);
  COMPARE(AttValueData.ScoreMin);
  COMPARE(AttValueData.ScoreMax);
  COMPARE(AttValueData.Unused1);
  COMPARE(AttValueData.WorstScore);
  COMPARE(AttValueData.BestScore);
  COMPARE(AttValueData.Unused2);
  COMPARE(AttValueData.ValuePointCount);
  COMPARE(AttValueData.ValuePointX);
  COMPARE(AttValueData.ValuePointY);
  COMPARE(AttValueData.ValueFuncType);
  COMPARE(AttValueData.ValueFuncA);
  COMPARE(AttValueData.ValueFuncB);
  COMPARE(AttValueData.Unused3);
  COMPARE(AttValueData.Unused4);
  COMPARE(SavedJudgments.RJType);
  COMPARE(SavedJudgments.SavedBRefAttID);
  COMPARE(SavedJudgments.SavedCRefAttID);
  COMPARE(SavedJudgments.SavedRefAttWR);
  COMPARE(SavedJudgments.SavedWeights);
  COMPARE(SavedJudgments.SavedWeightsH);
  COMPARE(SavedJudgments.SavedWeightsL);
  COMPARE(SavedJudgments.Unused);
  return {};
}

#undef COMPARE

String FirstDifference(const WizardData& data, const std::vector<char>& bytes) {
  return FirstDifference(data, PlainlyRead(bytes));
}

}  // namespace Tarnwise
