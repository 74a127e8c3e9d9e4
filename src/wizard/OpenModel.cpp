#include "wizard/OpenModel.h"

#include "model/ModelFile.h"
#include "view/Platform.h"

namespace Tarnwise {

void ReadModelFile(WizardData& data, Platform& platform, const String& PathAndFileName) {
  const auto bytes = ModelFileContents(PathAndFileName);
  if (!bytes) {
    platform.Beep();
    platform.MessageBox("There are problems in accessing the relevant data.", kInformation, kKesta);
    platform.SetPointer(kDefaultPointer);
    return;
  }
  platform.SetPointer(kHourglass);
  try {
    ReadModel(data, *bytes);
  } catch (...) {  // there may be no memory for it
    platform.SetPointer(kDefaultPointer);
    throw;
  }
  data.OrderChanged = false;
  platform.SetPointer(kDefaultPointer);
}

}  // namespace Tarnwise
