#include "workbench/Solver.h"

#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "workbench/Texts.h"

#include <chrono>

namespace Tarnwise {

namespace {

// Progress a person can follow; more of it would keep the window busy.
Dea::Watch WatchOf(const std::atomic<bool>& cancel, std::function<void(double)> tell) {
  Dea::Watch watch;
  watch.Cancel = &cancel;
  auto last = std::chrono::steady_clock::now();
  watch.Progress = [tell = std::move(tell), last](double share) mutable {
    const auto now = std::chrono::steady_clock::now();
    if (now - last < std::chrono::milliseconds(40)) return;
    last = now;
    tell(share);
  };
  return watch;
}

}  // namespace

Solver::Solver(QObject* parent) : QObject(parent) { pool_.setMaxThreadCount(1); }

Solver::~Solver() {
  if (cancel_) cancel_->store(true);
  pool_.waitForDone();
}

void Solver::Start(std::shared_ptr<const Project> project, const Asked& asked) {
  if (cancel_) cancel_->store(true);
  cancel_ = std::make_shared<std::atomic<bool>>(false);
  busy_ = true;
  const int job = ++job_;
  Q_EMIT Began();
  pool_.start(
      [this, project = std::move(project), asked, cancel = cancel_, job] { Compute(*project, asked, cancel, job); });
}

void Solver::Cancel() {
  if (!busy_) return;
  cancel_->store(true);
}

void Solver::Compute(const Project& project, const Asked& asked, const Flag& cancel, int job) {
  const auto fail = [this, job](const char* reason) {
    Post(job, [this, text = QString::fromUtf8(reason)] {
      busy_ = false;
      Q_EMIT Failed(text);
    });
  };
  try {
    const auto tell = [this, job](double share) { Post(job, [this, share] { Q_EMIT Progressed(share); }); };
    const Dea::Watch watch = WatchOf(*cancel, tell);
    watch.LookAtFlag();
    auto evaluation = std::make_shared<const Evaluation>(Evaluate(project, asked, watch));
    Post(job, [this, evaluation] {
      busy_ = false;
      Q_EMIT Solved(evaluation);
    });
  } catch (const Dea::Cancelled&) {
    Post(job, [this] {
      busy_ = false;
      Q_EMIT Cancelled();
    });
  } catch (const std::exception& fault) {
    fail(fault.what());
  }
}

template <class Answer>
void Solver::Post(int job, Answer answer) {
  QMetaObject::invokeMethod(
      this,
      [this, job, answer = std::move(answer)] {
        if (job == job_) answer();
      },
      Qt::QueuedConnection);
}

}  // namespace Tarnwise
