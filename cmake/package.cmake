# What `cmake --install` and CPack put in place: the programs with their documents, and the library for other projects.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(packageDirectory ${CMAKE_INSTALL_LIBDIR}/cmake/kelvane)
set(includeDirectory ${CMAKE_INSTALL_INCLUDEDIR}/kelvane)

foreach(program kelvane kelvane-kit)
  if(TARGET ${program})
    install(TARGETS ${program} EXPORT kelvane RUNTIME COMPONENT kelvane)
  endif()
endforeach()
install(FILES docs/authoring.md docs/conversion.md docs/recipes.md ${keyReference} DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT kelvane)
if(NOT WIN32)
  foreach(manual IN LISTS manuals)
    string(REGEX MATCH "[1-9]$" section ${manual})
    install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_MANDIR}/man${section} COMPONENT kelvane)
  endforeach()
  install(FILES tools/kelvane/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME kelvane COMPONENT kelvane)
  if(TARGET kelvane-kit)
    install(FILES tools/kelvanekit/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
      RENAME kelvane-kit COMPONENT kelvane)
    install(FILES tools/kelvanekit/completion.zsh DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions
      RENAME _kelvane-kit COMPONENT kelvane)
  endif()
endif()

if(TARGET editor_files)
  install(DIRECTORY editors/ ${editorsDirectory}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/kelvane/editors COMPONENT kelvane
    PATTERN "*.in" EXCLUDE)
  install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/kelvane/editors/vscode COMPONENT kelvane)
endif()

install(TARGETS vorn EXPORT kelvane
  ARCHIVE COMPONENT libvorn-dev
  INCLUDES DESTINATION ${includeDirectory})
install(DIRECTORY engine gs DESTINATION ${includeDirectory} COMPONENT libvorn-dev
  FILES_MATCHING PATTERN "*.h" PATTERN "*_impl.h" EXCLUDE)
install(EXPORT kelvane FILE kelvaneTargets.cmake NAMESPACE kelvane:: DESTINATION ${packageDirectory}
  COMPONENT libvorn-dev)
configure_package_config_file(cmake/kelvaneConfig.cmake.in kelvaneConfig.cmake INSTALL_DESTINATION ${packageDirectory})
write_basic_package_version_file(kelvaneConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/kelvaneConfig.cmake
  ${PROJECT_BINARY_DIR}/kelvaneConfigVersion.cmake
  cmake/KelvaneConvert.cmake
  cmake/KelvaneConvertFile.cmake
  DESTINATION ${packageDirectory} COMPONENT libvorn-dev)
file(RELATIVE_PATH prefixFromPkgConfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/vorn.pc.in vorn.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vorn.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT libvorn-dev)
install(FILES docs/library.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libvorn-dev COMPONENT libvorn-dev)

foreach(component kelvane libvorn-dev)
  install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${component} RENAME copyright COMPONENT ${component})
  install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${component} COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB TGZ)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
endif()
set(CPACK_PACKAGE_VENDOR "The kelvane authors")
set(CPACK_PACKAGE_CONTACT "The kelvane authors <authors@kelvane.invalid>")
set(CPACK_PACKAGE_FILE_NAME kelvane-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packagefiles.cmake)
set(CPACK_COMPONENTS_ALL kelvane libvorn-dev)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_KELVANE_PACKAGE_NAME kelvane)
set(CPACK_DEBIAN_KELVANE_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_KELVANE_DESCRIPTION "converter of game content between text and binary files
The content of a space-strategy game is edited as text and shipped in a
compact binary form. kelvane converts one file a run between the two: meshes,
particle effects, brushes, definitions of entities, and save games. It finds
out the form of a file by itself, brings older versions up to date, and
reports what is wrong with damaged ones.
kelvane-kit checks any number of files and reports each mistake at its line,
and converts whole folders, each file as a whole or not at all.")
set(CPACK_DEBIAN_LIBVORN-DEV_PACKAGE_NAME libvorn-dev)
set(CPACK_DEBIAN_LIBVORN-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBVORN-DEV_PACKAGE_DEPENDS "kelvane (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_DEBIAN_LIBVORN-DEV_DESCRIPTION "game content as C++ records, read and written (development files)
libvorn reads meshes, particle effects, brushes and definitions of entities of
a space-strategy game into plain C++ records and writes them again, in their
text form or their binary form.
This package has the static library, the headers, and what CMake and
pkg-config need to find them.")
include(CPack)
