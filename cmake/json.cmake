# The headers of nlohmann-json are the same for every system, but the host's package names the folder of
# all its headers, which are no good for another. So a cross compiler gets a folder with these alone.
if(CMAKE_CROSSCOMPILING)
  find_path(KESTRUM_JSON_HEADERS nlohmann/json.hpp NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/json")
  file(CREATE_LINK "${KESTRUM_JSON_HEADERS}/nlohmann" "${CMAKE_BINARY_DIR}/json/nlohmann" SYMBOLIC)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
  target_include_directories(nlohmann_json::nlohmann_json INTERFACE "${CMAKE_BINARY_DIR}/json")
else()
  find_package(nlohmann_json 3.11 REQUIRED GLOBAL)
endif()
