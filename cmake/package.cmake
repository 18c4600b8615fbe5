# What `cmake --install` and CPack put in place.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(packageDirectory ${CMAKE_INSTALL_LIBDIR}/cmake/kelvane)
set(includeDirectory ${CMAKE_INSTALL_INCLUDEDIR}/kelvane)

# The records and all below them in one archive, for programs that use the same contents.
add_library(vorn STATIC $<TARGET_OBJECTS:engine> $<TARGET_OBJECTS:gs>)
set_target_properties(vorn PROPERTIES LINKER_LANGUAGE CXX)
target_compile_features(vorn INTERFACE cxx_std_20)
target_include_directories(vorn INTERFACE $<INSTALL_INTERFACE:${includeDirectory}>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_INTERPROCEDURAL_OPTIMIZATION)
  # Usable without link-time optimisation too.
  target_compile_options(engine PRIVATE -ffat-lto-objects)
  target_compile_options(gs PRIVATE -ffat-lto-objects)
endif()

install(TARGETS kelvane vorn EXPORT kelvane)
install(EXPORT kelvane FILE kelvaneTargets.cmake NAMESPACE kelvane:: DESTINATION ${packageDirectory})
install(DIRECTORY engine gs DESTINATION ${includeDirectory}
  FILES_MATCHING PATTERN "*.h" PATTERN "*_impl.h" EXCLUDE)

configure_package_config_file(cmake/kelvaneConfig.cmake.in kelvaneConfig.cmake INSTALL_DESTINATION ${packageDirectory})
write_basic_package_version_file(kelvaneConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/kelvaneConfig.cmake
  ${PROJECT_BINARY_DIR}/kelvaneConfigVersion.cmake
  cmake/KelvaneConvert.cmake
  DESTINATION ${packageDirectory})

install(FILES docs/kelvane.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES tools/kelvane/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME kelvane)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
install(FILES docs/conversion.md docs/recipes.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_VENDOR "The kelvane authors")
set(CPACK_PACKAGE_CONTACT "The kelvane authors <authors@kelvane.invalid>")
set(CPACK_PACKAGE_FILE_NAME kelvane-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packagetimes.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS OFF)
include(CPack)
