# What the compiler is asked to tell, of the flags that it knows. Whether a warning ends the build is the preset's
# business: CMAKE_COMPILE_WARNING_AS_ERROR.

include(CheckCXXCompilerFlag)

# A -Wno-... that a compiler does not know passes for known, so its positive form is asked for.
foreach(flag -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wno-restrict)
  string(REPLACE "-Wno-" "-W" probe ${flag})
  string(MAKE_C_IDENTIFIER "ORLIN_HAS${probe}" known)
  check_cxx_compiler_flag(${probe} ${known})
  if(${known})
    add_compile_options(${flag})
  endif()
endforeach()
