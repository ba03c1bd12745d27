# embed_files(target pattern...): compiles text files into a target. The generated source defines
# the table that src/embedded/embedded_files.h declares.
function(embed_files target)
  file(GLOB files CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} ${ARGN})
  set(output ${PROJECT_BINARY_DIR}/generated/embedded_files.cpp)
  list(TRANSFORM files PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE inputs)
  list(JOIN files "|" names)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DSOURCE=${PROJECT_SOURCE_DIR} "-DFILES=${names}" -DOUTPUT=${output}
            -P ${PROJECT_SOURCE_DIR}/cmake/write_embedded_files.cmake
    DEPENDS ${inputs} ${PROJECT_SOURCE_DIR}/cmake/write_embedded_files.cmake
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
endfunction()
