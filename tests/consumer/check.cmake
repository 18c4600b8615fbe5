# Installs the build in BUILD below SCRATCH and uses it, and then the sources in KELVANE: cmake -DBUILD=... -DSCRATCH=...
# -DKELVANE=... -DGENERATOR=... -DCOMPILER=... -P check.cmake
set(prefix ${SCRATCH}/prefix)
set(content ${SCRATCH}/content)
set(log ${SCRATCH}/conversions)

function(run)
  execute_process(COMMAND ${ARGV} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Runs what must fail and say `text`.
function(expect_failure text)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
  if(status EQUAL 0 OR NOT output MATCHES "${text}")
    message(FATAL_ERROR "'${ARGN}' ended with ${status} and said\n${output}")
  endif()
endfunction()

function(expect_same one other)
  run(${CMAKE_COMMAND} -E compare_files --ignore-eol ${one} ${other})
endfunction()

# Builds and expects that just these files are converted.
function(expect_conversions)
  file(WRITE ${log} "")
  run(${CMAKE_COMMAND} --build ${build} --parallel 2)
  file(STRINGS ${log} converted)
  list(SORT converted)
  if(NOT "${converted}" STREQUAL "${ARGN}")
    message(FATAL_ERROR "converted '${converted}', not '${ARGN}'")
  endif()
endfunction()

function(configure build)
  run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${build} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCONTENT=${content} ${ARGN})
endfunction()

# Checks that `bomber` changes a fighter as its comment describes.
function(expect_bomber bomber)
  run(${bomber} ${content}/ships/fighter_swallowtail.entity ${SCRATCH}/fighter)
  file(READ ${content}/ships/fighter_swallowtail.entity fighter)
  string(REPLACE "maxHullPoints 55.000000" "maxHullPoints 110.000000" changed "${fighter}")
  string(REPLACE "statCountType \"FighterCombat\"" "statCountType \"FighterBomber\"" changed "${changed}")
  file(WRITE ${SCRATCH}/expected "${changed}")
  expect_same(${SCRATCH}/fighter ${SCRATCH}/expected)
  expect_failure("Failed to Open File: 'missing.entity'" ${bomber} missing.entity ${SCRATCH}/fighter)
  expect_failure("" ${bomber} ${content}/star_amber.entity ${SCRATCH}/fighter)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
file(COPY ${KELVANE}/samples/entity/debris_hullplate.entity ${KELVANE}/samples/entity/star_amber.entity
  ${KELVANE}/samples/brushes/command-bar.brushes DESTINATION ${content})
file(COPY ${KELVANE}/samples/entity/fighter_swallowtail.entity DESTINATION ${content}/ships)
file(WRITE ${SCRATCH}/converter "#!/bin/sh\necho \"\${2##*/}\" >>'${log}'\nexec '${prefix}/bin/kelvane' \"$@\"\n")
file(CHMOD ${SCRATCH}/converter PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# The installed package.
set(build ${SCRATCH}/build)
configure(${build} -DCMAKE_BUILD_TYPE=Debug -DCMAKE_PREFIX_PATH=${prefix} -DKELVANE_EXECUTABLE=${SCRATCH}/converter)
expect_conversions(command-bar.brushes debris_hullplate.entity fighter_swallowtail.entity star_amber.entity)
expect_conversions()
file(TOUCH ${content}/star_amber.entity)
expect_conversions(star_amber.entity)
expect_same(${build}/text/command-bar.brushes ${content}/command-bar.brushes)
run(${prefix}/bin/kelvane entity ${build}/content/ships/fighter_swallowtail.entity ${SCRATCH}/fighter txt)
expect_same(${SCRATCH}/fighter ${content}/ships/fighter_swallowtail.entity)
expect_bomber(${build}/bomber)
# Without a class nothing is written, and an old output must not count as the new one, however often one builds.
file(READ ${content}/star_amber.entity star)
string(REPLACE "\"Star\"" "\"Nonsense\"" nonsense "${star}")
file(WRITE ${content}/star_amber.entity "${nonsense}")
expect_failure("the conversion wrote nothing" ${CMAKE_COMMAND} --build ${build})
expect_failure("the conversion wrote nothing" ${CMAKE_COMMAND} --build ${build})
file(WRITE ${content}/star_amber.entity "${star}")

find_program(pkgConfig pkg-config)
if(pkgConfig)
  file(GLOB_RECURSE pkgConfigFile ${prefix}/vorn.pc)
  execute_process(COMMAND ${pkgConfig} --cflags --libs ${pkgConfigFile} OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(flags UNIX_COMMAND "${flags}")
  run(${COMPILER} -std=c++20 ${CMAKE_CURRENT_LIST_DIR}/main.cpp -o ${SCRATCH}/bomber ${flags})
  expect_bomber(${SCRATCH}/bomber)
endif()

# The sources, as a folder of the project and as fetched ones.
set(build ${SCRATCH}/embedded)
find_program(compilerCache ccache)
if(compilerCache)
  set(launcher -DCMAKE_CXX_COMPILER_LAUNCHER=${compilerCache})
endif()
configure(${SCRATCH}/fetched -DWAY=fetch -DKELVANE=${KELVANE})
configure(${build} -DWAY=subdirectory -DKELVANE=${KELVANE} -DKELVANE_UNITY=ON ${launcher})
run(${CMAKE_COMMAND} --build ${build} --parallel 2)
expect_bomber(${build}/bomber)
expect_same(${build}/text/command-bar.brushes ${content}/command-bar.brushes)

# The program is what the page about the library shows.
file(READ ${CMAKE_CURRENT_LIST_DIR}/main.cpp program)
file(READ ${KELVANE}/docs/library.md page)
string(FIND "${page}" "```cpp\n${program}```" place)
if(place EQUAL -1)
  message(FATAL_ERROR "docs/library.md does not show tests/consumer/main.cpp")
endif()
