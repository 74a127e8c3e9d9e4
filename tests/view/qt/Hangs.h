#pragma once

namespace Tarnwise {

// How long a test waits for what is sure to come before it takes it for hanging. Milliseconds; far more than it takes.
constexpr int kHangs = 60000;

}  // namespace Tarnwise
