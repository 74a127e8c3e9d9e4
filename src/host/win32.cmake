# The player's way of driving the Windows toolkit: real mouse and key messages to the real windows.
add_library(tarnwise_win32driver STATIC
  ${CMAKE_CURRENT_LIST_DIR}/Win32Driver.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WindowPicture.cpp)
target_include_directories(tarnwise_win32driver PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
target_link_libraries(tarnwise_win32driver PUBLIC tarnwise_win32 PRIVATE tarnwise_options
  INTERFACE windowscodecs ole32 uuid)

# The registered class as our own program drives it.
add_library(tarnwise_comhost STATIC
  ${CMAKE_CURRENT_LIST_DIR}/ComHost.cpp
  ${CMAKE_CURRENT_LIST_DIR}/../com/Arrays.cpp
  ${CMAKE_CURRENT_LIST_DIR}/../com/Convert.cpp
  ${CMAKE_CURRENT_LIST_DIR}/../com/Errors.cpp
  ${CMAKE_CURRENT_LIST_DIR}/../com/Identifiers.cpp)
add_dependencies(tarnwise_comhost tarnwise_typelib)
target_include_directories(tarnwise_comhost PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
target_include_directories(tarnwise_comhost SYSTEM PRIVATE ${PROJECT_BINARY_DIR}/src/com)
target_link_libraries(tarnwise_comhost PUBLIC tarnwise_core PRIVATE tarnwise_options tarnwise_com_options
  INTERFACE ole32 oleaut32 uuid)
