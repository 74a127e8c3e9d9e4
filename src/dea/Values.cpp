#include "dea/Values.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

constexpr Double kNoDistance = 1e-12;  // of values

Double Clamped(Double value) { return std::clamp(value, 0.0, 1.0); }

Curve LineOver(const Scale& scale) {
  Curve line;
  line.N = 2;
  line.X[0] = std::fmin(scale.Worst, scale.Best);
  line.X[1] = std::fmax(scale.Worst, scale.Best);
  line.Y[1] = 1.0;
  return line;
}

// One cubic of a curve: in d = x - Origin, from From to Stop.
struct Piece {
  Coefs K{};
  Double Origin = 0.0;
  Double From = 0.0;
  Double Stop = 0.0;
  Double At(Double x) const { return EvaluateCubic(K, x - Origin); }
};

std::vector<Piece> PiecesBetween(const Curve& curve, Double low, Double high) {
  std::vector<Piece> pieces;
  for (int i = 0; i + 1 < curve.N; ++i) {
    const auto at = static_cast<std::size_t>(i);
    Piece piece;
    piece.Origin = curve.X[at];
    piece.K = AkimaInterpolate(curve, i, low);
    piece.From = i == 0 ? low : std::fmax(low, curve.X[at]);
    piece.Stop = i + 2 == curve.N ? high : std::fmin(high, curve.X[at + 1]);
    if (piece.From < piece.Stop) pieces.push_back(piece);
  }
  return pieces;
}

// Where the slope of the piece is the given one, as far as that is inside it.
void AddPlacesOfSlope(const Piece& piece, Double slope, std::vector<Double>& places) {
  const Double a = 3.0 * piece.K[3];
  const Double b = 2.0 * piece.K[2];
  const Double c = piece.K[1] - slope;
  const Double root = b * b - 4.0 * a * c;
  if (root < 0.0) return;
  const Double q = -0.5 * (b + std::copysign(std::sqrt(root), b));
  for (const Double d : {q / a, c / q}) {
    const Double x = piece.Origin + d;
    if (x > piece.From && x < piece.Stop) places.push_back(x);  // not where d is no number
  }
}

// Where the piece, which rises or falls between the two, reaches the value.
Double PlaceOfValue(const Piece& piece, Double from, Double stop, Double value) {
  const bool rises = piece.At(from) < value;
  for (int k = 0; k < 100; ++k) {
    const Double middle = from + (stop - from) / 2.0;
    ((piece.At(middle) < value) == rises ? from : stop) = middle;
  }
  return from;
}

// Everywhere on the piece where the clamped value can be farthest from a line of that slope.
std::vector<Double> PlacesToLookAt(const Piece& piece, Double slope) {
  std::vector<Double> places{piece.From, piece.Stop};
  AddPlacesOfSlope(piece, slope, places);
  AddPlacesOfSlope(piece, 0.0, places);
  std::sort(places.begin(), places.end());
  const std::vector<Double> ends = places;
  for (std::size_t k = 1; k < ends.size(); ++k) {
    for (const Double edge : {0.0, 1.0}) {
      const bool passes = (piece.At(ends[k - 1]) < edge) != (piece.At(ends[k]) < edge);
      if (passes) places.push_back(PlaceOfValue(piece, ends[k - 1], ends[k], edge));
    }
  }
  return places;
}

}  // namespace

ValueFunction::ValueFunction(const Scale& scale) : curve_(scale.ValueCurve ? *scale.ValueCurve : LineOver(scale)) {}

Double ValueFunction::Unclamped(Double score) const { return AkimaInterpolate(curve_, -1, score)[4]; }

Double ValueFunction::At(Double score) const { return Clamped(Unclamped(score)); }

Span SpanOf(const Scale& scale) {
  Span span;
  span.Score = std::fabs(scale.Best - scale.Worst);
  if (span.Score == 0.0) return span;
  const ValueFunction value(scale);
  const Double between = std::fabs(value.At(scale.Best) - value.At(scale.Worst));
  span.Value = between < kNoDistance ? 0.0 : between;
  return span;
}

std::optional<Double> DepartureFromChord(const Scale& scale) {
  if (!scale.ValueCurve) return 0.0;
  const Span span = SpanOf(scale);
  const Double low = std::fmin(scale.Worst, scale.Best);
  const Double high = std::fmax(scale.Worst, scale.Best);
  const ValueFunction value(scale);
  const Double start = value.At(low);
  const Double slope = span.Score == 0.0 ? 0.0 : (value.At(high) - start) / (high - low);
  Double farthest = 0.0;
  for (const Piece& piece : PiecesBetween(*scale.ValueCurve, low, high)) {
    for (const Double x : PlacesToLookAt(piece, slope)) {
      farthest = std::fmax(farthest, std::fabs(Clamped(piece.At(x)) - (start + slope * (x - low))));
    }
  }
  if (span.Value > 0.0) return farthest / span.Value;
  if (farthest > 0.0) return std::nullopt;
  return 0.0;
}

}  // namespace Tarnwise::Dea
