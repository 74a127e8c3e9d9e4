# The player's way of driving the Windows toolkit: real mouse and key messages to the real windows.
add_library(tarnwise_win32driver STATIC
  ${CMAKE_CURRENT_LIST_DIR}/Win32Driver.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WindowPicture.cpp)
target_include_directories(tarnwise_win32driver PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
target_link_libraries(tarnwise_win32driver PUBLIC tarnwise_win32 PRIVATE tarnwise_options
  INTERFACE windowscodecs ole32 uuid)
