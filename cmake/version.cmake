# The version is set by project() in the top CMakeLists.txt. Programs get it from here, with kelvane_version, and show it
# to Windows as a resource.
set(generatedDirectory ${PROJECT_BINARY_DIR}/generated)
configure_file(cmake/version.h.in ${generatedDirectory}/tools/version.h @ONLY)
add_library(kelvane_version INTERFACE)
target_include_directories(kelvane_version INTERFACE ${generatedDirectory})

if(WIN32)
  enable_language(RC)
endif()

function(kelvane_add_version program description)
  target_link_libraries(${program} PRIVATE kelvane_version)
  if(WIN32)
    set(PROGRAM ${program})
    set(DESCRIPTION "${description}")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${PROJECT_BINARY_DIR}/generated/${program}.rc @ONLY)
    target_sources(${program} PRIVATE ${PROJECT_BINARY_DIR}/generated/${program}.rc)
  endif()
endfunction()
