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
install(TARGETS ${package_targets} EXPORT TarnwiseTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  COMPONENT library)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/tarnwise DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT library)
install(EXPORT TarnwiseTargets NAMESPACE Tarnwise:: DESTINATION ${package_folder} COMPONENT library)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TarnwiseConfig.cmake.in
  ${PROJECT_BINARY_DIR}/TarnwiseConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TarnwiseConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TarnwiseConfig.cmake ${PROJECT_BINARY_DIR}/TarnwiseConfigVersion.cmake
  DESTINATION ${package_folder} COMPONENT library)

# The same for pkg-config, as Tarnwise.
set(TARNWISE_LIBS "-ltarnwise_core")
set(TARNWISE_REQUIRES)
if(TARNWISE_HAS_QT)
  set(TARNWISE_LIBS "-ltarnwise_qt -ltarnwise_core")
  set(TARNWISE_REQUIRES "Qt6Widgets")
endif()
file(RELATIVE_PATH TARNWISE_PC_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${CMAKE_CURRENT_LIST_DIR}/tarnwise.pc.in ${PROJECT_BINARY_DIR}/tarnwise.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tarnwise.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT library)

# Debian's packages say the same in their copyright files.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licences)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/licenses DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licences)
if(TARGET tarnwise)
  install(TARGETS tarnwise RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endif()
