# What a host application installs: the library, and, as components of its CMake package, the stand-ins and the hosts.

include(CMakePackageConfigHelpers)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/OrlinCustomDialogs)

# orlin_install(<name> HEADERS <folder> TARGETS <targets>): the targets and the file of the package that tells of them.
function(orlin_install name)
  cmake_parse_arguments(PARSE_ARGV 1 part "" "HEADERS" "TARGETS")
  install(TARGETS ${part_TARGETS} EXPORT ${name} FILE_SET HEADERS DESTINATION ${part_HEADERS})
  install(EXPORT ${name} DESTINATION ${package} NAMESPACE OrlinCustomDialogs::)
endfunction()

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/OrlinCustomDialogs)
orlin_install(OrlinCustomDialogsTargets
  HEADERS ${CMAKE_INSTALL_INCLUDEDIR} TARGETS orlin_headers OrlinCustomDialogs_shared)
orlin_install(OrlinCustomDialogsPlatform HEADERS ${headers}/platform TARGETS orlin_platform_archive)
orlin_install(OrlinCustomDialogsScript HEADERS ${headers}/hosts TARGETS orlin_script_host)
set(programs orlin-host)
if(TARGET orlin_qt)
  orlin_install(OrlinCustomDialogsQt HEADERS ${headers}/hosts TARGETS orlin_qt)
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

# The folders stand relative to the file, so that the whole can be moved.
file(RELATIVE_PATH prefix_of_package /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(
  ${CMAKE_CURRENT_LIST_DIR}/OrlinCustomDialogs.pc.in ${PROJECT_BINARY_DIR}/OrlinCustomDialogs.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/OrlinCustomDialogs.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
