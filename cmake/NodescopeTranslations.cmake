# Translations of the user interface are compiled into a library; what a text is called stands in the .ts files.

include(NodescopeResources)

set(QT_TOOL_FOLDERS /usr/lib/qt5/bin /usr/lib/x86_64-linux-gnu/qt5/bin)
find_program(QT_LRELEASE NAMES lrelease-qt5 lrelease HINTS ${QT_TOOL_FOLDERS} REQUIRED)
find_program(QT_LUPDATE NAMES lupdate-qt5 lupdate HINTS ${QT_TOOL_FOLDERS} REQUIRED) # for the test that looks for missing texts

# nodescope_add_translations(OUT PREFIX FOLDER): compiles FOLDER/*.ts and puts into OUT the C++ source that holds them as
# resources PREFIX/<name>.qm. It belongs into the RESOURCES of nodescope_add_library() in the same CMakeLists.txt.
function(nodescope_add_translations OUT PREFIX FOLDER)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/translations")
  file(MAKE_DIRECTORY "${folder}")
  file(GLOB texts CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.ts")
  set(compiled)
  set(entries)
  foreach(text IN LISTS texts)
    cmake_path(GET text STEM name)
    add_custom_command(OUTPUT "${folder}/${name}.qm" DEPENDS "${text}"
      COMMAND "${QT_LRELEASE}" -silent "${text}" -qm "${folder}/${name}.qm" VERBATIM)
    list(APPEND compiled "${folder}/${name}.qm")
    string(APPEND entries "    <file>${name}.qm</file>\n")
  endforeach()
  nodescope_compile_resources(source translations "${PREFIX}" ENTRIES "${entries}" FOLDER "${folder}"
    DEPENDS ${compiled} COMMENT "Compiling the translations of ${PREFIX}")
  set(${OUT} "${source}" PARENT_SCOPE)
endfunction()
