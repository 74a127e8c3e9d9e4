#include "program/WishOptions.h"

#include "modelfiles/WholeFile.h"
#include "project/NumberText.h"
#include "project/Shown.h"

#include <CLI/CLI.hpp>

#include <charconv>

namespace Tarnwise {

namespace {

constexpr const char* kNone = "none";

[[noreturn]] void Fail(const char* option, const String& given, const char* wanted) {
  throw ModelFault(String(option) + ": " + wanted + " is wanted, here is " + Shown(given));
}

template <class Word>
std::optional<Word> WordOf(const char* option, const std::optional<String>& given,
                           std::optional<Word> (*named)(const String&), const char* wanted) {
  if (!given) return std::nullopt;
  const auto word = named(*given);
  if (!word) Fail(option, *given, wanted);
  return word;
}

std::optional<std::int64_t> WholeOf(const char* option, const std::optional<String>& given, const char* wanted) {
  if (!given) return std::nullopt;
  std::int64_t number = 0;
  const char* const end = given->data() + given->size();
  const auto read = std::from_chars(given->data(), end, number);
  if (read.ec != std::errc() || read.ptr != end || number < 0) Fail(option, *given, wanted);
  return number;
}

double FactorOf(const char* option, const std::optional<String>& given) {
  if (!given) return 1.0;
  const auto number = NumberIn(*given, {});
  if (!number || *number < 1.0) Fail(option, *given, "a factor of 1 or more");
  return *number;
}

}  // namespace

void AddSessionOption(CLI::App& command, WishOptions& options) {
  command
      .add_option("--session", options.Session, "Which judgments: a number from 0, or none; else those of the project")
      ->type_name("N|none");
}

void AddWishOptions(CLI::App& command, WishOptions& options) {
  AddSessionOption(command, options);
  command.add_option("--form", options.Form, "ratio (efficiencies) or value (additive, with the value curves)")
      ->type_name("FORM");
  command.add_option("--returns", options.Returns, "crs, vrs, nirs or ndrs: returns to scale of the ratio form")
      ->type_name("RETURNS");
  command.add_option("--orientation", options.Orientation, "in or out: what the ratio form shrinks or expands")
      ->type_name("WAY");
  command.add_option("--widen", options.Widen, "Widen all judged intervals by this factor in log ratio, 1 or more")
      ->type_name("FACTOR");
  command.add_option("--cross-band", options.CrossBand, "Let the cross ratio R lie from R / B to R B, value form")
      ->type_name("B");
  command.add_option("--seed", options.Seed, "Seed of the weights that are drawn for the ranks seen")->type_name("N");
}

Wishes WishesOf(const WishOptions& options) {
  Wishes wishes;
  wishes.NoSession = options.Session == kNone;
  if (!wishes.NoSession) {
    const auto session = WholeOf("--session", options.Session, "a number from 0, or none,");
    if (session) wishes.Session = static_cast<std::size_t>(*session);
  }
  wishes.Form = WordOf("--form", options.Form, FormNamed, "ratio or value");
  wishes.Returns = WordOf("--returns", options.Returns, ReturnsNamed, "crs, vrs, nirs or ndrs");
  wishes.Orientation = WordOf("--orientation", options.Orientation, OrientationNamed, "in or out");
  wishes.Seed = WholeOf("--seed", options.Seed, "a whole number from 0");
  wishes.Widen = FactorOf("--widen", options.Widen);
  wishes.CrossBand = FactorOf("--cross-band", options.CrossBand);
  return wishes;
}

}  // namespace Tarnwise
