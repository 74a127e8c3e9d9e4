# The player's way of driving the Qt toolkit: real mouse and key events to the real widgets.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Test)
add_library(tarnwise_qtdriver STATIC ${CMAKE_CURRENT_LIST_DIR}/QtDriver.cpp)
target_include_directories(tarnwise_qtdriver PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
target_compile_definitions(tarnwise_qtdriver PRIVATE QT_NO_KEYWORDS)
target_link_libraries(tarnwise_qtdriver PUBLIC tarnwise_qt PRIVATE Qt6::Test tarnwise_options)
