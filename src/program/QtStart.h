// The program's way into Qt.
#pragma once

#include <QApplication>

#include <memory>

namespace Tarnwise {

// From now on what Qt says of the system it runs on is not said.
void LeaveChatterOut();

// One for the life of the process. What Qt says of the system it runs on, and of what a platform without a screen does
// not have, is not said: nobody who starts the program can do anything about it. All else goes to standard error.
std::unique_ptr<QApplication> StartQt(int& argc, char** argv);

}  // namespace Tarnwise
