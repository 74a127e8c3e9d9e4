// The thread that computes: one computation at a time, of which only the newest is awaited.
#pragma once

#include "project/Evaluation.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

namespace Tarnwise {

class Solver : public QObject {
  Q_OBJECT

 public:
  explicit Solver(QObject* parent);
  ~Solver() override;  // cancels and waits

  // Ends what is under way; its answer, if it comes all the same, is dropped.
  void Start(std::shared_ptr<const Project> project, const Asked& asked);
  void Cancel();
  bool IsBusy() const { return busy_; }

 Q_SIGNALS:
  void Began();
  void Progressed(double share);
  void Solved(const std::shared_ptr<const Evaluation>& evaluation);
  void Failed(const QString& reason);
  void Cancelled();

 private:
  using Flag = std::shared_ptr<std::atomic<bool>>;
  void Compute(const Project& project, const Asked& asked, const Flag& cancel, int job);
  // In the window's thread, unless there is a newer job by then.
  template <class Answer>
  void Post(int job, Answer answer);

  QThreadPool pool_;
  Flag cancel_;
  int job_ = 0;
  bool busy_ = false;
};

}  // namespace Tarnwise
