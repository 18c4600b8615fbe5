# The records and all below them in one archive, for programs that use the same contents. The names with kelvane:: are
# the same here, for add_subdirectory and FetchContent, as in the installed package.
add_library(vorn STATIC $<TARGET_OBJECTS:kelvane_engine> $<TARGET_OBJECTS:kelvane_gs>)
set_target_properties(vorn PROPERTIES LINKER_LANGUAGE CXX)
target_compile_features(vorn INTERFACE cxx_std_20)
target_include_directories(vorn SYSTEM INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)

add_library(kelvane::vorn ALIAS vorn)
foreach(program kelvane kelvane-kit)
  if(TARGET ${program})
    add_executable(kelvane::${program} ALIAS ${program})
  endif()
endforeach()
