# wayvane_embed_texts(target): the framework's own texts become part of the library, so that a host has no files to
# ship. A new language takes a folder <language>.lproj and nothing else.
set(wayvane_resources_dir "${CMAKE_CURRENT_LIST_DIR}")

function(wayvane_embed_texts target)
  wayvane_sources(tables "${wayvane_resources_dir}/*.lproj/Wayvane.strings")
  set(generated "${CMAKE_CURRENT_BINARY_DIR}/EmbeddedTexts.cpp")
  set(script "${wayvane_resources_dir}/embed.cmake")
  add_custom_command(OUTPUT "${generated}"
    COMMAND ${CMAKE_COMMAND} "-DOUTPUT=${generated}" "-DTABLES=${tables}" -P "${script}"
    DEPENDS ${tables} "${script}" VERBATIM
    COMMENT "Embedding the framework's texts")
  target_sources(${target} PRIVATE "${generated}")
endfunction()
