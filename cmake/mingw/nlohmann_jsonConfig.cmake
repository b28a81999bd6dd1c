# The library is headers alone, so this machine's serve Windows too. They are linked into a folder of their own: all of
# /usr/include is not for MinGW.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include)
file(CREATE_LINK /usr/include/nlohmann ${CMAKE_BINARY_DIR}/include/nlohmann SYMBOLIC)
if(NOT TARGET nlohmann_json::nlohmann_json)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
  target_include_directories(nlohmann_json::nlohmann_json INTERFACE ${CMAKE_BINARY_DIR}/include)
endif()
