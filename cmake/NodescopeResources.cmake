# Files that the build makes are compiled into a library as Qt resources.

# nodescope_compile_resources(OUT NAME PREFIX): puts into OUT the C++ source that holds files as resources below PREFIX. The named
# arguments are ENTRIES, the <file> lines of the collection, FOLDER, what they are relative to, DEPENDS, the files themselves, and
# COMMENT, what the build says meanwhile.
function(nodescope_compile_resources OUT NAME PREFIX)
  cmake_parse_arguments(ARG "" "ENTRIES;FOLDER;COMMENT" "DEPENDS" ${ARGN})
  set(collection "${ARG_FOLDER}/${NAME}.qrc")
  file(CONFIGURE OUTPUT "${collection}" @ONLY
    CONTENT "<RCC>\n  <qresource prefix=\"@PREFIX@\">\n@ARG_ENTRIES@  </qresource>\n</RCC>\n")
  string(MAKE_C_IDENTIFIER "${PREFIX}" resource_name)
  set(source "${CMAKE_CURRENT_BINARY_DIR}/qrc_${NAME}.cpp")
  add_custom_command(OUTPUT "${source}" DEPENDS ${ARG_DEPENDS} "${collection}"
    COMMAND Qt5::rcc --name ${resource_name} --output "${source}" "${collection}"
    COMMENT "${ARG_COMMENT}" VERBATIM)
  set_source_files_properties("${source}" PROPERTIES SKIP_AUTOGEN ON)
  set(${OUT} "${source}" PARENT_SCOPE)
endfunction()
