// Two models field by field, in the order of the file.
#pragma once

#include "model/mdTRNMain.h"

#include <functional>

namespace Tarnwise {

// A field of the first model beside the same field of the second. Size is what the first takes in the file.
struct FieldPair {
  const char* Field;
  int Number;
  std::size_t Size;
  bool Same;
};

// Calls for every field in the file's order until it is told false.
class FieldWalk {
 public:
  explicit FieldWalk(std::function<bool(const FieldPair&)> look) : look_(std::move(look)) {}

  void Items(const WizardData& a, const WizardData& b) {
    All("header text", a.ModelHeader.Unused.Items(), b.ModelHeader.Unused.Items());
    One("header number", 0, a.ModelHeader.UnusedNumber, b.ModelHeader.UnusedNumber);
    One("NumAtts", 0, a.ModelHeader.NumAtts, b.ModelHeader.NumAtts);
    One("header last", 0, a.ModelHeader.UnusedLast, b.ModelHeader.UnusedLast);
    All("settings", a.ModelSettings.Unused, b.ModelSettings.Unused);
    All("alternative", a.AlternativeList.Unused1.Items(), b.AlternativeList.Unused1.Items());
    All("alternative's note", a.AlternativeList.Unused2.Items(), b.AlternativeList.Unused2.Items());
    All("AttName", a.AttributeList.AttName.Items(), b.AttributeList.AttName.Items());
    All("AttDescription", a.AttributeList.AttDescription.Items(), b.AttributeList.AttDescription.Items());
    All("AttOrientation", a.AttributeList.AttOrientation.Items(), b.AttributeList.AttOrientation.Items());
    All("attribute number", a.AttributeList.Unused.Items(), b.AttributeList.Unused.Items());
    Elements("RawScores", a.RawScores.RawScores, b.RawScores.RawScores);
    // Read in one piece, so one field.
    Report({"Scores", 0, sizeof(Double) * 1581, SameScores(a.Scores.Scores, b.Scores.Scores)});
    Values(a.AttValueData, b.AttValueData);
    Saved(a.SavedJudgments, b.SavedJudgments);
  }

 private:
  void Values(const AttValueData& a, const AttValueData& b) {
    All("ScoreMin", a.ScoreMin.Items(), b.ScoreMin.Items());
    All("ScoreMax", a.ScoreMax.Items(), b.ScoreMax.Items());
    All("value numbers 1", a.Unused1.Items(), b.Unused1.Items());
    All("WorstScore", a.WorstScore.Items(), b.WorstScore.Items());
    All("BestScore", a.BestScore.Items(), b.BestScore.Items());
    All("value bytes", a.Unused2, b.Unused2);
    All("ValuePointCount", a.ValuePointCount.Items(), b.ValuePointCount.Items());
    Elements("ValuePointX", a.ValuePointX, b.ValuePointX);
    Elements("ValuePointY", a.ValuePointY, b.ValuePointY);
    All("ValueFuncType", a.ValueFuncType.Items(), b.ValueFuncType.Items());
    All("ValueFuncA", a.ValueFuncA.Items(), b.ValueFuncA.Items());
    All("ValueFuncB", a.ValueFuncB.Items(), b.ValueFuncB.Items());
    All("value numbers 2", a.Unused3.Items(), b.Unused3.Items());
    All("value numbers 3", a.Unused4.Items(), b.Unused4.Items());
  }

  void Saved(const SavedJudgments& a, const SavedJudgments& b) {
    One("RJType", 0, a.RJType, b.RJType);
    One("SavedBRefAttID", 0, a.SavedBRefAttID, b.SavedBRefAttID);
    One("SavedCRefAttID", 0, a.SavedCRefAttID, b.SavedCRefAttID);
    One("SavedRefAttWR", 0, a.SavedRefAttWR, b.SavedRefAttWR);
    All("SavedWeights", a.SavedWeights.Items(), b.SavedWeights.Items());
    All("SavedWeightsH", a.SavedWeightsH.Items(), b.SavedWeightsH.Items());
    All("SavedWeightsL", a.SavedWeightsL.Items(), b.SavedWeightsL.Items());
    One("judgments' last text", 0, a.Unused, b.Unused);
  }

  template <class T>
  static std::size_t SizeOf(const T& number) {
    return sizeof number;
  }
  // The texts of these tests are ASCII.
  static std::size_t SizeOf(const String& text) { return 2 + text.size(); }
  static std::size_t SizeOf(const Variant& value) {
    if (const auto* text = std::get_if<String>(&value)) return 4 + text->size();
    if (std::holds_alternative<Integer>(value)) return 4;
    return std::holds_alternative<Double>(value) ? 10 : 2;
  }

  static bool SameScores(const Matrix<Double>& a, const Matrix<Double>& b) {
    for (int col = 0; col < a.Cols(); ++col) {
      for (int row = 0; row < a.Rows(); ++row) {
        if (a(row, col) != b(row, col)) return false;
      }
    }
    return true;
  }

  void Report(const FieldPair& pair) { going_ = going_ && look_(pair); }

  template <class T>
  void One(const char* field, int number, const T& a, const T& b) {
    if (going_) Report({field, number, SizeOf(a), a == b});
  }

  template <class T>
  void All(const char* field, const std::vector<T>& a, const std::vector<T>& b) {
    for (std::size_t i = 0; i < a.size() && going_; ++i) One(field, static_cast<int>(i), a[i], b[i]);
  }

  void Elements(const char* field, const Matrix<Variant>& a, const Matrix<Variant>& b) {
    for (int col = 0; col < a.Cols(); ++col) {
      for (int row = 0; row < a.Rows() && going_; ++row) One(field, row + a.Rows() * col, a(row, col), b(row, col));
    }
  }

  std::function<bool(const FieldPair&)> look_;
  bool going_ = true;
};

// The first field that differs, "AttName 3"; empty where none does.
inline String DifferingField(const WizardData& a, const WizardData& b) {
  String first;
  FieldWalk([&first](const FieldPair& pair) {
    if (!pair.Same) first = String(pair.Field) + " " + std::to_string(pair.Number);
    return pair.Same;
  }).Items(a, b);
  return first;
}

}  // namespace Tarnwise
