if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Objects for link-time optimisation name their sections at random unless they have a seed.
  string(REPLACE "-c <SOURCE>" "-frandom-seed=<OBJECT> -c <SOURCE>" CMAKE_CXX_COMPILE_OBJECT
    "${CMAKE_CXX_COMPILE_OBJECT}")
endif()

# What every target of the project is compiled with.
add_library(kelvane_flags INTERFACE)
target_include_directories(kelvane_flags INTERFACE ${PROJECT_SOURCE_DIR})

if(MSVC)
  target_compile_options(kelvane_flags INTERFACE /W4 /utf-8 /fp:precise)
  target_compile_definitions(kelvane_flags INTERFACE _CRT_SECURE_NO_WARNINGS NOMINMAX)
  if(KELVANE_WARNINGS_AS_ERRORS)
    target_compile_options(kelvane_flags INTERFACE /WX)
  endif()
else()
  # Reports show the place of a check below the source root, and floats are rounded after every single operation.
  target_compile_options(kelvane_flags INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wpedantic
    -ffp-contract=off
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # False alarms of g++ 12: bounds of longer texts in branches that shorter literals never take, and the joining of
    # strings.
    set(falseAlarms -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
    target_compile_options(kelvane_flags INTERFACE ${falseAlarms})
    target_link_options(kelvane_flags INTERFACE ${falseAlarms})
    if(CMAKE_INTERPROCEDURAL_OPTIMIZATION)
      # The library and the test programs are linked without link-time optimisation too.
      target_compile_options(kelvane_flags INTERFACE -ffat-lto-objects)
    endif()
  endif()
  if(KELVANE_WARNINGS_AS_ERRORS)
    target_compile_options(kelvane_flags INTERFACE -Werror)
  endif()
  if(KELVANE_SANITIZE)
    target_compile_options(kelvane_flags INTERFACE
      -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kelvane_flags INTERFACE -fsanitize=address,undefined)
  endif()
endif()
