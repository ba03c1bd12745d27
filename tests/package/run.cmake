# Installs the package into a folder of its own, builds the example against it, and runs it.
file(REMOVE_RECURSE ${WORK})
function(must)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output
                  ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGV} failed:\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()
must(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
must(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/build -DCMAKE_PREFIX_PATH=${WORK}/installed
     -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=${FLAGS})
must(${CMAKE_COMMAND} --build ${WORK}/build)
must(${WORK}/build/use_sizewright)
if(NOT output STREQUAL "valid: 0\nhead: 231.0 FEET\n")
  message(FATAL_ERROR "the example printed: ${output}")
endif()
must(${WORK}/installed/bin/sizewright --version)
