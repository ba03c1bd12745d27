# The library as a package (find_package(sizewright)), the program, its data and schemas.
include(CMakePackageConfigHelpers)

install(TARGETS sizing EXPORT sizewright-targets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
foreach(folder host frame rotating vessels fired separation)
  install(DIRECTORY src/${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/sizewright
          FILES_MATCHING PATTERN "*.h")
endforeach()
install(EXPORT sizewright-targets NAMESPACE sizewright::
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/sizewright)
write_basic_package_version_file(sizewright-config-version.cmake COMPATIBILITY SameMinorVersion)
configure_file(cmake/sizewright-config.cmake ${PROJECT_BINARY_DIR} COPYONLY)
install(FILES ${PROJECT_BINARY_DIR}/sizewright-config.cmake
              ${PROJECT_BINARY_DIR}/sizewright-config-version.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/sizewright)
if(TARGET sizewright)
  install(TARGETS sizewright RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(DIRECTORY data schemas DESTINATION ${CMAKE_INSTALL_DATADIR}/sizewright)
