#[[
kelvane_convert(TYPE <type> FILES <file>... OUTPUT_DIRECTORY <directory> [BASE <directory>] [FORMAT txt|bin]
                [TARGET <name>] [STRICT])

Converts each file into one of the same name in the output directory, as a part of `all`. With BASE the folders between
it and a file are kept: BASE content turns content/ships/a.entity into <directory>/ships/a.entity. Every file is a rule
of its own with that one output, which is made again when the file or the converter changes, and a build tool runs as
many of them at once as it likes. Files and BASE are relative to the current source directory, OUTPUT_DIRECTORY to the
current binary directory. FORMAT is bin by default. TARGET names the target that makes all outputs, for others to depend
on.

With STRICT kelvane-kit converts, and a file in which it finds an error fails each build until it is mended. It knows no
save games.

Without, reports of the converter appear in the output of the build, below the name of their file. They do not fail it. A
conversion that ends abnormally or writes nothing does, and so does a full disk; then the output stays as it was.

KELVANE_EXECUTABLE and KELVANE_KIT_EXECUTABLE are the programs to run. Set them in a cross build, where those that are
installed or built are not for this machine.
]]
set(KELVANE_EXECUTABLE "" CACHE FILEPATH "Converter to run in place of that of kelvane")
set(KELVANE_KIT_EXECUTABLE "" CACHE FILEPATH "kelvane-kit to run in place of that of kelvane")
set_property(GLOBAL PROPERTY KELVANE_CONVERT_SCRIPT "${CMAKE_CURRENT_LIST_DIR}/KelvaneConvertFile.cmake")

function(kelvane_convert)
  cmake_parse_arguments(PARSE_ARGV 0 convert "STRICT" "TYPE;OUTPUT_DIRECTORY;BASE;FORMAT;TARGET" "FILES")
  if(convert_UNPARSED_ARGUMENTS OR NOT convert_OUTPUT_DIRECTORY)
    message(FATAL_ERROR "kelvane_convert: unknown arguments '${convert_UNPARSED_ARGUMENTS}' or no OUTPUT_DIRECTORY")
  endif()
  if(NOT convert_TYPE MATCHES "^(mesh|MESH|particle|brushes|entity|saveGame)$")
    message(FATAL_ERROR "kelvane_convert: TYPE is '${convert_TYPE}'")
  endif()
  if(NOT convert_FORMAT)
    set(convert_FORMAT bin)
  elseif(NOT convert_FORMAT MATCHES "^(txt|bin)$")
    message(FATAL_ERROR "kelvane_convert: FORMAT is '${convert_FORMAT}'")
  endif()

  set(executable "${KELVANE_EXECUTABLE}")
  set(program kelvane::kelvane)
  if(convert_STRICT)
    set(executable "${KELVANE_KIT_EXECUTABLE}")
    set(program kelvane::kelvane-kit)
    string(TOLOWER "${convert_TYPE}" kind)
    if(convert_TYPE STREQUAL "saveGame")
      message(FATAL_ERROR "kelvane_convert: STRICT is not for save games")
    elseif(NOT executable AND NOT TARGET ${program})
      message(FATAL_ERROR "kelvane_convert: STRICT needs kelvane-kit")
    endif()
  endif()
  if(NOT executable)
    set(executable $<TARGET_FILE:${program}>)
  endif()
  get_property(script GLOBAL PROPERTY KELVANE_CONVERT_SCRIPT)
  get_filename_component(directory "${convert_OUTPUT_DIRECTORY}" ABSOLUTE BASE_DIR "${CMAKE_CURRENT_BINARY_DIR}")
  get_filename_component(base "${convert_BASE}" ABSOLUTE)
  set(outputs)
  foreach(file IN LISTS convert_FILES)
    get_filename_component(source "${file}" ABSOLUTE)
    get_filename_component(name "${file}" NAME)
    if(convert_BASE)
      file(RELATIVE_PATH name "${base}" "${source}")
      if(name MATCHES "^\\.\\./")
        message(FATAL_ERROR "kelvane_convert: '${file}' is not below '${base}'")
      endif()
    endif()
    set(output "${directory}/${name}")
    if(output IN_LIST outputs OR output STREQUAL source)
      message(FATAL_ERROR "kelvane_convert: '${file}' would overwrite '${output}'")
    endif()
    if(convert_STRICT)
      set(command "${executable}" convert --type ${kind} --to ${convert_FORMAT} --touch --output "${output}" "${source}")
    else()
      set(command "${CMAKE_COMMAND}" -DEXECUTABLE=${executable} -DTYPE=${convert_TYPE} -DSOURCE=${source}
        -DOUTPUT=${output} -DFORMAT=${convert_FORMAT} -P "${script}")
    endif()
    add_custom_command(
      OUTPUT "${output}"
      COMMAND ${command}
      DEPENDS "${source}" "${executable}"
      COMMENT "Converting ${name}"
      VERBATIM)
    list(APPEND outputs "${output}")
  endforeach()

  if(NOT convert_TARGET)
    get_property(count GLOBAL PROPERTY KELVANE_CONVERT_COUNT)
    math(EXPR count "${count} + 1")
    set_property(GLOBAL PROPERTY KELVANE_CONVERT_COUNT ${count})
    set(convert_TARGET kelvane_convert_${count})
  endif()
  add_custom_target(${convert_TARGET} ALL DEPENDS ${outputs})
endfunction()
