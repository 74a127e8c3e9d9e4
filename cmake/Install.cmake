# What another C++ program needs of the wizard, as the package Tarnwise with the target Tarnwise::TRN_DEA; and the
# program, where it is built.
include(CMakePackageConfigHelpers)

add_library(tarnwise_dea INTERFACE)
set_target_properties(tarnwise_dea PROPERTIES EXPORT_NAME TRN_DEA)
set_target_properties(tarnwise_core PROPERTIES EXPORT_NAME Core)
target_link_libraries(tarnwise_dea INTERFACE tarnwise_core)
set(package_targets tarnwise_dea tarnwise_core)
set(TARNWISE_HAS_QT OFF)
if(TARGET tarnwise_qt)
  set(TARNWISE_HAS_QT ON)
  set_target_properties(tarnwise_qt PROPERTIES EXPORT_NAME TRN_DEA_Qt)
  target_link_libraries(tarnwise_dea INTERFACE tarnwise_qt)
  list(APPEND package_targets tarnwise_qt)
endif()

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Tarnwise)
install(TARGETS ${package_targets} EXPORT TarnwiseTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/tarnwise DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT TarnwiseTargets NAMESPACE Tarnwise:: DESTINATION ${package_folder})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TarnwiseConfig.cmake.in
  ${PROJECT_BINARY_DIR}/TarnwiseConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TarnwiseConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TarnwiseConfig.cmake ${PROJECT_BINARY_DIR}/TarnwiseConfigVersion.cmake
  DESTINATION ${package_folder})
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(TARGET tarnwise)
  install(TARGETS tarnwise RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
