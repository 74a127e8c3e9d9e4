#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
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
