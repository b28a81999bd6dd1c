# What a host application installs: the library, and, as components of its CMake package, the stand-ins and the hosts.

include(CMakePackageConfigHelpers)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/OrlinCustomDialogs)

# orlin_install(<name> <target> ...): the targets, their headers, and the file of the package that tells of them.
function(orlin_install name)
  install(TARGETS ${ARGN} EXPORT ${name} FILE_SET HEADERS)
  install(EXPORT ${name} DESTINATION ${package} NAMESPACE OrlinCustomDialogs::)
endfunction()

# orlin_pkg_config(<name> <description> LIBS <libs> REQUIRES <modules>): the same for programs built without CMake. The
# folders stand relative to the file, so that the whole can be moved.
file(RELATIVE_PATH prefix_of_package /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
function(orlin_pkg_config name description)
  cmake_parse_arguments(PARSE_ARGV 2 module "" "LIBS;REQUIRES" "")
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/OrlinCustomDialogs.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

orlin_install(OrlinCustomDialogsTargets orlin_headers OrlinCustomDialogs_shared)
orlin_pkg_config(OrlinCustomDialogs "Modal editors for the packed parameters of alarm control panels"
  LIBS "-L\${libdir} -lOrlinCustomDialogs")

# By its path, for beside a shared library -l never finds it.
orlin_install(OrlinCustomDialogsStatic OrlinCustomDialogs_static)
orlin_pkg_config(OrlinCustomDialogs-static "The editors as a part of the program"
  LIBS "\${libdir}/libOrlinCustomDialogs.a")

orlin_install(OrlinCustomDialogsPlatform orlin_platform_archive)
orlin_pkg_config(OrlinCustomDialogs-platform "Stand-ins for what lies outside the editors"
  LIBS "-L\${libdir} -lOrlinPlatform" REQUIRES "\${core} sqlite3 odbc")

orlin_install(OrlinCustomDialogsScript orlin_script_host)
orlin_pkg_config(OrlinCustomDialogs-script "Shows the editors to an operator made of text"
  LIBS "-L\${libdir} -lOrlinScriptHost" REQUIRES "\${core}")

set(programs orlin-host)
if(TARGET orlin_qt)
  orlin_install(OrlinCustomDialogsQt orlin_qt)
  orlin_pkg_config(OrlinCustomDialogs-qt "Shows the editors in windows"
    LIBS "-L\${libdir} -lOrlinQtHost" REQUIRES "\${core} Qt6Widgets")
  list(APPEND programs orlin-host-qt)  # orlin-host looks for it beside itself
endif()
install(TARGETS ${programs})

configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/OrlinCustomDialogsConfig.cmake.in ${PROJECT_BINARY_DIR}/OrlinCustomDialogsConfig.cmake
  INSTALL_DESTINATION ${package} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/OrlinCustomDialogsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(
  FILES
    ${PROJECT_BINARY_DIR}/OrlinCustomDialogsConfig.cmake
    ${PROJECT_BINARY_DIR}/OrlinCustomDialogsConfigVersion.cmake
  DESTINATION ${package})
