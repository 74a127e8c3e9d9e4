// The options of what is evaluated, and how, that several commands share.
#pragma once

#include "project/Evaluation.h"

namespace CLI {
class App;
}

namespace Tarnwise {

// As they stand on the command line.
struct WishOptions {
  std::optional<String> Session;  // a number, or "none"
  std::optional<String> Form;
  std::optional<String> Returns;
  std::optional<String> Orientation;
  std::optional<String> Seed;
  std::optional<String> Widen;
  std::optional<String> CrossBand;
};

void AddWishOptions(CLI::App& command, WishOptions& options);
void AddSessionOption(CLI::App& command, WishOptions& options);

// A ModelFault names the option whose word is none of its own.
Wishes WishesOf(const WishOptions& options);

}  // namespace Tarnwise
