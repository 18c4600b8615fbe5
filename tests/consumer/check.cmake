# Installs the build in BUILD below SCRATCH and uses it: cmake -DBUILD=... -DSCRATCH=... -DSAMPLES=... -DGENERATOR=...
# -DCOMPILER=... -P check.cmake
set(prefix ${SCRATCH}/prefix)
set(content ${SCRATCH}/content)
set(build ${SCRATCH}/build)
set(log ${SCRATCH}/conversions)

function(run)
  execute_process(COMMAND ${ARGV} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
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

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
set(names entity/debris_hullplate.entity entity/fighter_swallowtail.entity entity/star_amber.entity
  brushes/command-bar.brushes)
foreach(name IN LISTS names)
  file(COPY ${SAMPLES}/${name} DESTINATION ${content})
endforeach()
file(WRITE ${SCRATCH}/converter "#!/bin/sh\necho \"\${2##*/}\" >>'${log}'\nexec '${prefix}/bin/kelvane' \"$@\"\n")
file(CHMOD ${SCRATCH}/converter PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${build} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER}
  -DCMAKE_BUILD_TYPE=Debug -DCMAKE_PREFIX_PATH=${prefix} -DCONTENT=${content} -DKELVANE_EXECUTABLE=${SCRATCH}/converter)
expect_conversions(command-bar.brushes debris_hullplate.entity fighter_swallowtail.entity star_amber.entity)
expect_conversions()
file(TOUCH ${content}/star_amber.entity)
expect_conversions(star_amber.entity)

expect_same(${build}/text/command-bar.brushes ${content}/command-bar.brushes)
run(${prefix}/bin/kelvane entity ${build}/content/star_amber.entity ${SCRATCH}/star txt)
expect_same(${SCRATCH}/star ${content}/star_amber.entity)

run(${build}/doublehull ${build}/content/fighter_swallowtail.entity ${SCRATCH}/fighter)
file(READ ${content}/fighter_swallowtail.entity fighter)
string(REPLACE "maxHullPoints 55.000000" "maxHullPoints 110.000000" doubled "${fighter}")
if(doubled STREQUAL fighter)
  message(FATAL_ERROR "the sample has other hull points")
endif()
file(WRITE ${SCRATCH}/expected "${doubled}")
expect_same(${SCRATCH}/fighter ${SCRATCH}/expected)
