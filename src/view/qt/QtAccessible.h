// What screen readers see beyond Qt's own widgets: drag sources that can be read and moved.
#pragma once

namespace Tarnwise {

void InstallAccessibility();

}  // namespace Tarnwise
