// What the test programs of the window begin with: an application with settings of its own.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

namespace Tarnwise {

inline int RunWindowTests(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  const QApplication application(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Tarnwise"));
  QApplication::setApplicationName(QStringLiteral("Tarnwise test"));
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  return RUN_ALL_TESTS();
}

}  // namespace Tarnwise
