#include "model/mdTRNMain.h"

#include "model/ModelFile.h"
#include "runtime/PerThread.h"
#include "runtime/Text.h"

namespace Tarnwise {

WizardData::WizardData() { ClearModel(*this); }

Double WizardData::Orientation(int i) const { return Val(AttributeList.AttOrientation[i]); }

WizardData& mdTRNMain() {
  static PerThread<WizardData> data;
  return data.Get();
}

String HelpPath(const WizardData& data) { return data.KestaDir + "\\KESTA.HLP"; }

}  // namespace Tarnwise
