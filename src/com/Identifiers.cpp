// Gives the identifiers of the type library their one place in memory.
#include <windows.h>

#include <initguid.h>

// After initguid.h, which turns its declarations into definitions.
#include "com/player/PlayerAccess.h"

#include <Tarnwise_DEA.h>
