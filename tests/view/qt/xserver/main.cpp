// Real widgets on a real X server.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "xcb");
  qputenv("QT_SCALE_FACTOR", "1");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
