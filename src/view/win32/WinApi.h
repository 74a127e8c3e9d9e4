// Windows' own header without the macros that would rename what is ours. To be included instead of it.
#pragma once

#include <windows.h>

#undef MessageBox
#undef far
#undef near
