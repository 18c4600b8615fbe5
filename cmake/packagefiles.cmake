# Completes what CPack has put together before it is packed.
file(GLOB documentFolders LIST_DIRECTORIES true ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*)

# Debian wants manual pages and changelogs compressed, a changelog in its own form, packages' completions for zsh in a
# folder of their own, and reasons for what it would not do.
function(complete_debian_package documents)
  get_filename_component(package ${documents} NAME)
  get_filename_component(share ${documents}/../.. ABSOLUTE)
  # Honours SOURCE_DATE_EPOCH.
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)
  file(WRITE ${documents}/changelog.Debian
    "kelvane (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium\n\n"
    "  * Version ${CPACK_PACKAGE_VERSION}; changelog.gz tells what is new in it.\n\n"
    " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
  if(package STREQUAL "kelvane")
    file(WRITE ${share}/lintian/overrides/kelvane
      "# One file without dependencies runs in any container or build machine, and starts in half the time of one that\n"
      "# loads libraries, which counts in builds that run it thousands of times. It opens no network connection and\n"
      "# looks up no names of hosts or users.\n"
      "kelvane: statically-linked-binary [usr/bin/kelvane*]\n")
  endif()
  if(EXISTS ${share}/zsh/site-functions)
    file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)
  endif()
  file(GLOB_RECURSE compressed ${documents}/changelog* ${share}/man/*)
  foreach(file IN LISTS compressed)
    execute_process(COMMAND gzip -9n ${file} COMMAND_ERROR_IS_FATAL ANY)
    file(CHMOD ${file}.gz PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  endforeach()
endfunction()

if(CPACK_GENERATOR STREQUAL "DEB")
  foreach(documents IN LISTS documentFolders)
    complete_debian_package(${documents})
  endforeach()
endif()

# Gives all of it the time of SOURCE_DATE_EPOCH, so that the same source makes the same bytes.
if(DEFINED ENV{SOURCE_DATE_EPOCH} AND NOT CMAKE_HOST_WIN32)
  execute_process(
    COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
    COMMAND_ERROR_IS_FATAL ANY)
endif()
