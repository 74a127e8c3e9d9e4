// Judgments into a model file, so that the next run resumes from them.
#pragma once

#include "model/mdTRNMain.h"
#include "modelfiles/WholeFile.h"

#include <tarnwise/TRN_DEA.h>

namespace Tarnwise {

// Replaces the stored judgments of the model file; every other byte stays, the last text of that item too. `judged` is
// the model as the wizard read it: weights go with its attributes, so a file that holds another model by now is
// refused. So is one that would not come out of reading and writing as it is (cut off, or with something behind the
// model). A ModelFault says why; the file is then as it was. The arrays hold NumAtts elements.
void SaveJudgments(const String& modelPath, const WizardData& judged, const String& RJType, Integer BRefAttID,
                   Integer CRefAttID, const Variant& RefAttWR, const VariantArray& Weights,
                   const VariantArray& WeightsH, const VariantArray& WeightsL);

}  // namespace Tarnwise
