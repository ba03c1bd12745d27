include("${CMAKE_CURRENT_LIST_DIR}/sizewright-targets.cmake")
