// A window to test, a project for it, and somebody who answers its questions.
#pragma once

#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "project/ImportTable.h"
#include "workbench/MainWindow.h"
#include "workbench/ResultsPage.h"
#include "workbench/Texts.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace Tarnwise {

// Milliseconds; only somebody who hangs waits so long. What is waited for takes some seconds at most on an idle
// machine.
constexpr int kPatience = 300000;
constexpr int kGlance = 10;  // between two looks

// The twelve hospitals: two inputs, two outputs, the ranges from the worst of them to the best.
inline Project HospitalsFromTable() {
  TableOptions options;
  options.Unit = "Hospital";
  options.Inputs = {"Doctors,Nurses"};
  options.Outputs = {"Outpatients,Inpatients"};
  options.Ranges = {
      {"Doctors", 55.0, 19.0}, {"Nurses", 306.0, 131.0}, {"Outpatients", 94.0, 260.0}, {"Inpatients", 50.0, 147.0}};
  Project project = ImportTable(FileBytes(TARNWISE_SAMPLES "/hospitals.csv"), options).Project;
  project.Name = "Hospitals";
  return project;
}

inline SessionAttribute Judged(const char* name, double low, double high) {
  SessionAttribute attribute;
  attribute.Name = name;
  attribute.Low = low;
  attribute.Ratio = (low + high) / 2.0;
  attribute.High = high;
  return attribute;
}

// Doctors 3 to 4.09 times nurses, inpatients 2 to 2.5 times outpatients: swings.
inline JudgmentSession HospitalsSession() {
  JudgmentSession session;
  session.Made = "2024-05-17T09:30:00Z";
  session.By = "Dr. Müller";
  session.Approach = "DEA_DIRECT";
  session.BenefitReference = "Outpatients";
  session.CostReference = "Nurses";
  session.Attributes = {Judged("Doctors", 3.0, 4.09), Judged("Inpatients", 2.0, 2.5)};
  return session;
}

inline Project JudgedHospitals() {
  Project project = HospitalsFromTable();
  project.Sessions.push_back(HospitalsSession());
  return project;
}

template <class Widget>
Widget& Find(QWidget& in, const char* name) {
  auto* const found = in.findChild<Widget*>(QLatin1String(name));
  EXPECT_NE(found, nullptr) << name;
  return *found;
}

// Presses the button with this text, marks aside, in the next dialog that comes; after `before` was done there.
inline void AnswerNext(const QString& button, std::function<void(QDialog&)> before = {},
                       int tries = kPatience / kGlance) {
  QTimer::singleShot(kGlance, qApp, [=] {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
      if (tries > 0) return AnswerNext(button, before, tries - 1);
      ADD_FAILURE() << "no dialog came to answer " << button.toStdString() << " to";
      return;
    }
    if (before) before(*dialog);
    for (QPushButton* const candidate : dialog->findChildren<QPushButton*>()) {
      if (candidate->text().remove(QLatin1Char('&')) == button) return QTest::mouseClick(candidate, Qt::LeftButton);
    }
    ADD_FAILURE() << "no button " << button.toStdString();
    dialog->reject();
  });
}

inline bool AwaitResults(MainWindow& window) {
  return QTest::qWaitFor([&window] { return !window.Results().IsBusy() && window.Results().Shown() != nullptr; },
                         kPatience);
}

// On the screen, with that project in it.
struct OpenWindow {
  explicit OpenWindow(Project project = JudgedHospitals()) {
    Window.show();
    Window.Work().Replace(std::move(project));
    QCoreApplication::processEvents();
  }
  MainWindow Window;
};

}  // namespace Tarnwise
