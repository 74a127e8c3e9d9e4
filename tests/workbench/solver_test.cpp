#include "workbench/Solver.h"
#include "Window.h"

#include <random>

namespace Tarnwise {
namespace {

// Three inputs and three outputs, uniform in 10 to 20.
std::shared_ptr<const Project> RandomUnits(int units) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> uniform(10.0, 20.0);
  Project project;
  for (int k = 0; k < units; ++k) project.Units.push_back("Unit " + std::to_string(k));
  for (int j = 0; j < 6; ++j) {
    DataColumn column;
    column.Name = "Column " + std::to_string(j);
    column.Role = j < 3 ? Role::Input : Role::Output;
    column.Worst = j < 3 ? 20.0 : 10.0;
    column.Best = j < 3 ? 10.0 : 20.0;
    for (int k = 0; k < units; ++k) column.Values.emplace_back(uniform(random));
    project.Columns.push_back(std::move(column));
  }
  return std::make_shared<const Project>(std::move(project));
}

TEST(SolverThread, AnswersInTheThreadOfTheWindow) {
  Solver solver(nullptr);
  SharedEvaluation evaluation;
  QObject::connect(&solver, &Solver::Solved, &solver, [&](const SharedEvaluation& found) {
    EXPECT_EQ(QThread::currentThread(), qApp->thread());
    evaluation = found;
  });
  solver.Start(std::make_shared<const Project>(JudgedHospitals()), AskedOf(JudgedHospitals(), {}));
  ASSERT_TRUE(QTest::qWaitFor([&] { return evaluation != nullptr; }, kPatience));
  EXPECT_NEAR(*evaluation->Results.Units[1].Max, 0.853710, 5e-7);
  EXPECT_FALSE(solver.IsBusy());
}

TEST(SolverThread, TellsWhyItCannotCompute) {
  Solver solver(nullptr);
  Project project = HospitalsFromTable();
  project.Columns[0].Values[3] = -1.0;
  QSignalSpy failed(&solver, &Solver::Failed);
  solver.Start(std::make_shared<const Project>(project), {});
  ASSERT_TRUE(failed.wait(kPatience));
  EXPECT_TRUE(failed[0][0].toString().contains("Doctors"));
}

TEST(SolverThread, IsCancelledInTheMiddle) {
  Solver solver(nullptr);
  QSignalSpy progressed(&solver, &Solver::Progressed);
  QSignalSpy cancelled(&solver, &Solver::Cancelled);
  QSignalSpy solved(&solver, &Solver::Solved);
  solver.Start(RandomUnits(30000), {});
  ASSERT_TRUE(progressed.wait(kPatience));
  solver.Cancel();
  ASSERT_TRUE(cancelled.wait(kPatience));
  EXPECT_EQ(solved.count(), 0);
  EXPECT_FALSE(solver.IsBusy());
}

TEST(SolverThread, AnswersTheNewestQuestionOnly) {
  Solver solver(nullptr);
  QSignalSpy solved(&solver, &Solver::Solved);
  solver.Start(RandomUnits(30000), {});
  solver.Start(std::make_shared<const Project>(HospitalsFromTable()), {});
  ASSERT_TRUE(solved.wait(kPatience));
  QTest::qWait(50);
  EXPECT_EQ(solved.count(), 1);
}

}  // namespace
}  // namespace Tarnwise
