# Cross compiling for Windows. TARNWISE_MINGW is x86_64 or i686.
set(CMAKE_SYSTEM_NAME Windows)
if(NOT TARNWISE_MINGW)
  set(TARNWISE_MINGW x86_64)
endif()
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARNWISE_MINGW)
set(CMAKE_SYSTEM_PROCESSOR ${TARNWISE_MINGW})
set(prefix ${TARNWISE_MINGW}-w64-mingw32)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)
set(TARNWISE_WIDL ${prefix}-widl)
set(CMAKE_FIND_ROOT_PATH /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# No library beyond the system's; on 32 bits the same arithmetic as everywhere else.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
if(TARNWISE_MINGW STREQUAL i686)
  set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
endif()
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)

# With <string> precompiled, this compiler warns of overflows in its own concatenation where there are none.
set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
