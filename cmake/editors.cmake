# Files for editors, made from templates in editors/ with the words of the reference and the endings of content files.
set(editorFiles
  helix/languages.toml
  neovim/kelvane.lua
  vim/ftdetect/kelvane.vim
  vim/syntax/kelvane.vim
  vscode/kelvane.tmLanguage.json
  vscode/package.json)
set(editorsDirectory ${PROJECT_BINARY_DIR}/editors)
if(TARGET kelvane-kit AND NOT CMAKE_CROSSCOMPILING)
  list(TRANSFORM editorFiles PREPEND ${editorsDirectory}/ OUTPUT_VARIABLE editorOutputs)
  list(TRANSFORM editorFiles PREPEND ${PROJECT_SOURCE_DIR}/editors/ OUTPUT_VARIABLE editorTemplates)
  list(TRANSFORM editorTemplates APPEND .in)
  add_custom_command(OUTPUT ${editorOutputs}
    COMMAND ${CMAKE_COMMAND} -DKIT=$<TARGET_FILE:kelvane-kit> -DPROJECT_VERSION=${PROJECT_VERSION}
      -DTEMPLATES=${PROJECT_SOURCE_DIR}/editors -DOUTPUT=${editorsDirectory} "-DFILES=${editorFiles}"
      -P ${PROJECT_SOURCE_DIR}/cmake/editorfiles.cmake
    DEPENDS kelvane-kit ${editorTemplates} ${PROJECT_SOURCE_DIR}/cmake/editorfiles.cmake
    COMMENT "Writing files for editors" VERBATIM)
  add_custom_target(editor_files ALL DEPENDS ${editorOutputs})
endif()
