# Debian packages by cpack: the program, and the library for hosts. What a desktop and a shell want to know of the
# program is installed with it.
if(WIN32)
  return()
endif()
find_program(GZIP gzip REQUIRED)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(packed ${PROJECT_BINARY_DIR}/packaging)

# packed_text(IN OUT): the text with its places filled in, packed; always the same bytes.
function(packed_text in out)
  configure_file(${in} ${out} @ONLY)
  execute_process(COMMAND ${GZIP} -9nc ${out} OUTPUT_FILE ${out}.gz COMMAND_ERROR_IS_FATAL ANY)
endfunction()

if(TARGET tarnwise)
  set(manuals tarnwise tarnwise-export tarnwise-import tarnwise-judge tarnwise-model tarnwise-open tarnwise-play
    tarnwise-report tarnwise-run tarnwise-solve)
  foreach(name ${manuals})
    packed_text(${packaging}/man/${name}.1 ${packed}/man/${name}.1)
    install(FILES ${packed}/man/${name}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
  endforeach()
  install(FILES ${packaging}/bash-completion DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME tarnwise COMPONENT program)
  install(FILES ${packaging}/desktop/tarnwise.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
    COMPONENT program)
  install(FILES ${packaging}/desktop/mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME tarnwise.xml COMPONENT program)
  if(TARGET tarnwise_qt)
    install(FILES ${packaging}/desktop/org.tarnwise.Wizard.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
      COMPONENT program)
  endif()
  if(TARGET tarnwise_workbench)
    install(FILES ${packaging}/desktop/org.tarnwise.Tarnwise.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
      COMPONENT program)
    install(FILES ${packaging}/desktop/org.tarnwise.Tarnwise.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
      COMPONENT program)
  endif()
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/tarnwise)
  foreach(name user-guide model-format project-format session-scripts dea)
    install(FILES ${PROJECT_SOURCE_DIR}/docs/${name}.md DESTINATION ${documents} COMPONENT program)
  endforeach()
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/pictures DESTINATION ${documents} COMPONENT program)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/samples/ DESTINATION ${documents}/examples COMPONENT program
    PATTERN com EXCLUDE)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/docs/host-guide.md ${PROJECT_SOURCE_DIR}/docs/model-format.md
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libtarnwise-dev COMPONENT library)

# Debian wants these two of every package.
packed_text(${packaging}/debian/changelog ${packed}/changelog.Debian)
foreach(pair program:tarnwise library:libtarnwise-dev)
  string(REPLACE ":" ";" pair ${pair})
  list(GET pair 0 component)
  list(GET pair 1 package)
  set(folder ${CMAKE_INSTALL_DATADIR}/doc/${package})
  install(FILES ${packed}/changelog.Debian.gz DESTINATION ${folder} COMPONENT ${component})
  install(FILES ${packaging}/debian/${package}.copyright DESTINATION ${folder} RENAME copyright COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnwise)
set(CPACK_PACKAGE_VENDOR "Tarnwise developers")
set(CPACK_PACKAGE_CONTACT "Tarnwise developers <maintainers@tarnwise.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL program library)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME tarnwise)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "fonts-dejavu-core")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "libtarnwise-dev")
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
"judged weights for data envelopment analysis
Data envelopment analysis evaluates hospitals, schools or branches, but left
alone it finds absurd weights for what they use and achieve. Tarnwise asks
the person who decides: attributes are ranked, compared with a reference each,
and judged as an interval of weight ratios, on a chart or by trading off two
alternatives. The efficiencies are then worked out with what was judged.

This package holds the program, with the wizard, the analyst's window and
its commands.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libtarnwise-dev)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "qt6-base-dev")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SUGGESTS "tarnwise")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION
"judged weights for data envelopment analysis (library)
Tarnwise asks a decision maker for intervals of weight ratios, in a wizard
that is a component for host applications written in C++.

This package holds the static libraries, the headers, the CMake package and
the pkg-config file.")
include(CPack)
