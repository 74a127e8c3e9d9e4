// The wizard on a project's session model, whoever sits in front of it: a person, or a script that believes to load a
// model of its own.
#pragma once

#include "play/Hosted.h"
#include "project/StoreSession.h"

namespace Tarnwise {

// Gets the session as it stands inside an export event; of trade-offs a second time, with its points, and then `again`
// is set.
using TakeSession = std::function<void(const JudgmentSession& session, bool again)>;

class JudgingHost : public Hosted {
 public:
  // `folder` is what the wizard is told as KestaDir: drag icons and help are taken from there.
  JudgingHost(std::unique_ptr<Hosted> wizard, const SessionModel& model, String folder, TakeSession take);

  TRN_DEA_Events& Events() override { return events_; }
  void ShowTarnwise() override;  // with the session model; nothing while it is shown
  void GetCurFileData(const String& KestaDir, Integer FileIndex, const String& PathAndFileName) override;  // nothing
  void UnloadTarnwise() override;
  void TranferABCoordinates(const PointArrays& points) override;  // nothing
  WizardData& Data() override { return wizard_->Data(); }

 private:
  void Relay();

  std::unique_ptr<Hosted> wizard_;
  const SessionModel& model_;
  const String folder_;
  const TakeSession take_;
  TRN_DEA_Events events_;     // of whoever sits in front of it
  TRN_DEA_Events collected_;  // ours
  bool shown_ = false;
};

}  // namespace Tarnwise
