// The screens that a host can show the wizard on, and what help is there.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstdint>
#include <functional>
#include <memory>

namespace Tarnwise {

// A screen with the forms that are on it. Several objects of TRN_DEA may share one; it lives as long as any of them.
// It belongs to the thread that made it.
class Platform;

// Qt widgets, in the library Tarnwise::TRN_DEA_Qt. A QApplication exists already and outlives the screen; the steps
// come to life in its event loop. Set QApplication::setQuitOnLastWindowClosed(false): between two steps no window may
// be open.
std::shared_ptr<Platform> MakeQtPlatform();

// Windows' own controls, in builds for Windows only (library tarnwise_win32). The thread has a message loop.
std::shared_ptr<Platform> MakeWin32Platform();

// No screen at all, for tests and scripts: nobody can act on it but the host's own code.
std::shared_ptr<Platform> MakeHeadlessPlatform();

// The window of the step that asks for help, as the platform numbers it: under Windows its HWND, under Qt its
// QWidget::winId() (QWidget::find leads back to the widget), 0 where there is no screen.
using WindowHandle = std::uintptr_t;

// A call for help: the step's window; the path of the help file, which is KestaDir, "\" and "KESTA.HLP"; the command,
// 1: show a context; and the context number, 4005025. What the operation gives back is not looked at. It may show a
// window of its own and wait for it, and may do what a handler of an event may; what it throws is told to the user as a
// fault of the host's.
using HelpOperation = std::function<void(WindowHandle window, const String& path, int command, int context)>;

// How help is shown on that screen from now on, for all objects that share it. An empty operation brings back the
// screen's own way: Windows shows the help file by WinHelpA, Qt opens it with the program that the desktop has for it,
// without a screen nothing happens.
void SetHelp(Platform& screen, HelpOperation help);

}  // namespace Tarnwise
