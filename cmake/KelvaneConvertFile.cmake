# Converts one file for kelvane_convert: cmake -DEXECUTABLE=... -DTYPE=... -DSOURCE=... -DOUTPUT=... -DFORMAT=... -P ...
# The output is replaced when the new one is whole.
cmake_minimum_required(VERSION 3.25)

function(give_up reason)
  file(REMOVE "${OUTPUT}.new")
  # Not all in the error, whose lines CMake breaks.
  message("${SOURCE}: error: ${reason}, so that ${OUTPUT} was not written")
  message(FATAL_ERROR "Not converted")
endfunction()

get_filename_component(directory "${OUTPUT}" DIRECTORY)
file(MAKE_DIRECTORY "${directory}")
file(REMOVE "${OUTPUT}.new")
execute_process(
  COMMAND "${EXECUTABLE}" "${TYPE}" "${SOURCE}" "${OUTPUT}.new" "${FORMAT}"
  RESULT_VARIABLE status
  OUTPUT_VARIABLE messages
  ERROR_VARIABLE reports)
string(APPEND reports "${messages}")
if(reports)
  message("${SOURCE}:\n${reports}")
endif()

if(NOT status EQUAL 0)
  give_up("the conversion ended with '${status}'")
elseif(NOT EXISTS "${OUTPUT}.new")
  give_up("the conversion wrote nothing")
elseif(reports MATCHES "assert! \\[(fileWriteResult == count|closeResult == 0|result >= 0)\\]")
  give_up("the conversion could not write all of it")
elseif(TYPE STREQUAL "saveGame")
  # Nothing is reported of save games. A copy is as long as its source, but not shorter than the stamp needs.
  file(SIZE "${SOURCE}" length)
  file(SIZE "${OUTPUT}.new" copied)
  if(length GREATER 0 AND length LESS 5)
    set(length 5)
  endif()
  if(NOT copied EQUAL length)
    give_up("the copy has ${copied} bytes in place of ${length}")
  endif()
endif()
file(RENAME "${OUTPUT}.new" "${OUTPUT}")
