# orlin_export_interface(<library> <header> ...): the DLL exports its entry points and what the headers declare.
#
# Hidden visibility means nothing on Windows: left alone, the linker exports every dialog too. So it gets the names, as the
# compiler writes them, of the functions and classes of namespace orlin. What is in orlin::shown has no code to export.
function(orlin_export_interface library)
  set(exported "Dll*;")
  foreach(header IN LISTS ARGN)
    file(READ ${header} text)
    string(REGEX REPLACE "namespace shown {.*}  // namespace shown" "" text "${text}")
    string(REGEX REPLACE "\\[\\[[^]]*\\]\\] ?" "" text "${text}")
    string(REGEX REPLACE "[][;]" "@" text "${text}")  # lists of CMake would take them for their own
    set(name "([A-Za-z0-9_]+)")
    string(REGEX MATCHALL "\n(class|struct) ${name}[^@{]*{|\n[^\n /#][^\n(]* [*&]*${name}[(]" names "${text}")
    list(TRANSFORM names REPLACE "\n(class|struct) ${name}.*" "\\2")
    list(TRANSFORM names REPLACE "\n.* [*&]*${name}[(]" "\\1")
    foreach(name IN LISTS names)
      string(LENGTH ${name} length)
      set(entity N5orlin${length}${name})
      string(REPLACE N5 NK5 const_member ${entity})
      string(APPEND exported "\n  _Z${entity}*; _Z${const_member}*; _ZT?${entity}*;")
    endforeach()
  endforeach()
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${library}.exports)
  file(CONFIGURE OUTPUT ${script} CONTENT "{\nglobal:\n  ${exported}\nlocal:\n  *;\n};\n" @ONLY)
  target_link_options(${library} PRIVATE -Wl,--version-script=${script})
  set_property(TARGET ${library} APPEND PROPERTY LINK_DEPENDS ${script})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ARGN})
endfunction()
