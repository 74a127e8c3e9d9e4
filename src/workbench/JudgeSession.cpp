#include "workbench/JudgeSession.h"

#include "judging/Consistency.h"
#include "project/Shown.h"
#include "project/StoreSession.h"
#include "runtime/CodePage.h"
#include "runtime/Text.h"
#include "view/Platform.h"
#include "workbench/Texts.h"

#include <tarnwise/TRN_DEA.h>

#include <QTimer>

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr Integer kFileIndex = 1;
constexpr int kInconsistentLight = 2;

QString LimitText(double limit) { return FromText(FixedText(limit, 2)); }

QString NameOf(const WizardData& data, int attribute) { return FromText(Trim(data.AttName(attribute))); }

QString LowerHint(const WizardData& data, int attribute, const Limits& limits) {
  return JudgeSession::tr("%1 must stay at or above %2: %3, on the next lower judged rank, is judged up to %2.")
      .arg(NameOf(data, attribute), LimitText(limits.Lower), NameOf(data, limits.LowerOf));
}

QString UpperHint(const WizardData& data, int attribute, const Limits& limits) {
  return JudgeSession::tr("%1 must stay at or below %2: %3, on the next higher judged rank, is judged from %2 on.")
      .arg(NameOf(data, attribute), LimitText(limits.Upper), NameOf(data, limits.UpperOf));
}

std::optional<double> NumberOf(const Form& form, const char* box) {
  const auto* const control = form.Find(box);
  if (control == nullptr || control->Type != Kind::TextBox) return std::nullopt;
  return TypedNumber(FromText(static_cast<const TextBox*>(control)->Text));
}

JudgedInterval IntervalOf(const std::optional<double>& a, const std::optional<double>& b) {
  if (!a || !b) return std::nullopt;
  return std::pair(std::min(*a, *b), std::max(*a, *b));
}

// The two bounds as the step has them: in its boxes, or in a line of text.
JudgedInterval JudgedOn(const Form& form) {
  const auto* const line = form.Find("lblWeightRatio");
  if (line != nullptr && line->Type == Kind::Label) {
    return RatiosShown(FromText(static_cast<const Label*>(line)->Caption));
  }
  return IntervalOf(NumberOf(form, "txtWRLower"), NumberOf(form, "txtWRUpper"));
}

// What was judged inconsistent by a difference that the shown digits leave out is as far off as they can hide.
QString HintOfInconsistency(const WizardData& data, int attribute, const JudgedInterval& judged) {
  constexpr double kHidden = 0.005;
  const QString hint = HintFor(data, attribute, judged);
  if (!hint.isEmpty() || !judged) return hint;
  return HintFor(data, attribute, std::pair(judged->first - kHidden, judged->second + kHidden));
}

}  // namespace

JudgedInterval RatiosShown(const QString& caption) {
  const QStringList parts = caption.split(QLatin1Char(','));
  if (parts.size() != 2) return std::nullopt;
  const auto ratio = [](QString part) {
    part = part.trimmed();
    return part.endsWith(QLatin1String("/1")) ? TypedNumber(part.chopped(2)) : std::nullopt;
  };
  return IntervalOf(ratio(parts[0]), ratio(parts[1]));
}

QString HintFor(const WizardData& data, int attribute, const JudgedInterval& judged) {
  const Limits limits = LimitsOf(data, attribute);
  QStringList hints;
  if (limits.LowerOf >= 0 && (!judged || judged->first < limits.Lower)) hints += LowerHint(data, attribute, limits);
  if (limits.UpperOf >= 0 && (!judged || judged->second > limits.Upper)) hints += UpperHint(data, attribute, limits);
  return hints.join(QLatin1Char(' '));
}

JudgeSession::JudgeSession(const Project& project, const Beginning& beginning, QObject* parent)
    : QObject(parent),
      model_(SessionModelOf(project, beginning, SystemCodePage())),
      screen_(MakeQtPlatform()),
      dea_(std::make_unique<TRN_DEA>(screen_)) {
  Connect();
}

JudgeSession::~JudgeSession() { screen_->Trace = {}; }

void JudgeSession::Connect() {
  TRN_DEA_Events& events = dea_->Events();
  CollectJudgments(events, [this](const Judgments& judgments) {
    Q_EMIT Judged(SessionOf(model_, judgments, mdTRNMain()), judgments.TradeOffs.has_value());
  });
  events.UnloadTarnwise = [this](Integer /*fIndex*/, Boolean /*WeightsDone*/) { End(); };
  screen_->Trace.Announced = [this](const Label& label) { Look(label); };
}

void JudgeSession::Show() {
  WithModelFile(model_, [this](const String& path) { dea_->GetCurFileData(String("."), kFileIndex, path); });
  std::apply([this](const auto&... arrays) { dea_->TranferABCoordinates(arrays...); }, model_.Points);
  dea_->ShowTarnwise();
}

// Its handlers are still on the stack: what hears of the end comes when they are through.
void JudgeSession::End() {
  dea_->UnloadTarnwise();
  QTimer::singleShot(0, this, [this] { Q_EMIT Ended(); });
}

void JudgeSession::Look(const Label& label) {
  if (label.Name != "lblAlarm") return;
  if (label.Index == kInconsistentLight) {
    LookAtTarget(label);
  } else {
    Q_EMIT Hinted({});
  }
}

void JudgeSession::LookAtTarget(const Label& label) {
  const Form* form = nullptr;
  for (const Form* const candidate : screen_->Forms()) {
    const auto& controls = candidate->Controls();
    if (std::find(controls.begin(), controls.end(), &label) != controls.end()) form = candidate;
  }
  if (form == nullptr) return;
  const Control* const list = form->Find("imgcmbTargetAtt");
  if (list == nullptr || list->Type != Kind::ImageCombo) return;
  const int target = static_cast<const ImageCombo*>(list)->SelectedItem - 1;
  if (target >= 0) Q_EMIT Hinted(HintOfInconsistency(mdTRNMain(), target, JudgedOn(*form)));
}

}  // namespace Tarnwise
