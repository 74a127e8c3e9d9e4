#include "com/Component.h"

namespace Tarnwise {

Component* MakeComponent() { return new Component; }

}  // namespace Tarnwise
