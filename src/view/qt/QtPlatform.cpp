#include "view/qt/QtToolkit.h"

#include <tarnwise/Platform.h>

namespace Tarnwise {

std::shared_ptr<Platform> MakeQtPlatform() { return std::make_shared<Platform>(std::make_shared<QtToolkit>()); }

}  // namespace Tarnwise
