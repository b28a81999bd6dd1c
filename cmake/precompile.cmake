# orlin_precompile(<headers> <target> ...): the targets share one compiled set of headers.
# Off by default, for a compiler cache cannot help then, and a header that is not included would go unnoticed.

option(ORLIN_PRECOMPILE "Precompile headers, for builds from scratch" OFF)

function(orlin_precompile headers)
  if(ORLIN_PRECOMPILE)
    foreach(target IN LISTS ARGN)
      target_precompile_headers(${target} REUSE_FROM ${headers})
    endforeach()
  endif()
endfunction()

# orlin_headers_to_precompile(<name> <header> ...): a set of headers for code of libraries.
function(orlin_headers_to_precompile name)
  if(ORLIN_PRECOMPILE)
    add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompile.cpp)
    target_precompile_headers(${name} PRIVATE ${ARGN})
  endif()
endfunction()
