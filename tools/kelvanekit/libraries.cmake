# Makes kelvane_kit_libraries, with the headers of CLI11 and nlohmann/json, if both are there.
find_package(CLI11 2.1 QUIET CONFIG)
find_package(nlohmann_json 3.11 QUIET CONFIG)
if(NOT CLI11_FOUND OR NOT nlohmann_json_FOUND)
  return()
endif()

add_library(kelvane_kit_libraries INTERFACE)
if(NOT CMAKE_CROSSCOMPILING)
  target_link_libraries(kelvane_kit_libraries INTERFACE CLI11::CLI11 nlohmann_json::nlohmann_json)
  return()
endif()

# The folder of this system's headers must not be searched for another system: a folder with links to the two serves.
set(folder ${CMAKE_CURRENT_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${folder})
foreach(library CLI11::CLI11/CLI nlohmann_json::nlohmann_json/nlohmann)
  get_filename_component(target ${library} DIRECTORY)
  get_filename_component(name ${library} NAME)
  get_target_property(includes ${target} INTERFACE_INCLUDE_DIRECTORIES)
  list(GET includes 0 include)
  file(CREATE_LINK ${include}/${name} ${folder}/${name} SYMBOLIC)
endforeach()
target_include_directories(kelvane_kit_libraries SYSTEM INTERFACE ${folder})
