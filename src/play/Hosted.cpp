#include "play/Hosted.h"

#include "model/mdTRNMain.h"

namespace Tarnwise {

namespace {

class Linked : public Hosted {
 public:
  explicit Linked(std::shared_ptr<Platform> screen) : dea_(std::move(screen)) {}

  TRN_DEA_Events& Events() override { return dea_.Events(); }
  void ShowTarnwise() override { dea_.ShowTarnwise(); }
  void GetCurFileData(const String& KestaDir, Integer FileIndex, const String& PathAndFileName) override {
    dea_.GetCurFileData(KestaDir, FileIndex, PathAndFileName);
  }
  void UnloadTarnwise() override { dea_.UnloadTarnwise(); }
  void TranferABCoordinates(const PointArrays& points) override {
    std::apply([this](const auto&... arrays) { dea_.TranferABCoordinates(arrays...); }, points);
  }
  WizardData& Data() override { return mdTRNMain(); }

 private:
  TRN_DEA dea_;
};

}  // namespace

std::unique_ptr<Hosted> HostLinked(std::shared_ptr<Platform> screen) {
  return std::make_unique<Linked>(std::move(screen));
}

}  // namespace Tarnwise
