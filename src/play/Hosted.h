// The wizard as our own host program holds it: the class linked into the program, or on Windows the registered COM
// class.
#pragma once

#include "model/PointArrays.h"

#include <tarnwise/TRN_DEA.h>

#include <functional>
#include <memory>

namespace Tarnwise {

struct WizardData;

class Hosted {
 public:
  virtual ~Hosted() = default;

  virtual TRN_DEA_Events& Events() = 0;
  virtual void ShowTarnwise() = 0;
  virtual void GetCurFileData(const String& KestaDir, Integer FileIndex, const String& PathAndFileName) = 0;
  virtual void UnloadTarnwise() = 0;
  virtual void TranferABCoordinates(const PointArrays& points) = 0;
  virtual WizardData& Data() = 0;  // what the steps share
};

using MakeHosted = std::function<std::unique_ptr<Hosted>()>;

std::unique_ptr<Hosted> HostLinked(std::shared_ptr<Platform> screen);

}  // namespace Tarnwise
