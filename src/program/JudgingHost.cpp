#include "program/JudgingHost.h"

#include "modelfiles/Judgments.h"

namespace Tarnwise {

namespace {

constexpr Integer kFileIndex = 1;

// Ours first: what is judged is stored before anybody else can fail.
template <class... Arguments>
std::function<void(Arguments...)> Both(const std::function<void(Arguments...)>& ours,
                                       const std::function<void(Arguments...)>& theirs) {
  return [&ours, &theirs](Arguments... arguments) {
    if (ours) ours(arguments...);
    if (theirs) theirs(arguments...);
  };
}

}  // namespace

JudgingHost::JudgingHost(std::unique_ptr<Hosted> wizard, const SessionModel& model, String folder, TakeSession take)
    : wizard_(std::move(wizard)), model_(model), folder_(std::move(folder)), take_(std::move(take)) {
  CollectJudgments(collected_, [this](const Judgments& judgments) {
    take_(SessionOf(model_, judgments, wizard_->Data()), judgments.TradeOffs.has_value());
  });
  collected_.UnloadTarnwise = [this](Integer /*fIndex*/, Boolean /*WeightsDone*/) { shown_ = false; };
  Relay();
}

void JudgingHost::Relay() {
  TRN_DEA_Events& events = wizard_->Events();
  events.UnloadTarnwise = Both(collected_.UnloadTarnwise, events_.UnloadTarnwise);
  events.ExportDirectBW = Both(collected_.ExportDirectBW, events_.ExportDirectBW);
  events.ExportTradeOffsBW = Both(collected_.ExportTradeOffsBW, events_.ExportTradeOffsBW);
  events.ExportABScores = Both(collected_.ExportABScores, events_.ExportABScores);
  events.SendMasseges = Both(collected_.SendMasseges, events_.SendMasseges);
}

void JudgingHost::ShowTarnwise() {
  if (shown_) return;
  WithModelFile(model_, [this](const String& path) { wizard_->GetCurFileData(folder_, kFileIndex, path); });
  wizard_->TranferABCoordinates(model_.Points);
  shown_ = true;
  wizard_->ShowTarnwise();
}

void JudgingHost::GetCurFileData(const String& /*KestaDir*/, Integer /*FileIndex*/, const String& /*path*/) {}

void JudgingHost::UnloadTarnwise() {
  shown_ = false;
  wizard_->UnloadTarnwise();
}

void JudgingHost::TranferABCoordinates(const PointArrays& /*points*/) {}

}  // namespace Tarnwise
