// The wizard inside this process, on a project as it stood when it was started: from its first step until it ends.
#pragma once

#include "project/SessionModel.h"

#include <QObject>
#include <QString>

#include <memory>

namespace Tarnwise {

class Platform;
class TRN_DEA;
struct Label;

// Why a judgment is inconsistent and from where on it would fit: "Doctors must stay at or above 1.00: Nurses, on the
// next lower rank, is judged up to 1.00." The judgment is low to high; without it both limits are named. Empty where
// nothing limits the attribute.
using JudgedInterval = std::optional<std::pair<double, double>>;
QString HintFor(const WizardData& data, int attribute, const JudgedInterval& judged);

// The two ratios as the step with trade-offs shows them: "0.50/1,    1.50/1". Nothing where they are no two numbers.
JudgedInterval RatiosShown(const QString& caption);

class JudgeSession : public QObject {
  Q_OBJECT

 public:
  // A ModelFault says why there is nothing to judge.
  JudgeSession(const Project& project, const Beginning& beginning, QObject* parent);
  ~JudgeSession() override;

  const SessionModel& Model() const { return model_; }
  void Show();
  void End();  // whatever step it is in; nothing is handed over

 Q_SIGNALS:
  // Inside the event that exports the judgments; of trade-offs a second time, with their points.
  void Judged(const JudgmentSession& session, bool again);
  void Ended();
  void Hinted(const QString& hint);  // empty: nothing is in the way any more

 private:
  void Connect();
  void Look(const Label& label);
  void LookAtTarget(const Label& label);

  SessionModel model_;
  std::shared_ptr<Platform> screen_;
  std::unique_ptr<TRN_DEA> dea_;
};

}  // namespace Tarnwise
