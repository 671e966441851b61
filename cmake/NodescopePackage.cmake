# What `cmake --install` puts into place for programs outside: libraries, public headers, and packages for find_package().

include(CMakePackageConfigHelpers)

# Headers have a root of their own: folder names such as extension/ are too common for the include folder itself.
set(NODESCOPE_HEADER_ROOT "${CMAKE_INSTALL_INCLUDEDIR}/Nodescope")
set(NODESCOPE_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake")

# nodescope_install_headers(FOLDER...): installs the headers of these folders of the repository and those that they include.
function(nodescope_install_headers)
  install(CODE "
    set(ROOT \"${CMAKE_SOURCE_DIR}\")
    set(FOLDERS \"${ARGN}\")
    set(DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${NODESCOPE_HEADER_ROOT}\")
    include(\"${CMAKE_SOURCE_DIR}/cmake/InstallHeaders.cmake\")")
endfunction()

# nodescope_install_package(NAME DEPENDENCY...): the package NAME of the libraries that were added with PACKAGE NAME; each
# dependency is what find_package() takes.
function(nodescope_install_package NAME)
  set(dependencies "")
  foreach(dependency IN LISTS ARGN)
    string(APPEND dependencies "find_dependency(${dependency})\n")
  endforeach()
  set(folder "${NODESCOPE_PACKAGE_FOLDER}/${NAME}")
  configure_package_config_file("${CMAKE_SOURCE_DIR}/cmake/PackageConfig.cmake.in" "${CMAKE_BINARY_DIR}/${NAME}Config.cmake"
    INSTALL_DESTINATION "${folder}" NO_SET_AND_CHECK_MACRO)
  write_basic_package_version_file("${CMAKE_BINARY_DIR}/${NAME}ConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
  install(FILES "${CMAKE_BINARY_DIR}/${NAME}Config.cmake" "${CMAKE_BINARY_DIR}/${NAME}ConfigVersion.cmake" DESTINATION "${folder}")
  install(EXPORT ${NAME}Targets NAMESPACE ${NAME}:: DESTINATION "${folder}")
endfunction()
