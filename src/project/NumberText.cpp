#include "project/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr std::array<std::string_view, 4> kGroupBlanks = {" ", "\xC2\xA0", "\xE2\x80\x89", "\xE2\x80\xAF"};
constexpr std::array<std::string_view, 2> kApostrophes = {"'", "\xE2\x80\x99"};
constexpr std::array<std::string_view, 14> kMissing = {
    "-", "--", "\xE2\x80\x93", "\xE2\x80\x94", "?", ".", "..", ":", "na", "n/a", "#n/a", "nan", "null", "none"};
constexpr std::size_t kDigitsInGroup = 3;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The length of the thousands mark that the text begins with; 0 where none does.
std::size_t MarkLength(std::string_view text, char mark) {
  const auto longest = [&text](const auto& marks) {
    const auto* const found =
        std::find_if(marks.begin(), marks.end(), [&](std::string_view m) { return text.starts_with(m); });
    return found == marks.end() ? std::size_t{0} : found->size();
  };
  if (mark == ' ') return longest(kGroupBlanks);
  if (mark == '\'') return longest(kApostrophes);
  return mark != '\0' && text.starts_with(mark) ? 1 : 0;
}

// Takes a number apart from its beginning and puts it together in the spelling of std::from_chars.
class Scan {
 public:
  Scan(std::string_view text, char thousands) : rest_(text), thousands_(thousands) {}

  bool AtEnd() const { return rest_.empty(); }
  const String& Plain() const { return plain_; }

  void Sign() {
    if (rest_.starts_with('-')) plain_ += '-';
    if (rest_.starts_with('-') || rest_.starts_with('+')) rest_.remove_prefix(1);
  }

  // False where the digits are grouped in another way than by threes.
  bool Whole() {
    const bool zeroFirst = rest_.starts_with('0');
    std::size_t size = Digits();
    for (;;) {
      const std::size_t mark = size == 0 ? 0 : MarkLength(rest_, thousands_);
      if (mark == 0) return true;
      if (zeroFirst || size > kDigitsInGroup) return false;
      rest_.remove_prefix(mark);
      grouped_ = true;
      size = Digits();
      if (size != kDigitsInGroup) return false;
    }
  }

  // False where there is no digit before the sign or behind it.
  bool Decimals(char sign) {
    const std::size_t whole = plain_.size() - (plain_.starts_with('-') ? 1 : 0);
    if (!rest_.starts_with(sign)) return whole > 0;
    rest_.remove_prefix(1);
    plain_ += '.';
    return Digits() + whole > 0;
  }

  bool Exponent() {
    if (grouped_ || !(rest_.starts_with('e') || rest_.starts_with('E'))) return AtEnd();
    rest_.remove_prefix(1);
    plain_ += 'e';
    if (rest_.starts_with('-') || rest_.starts_with('+')) {
      plain_ += rest_.front();
      rest_.remove_prefix(1);
    }
    return Digits() > 0 && AtEnd();
  }

 private:
  std::size_t Digits() {
    std::size_t size = 0;
    while (size < rest_.size() && IsDigit(rest_[size])) ++size;
    plain_ += rest_.substr(0, size);
    rest_.remove_prefix(size);
    return size;
  }

  std::string_view rest_;
  char thousands_;
  bool grouped_ = false;
  String plain_;
};

std::optional<double> FirstReading(std::string_view text, char decimal) {
  for (const char thousands : {'\0', decimal == '.' ? ',' : '.', ' ', '\''}) {
    if (const auto number = NumberIn(text, {decimal, thousands})) return number;
  }
  return std::nullopt;
}

}  // namespace

std::optional<double> NumberIn(std::string_view text, const NumberFormat& format) {
  Scan scan(text, format.Thousands);
  scan.Sign();
  if (!scan.Whole() || !scan.Decimals(format.Decimal) || !scan.Exponent()) return std::nullopt;
  const String& plain = scan.Plain();
  double number = 0.0;
  const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), number);
  if (read.ec != std::errc() || read.ptr != plain.data() + plain.size()) return std::nullopt;
  return number;
}

NumberReadings ReadingsOf(std::string_view text) {
  if (text.empty() || !(IsDigit(text.back()) || text.back() == '.' || text.back() == ',')) return {};
  return {FirstReading(text, '.'), FirstReading(text, ',')};
}

String ShortestText(double number) {
  constexpr double kPlainFrom = 1e-5;
  constexpr double kPlainBelow = 1e15;
  if (number == 0.0) return std::signbit(number) ? "-0.0" : "0";
  const double size = std::fabs(number);
  const bool plain = size >= kPlainFrom && size < kPlainBelow;
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                 plain ? std::chars_format::fixed : std::chars_format::scientific);
  return {text.data(), end.ptr};
}

bool IsMissingText(std::string_view text) {
  constexpr std::size_t kLongest = 4;
  if (text.empty()) return true;
  if (text.size() > kLongest || IsDigit(text.front())) return false;
  String small;
  for (const char c : text) small += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return std::find(kMissing.begin(), kMissing.end(), small) != kMissing.end();
}

}  // namespace Tarnwise
