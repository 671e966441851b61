# Compiler settings and the few functions with which every folder declares its library, program or tests.

include(GNUInstallDirs)
include(NodescopePackage)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

option(NODESCOPE_BENCH "Build the benchmark programs" ON)
option(NODESCOPE_FUZZ "Build the libFuzzer targets (clang only)" OFF)
option(NODESCOPE_SANITIZE "Instrument everything with address and undefined-behaviour sanitizers" OFF)

add_compile_options(-Wall -Wextra -Wpedantic -Werror)
# Nobody replaces functions of our libraries from outside, so calls inside a library are direct and may be inlined.
add_compile_options(-fno-semantic-interposition)
add_link_options(-Wl,-Bsymbolic-functions)
if(NODESCOPE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-maybe-uninitialized) # instrumented code makes the compiler see it where it is not, as in <regex>
  endif()
endif()

if(NODESCOPE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# All headers are included from the repository root: <vexel/nodes/SoCube.h>.
include_directories("${CMAKE_SOURCE_DIR}")

# Adds each folder that has a CMakeLists.txt.
function(nodescope_add_optional_subdirectories)
  foreach(folder IN LISTS ARGN)
    if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/CMakeLists.txt")
      add_subdirectory("${folder}")
    endif()
  endforeach()
endfunction()

# Collects the C++ sources of the given folders (not of their subfolders, except detail/) into OUT.
function(nodescope_collect_sources OUT)
  set(sources)
  foreach(folder IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h" "${folder}/detail/*.cpp" "${folder}/detail/*.h")
    list(APPEND sources ${found})
  endforeach()
  set(${OUT} ${sources} PARENT_SCOPE)
endfunction()

# Runs moc on the headers of TARGET that need it. The generator looks again only at files that it knows, so when the list of
# sources has changed its mark of being done is removed.
function(nodescope_use_automoc TARGET)
  set_target_properties(${TARGET} PROPERTIES AUTOMOC ON)
  get_target_property(sources ${TARGET} SOURCES)
  set(list_file "${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_sources.txt")
  set(known_sources "")
  if(EXISTS "${list_file}")
    file(READ "${list_file}" known_sources)
  endif()
  if(NOT known_sources STREQUAL sources)
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_autogen/timestamp")
    file(WRITE "${list_file}" "${sources}")
  endif()
endfunction()

# nodescope_add_library(NAME [AUTOMOC] [FORMS FOLDER] [PACKAGE Nodescope] [AS NAME] FOLDERS ... LINK ... [PRIVATE_LINK ...]
# [RESOURCES ...]): a shared library made of all sources in FOLDERS; with AUTOMOC when classes in it have signals or slots, with
# FORMS when they include "ui_X.h" of designer forms in that folder. Programs outside find it as PACKAGE::AS once it is installed.
function(nodescope_add_library NAME)
  cmake_parse_arguments(ARG "AUTOMOC" "FORMS;PACKAGE;AS" "FOLDERS;LINK;PRIVATE_LINK;RESOURCES" ${ARGN})
  if(NOT ARG_PACKAGE)
    set(ARG_PACKAGE Nodescope)
  endif()
  if(NOT ARG_AS)
    set(ARG_AS ${NAME})
  endif()
  nodescope_collect_sources(sources ${ARG_FOLDERS})
  add_library(${NAME} SHARED ${sources} ${ARG_RESOURCES})
  set_target_properties(${NAME} PROPERTIES LINKER_LANGUAGE CXX EXPORT_NAME ${ARG_AS})
  if(ARG_AUTOMOC)
    nodescope_use_automoc(${NAME})
  endif()
  if(ARG_FORMS)
    set_target_properties(${NAME} PROPERTIES AUTOUIC ON AUTOUIC_SEARCH_PATHS "${CMAKE_CURRENT_SOURCE_DIR}/${ARG_FORMS}")
    # Headers of widgets include those of their forms.
    target_include_directories(${NAME} INTERFACE "$<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}/${NAME}_autogen/include>")
  endif()
  target_compile_features(${NAME} PUBLIC cxx_std_17)
  target_link_libraries(${NAME} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK})
  install(TARGETS ${NAME} EXPORT ${ARG_PACKAGE}Targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    INCLUDES DESTINATION ${NODESCOPE_HEADER_ROOT})
endfunction()

# nodescope_add_plugin(NAME [AUTOMOC] FOLDERS ... LINK ... [RESOURCES ...]): a plug-in made of all sources in FOLDERS. The inspector
# finds it by NAME in the folder nodescope/ beside its own libraries, in the build tree as when it is installed. Projects outside
# need no such function: add_library(NAME MODULE ...) and target_link_libraries(NAME PRIVATE Nodescope::extension) do.
function(nodescope_add_plugin NAME)
  cmake_parse_arguments(ARG "AUTOMOC" "" "FOLDERS;LINK;RESOURCES" ${ARGN})
  nodescope_collect_sources(sources ${ARG_FOLDERS})
  add_library(${NAME} MODULE ${sources} ${ARG_RESOURCES})
  set_target_properties(${NAME} PROPERTIES LINKER_LANGUAGE CXX
    LIBRARY_OUTPUT_DIRECTORY "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/nodescope" INSTALL_RPATH "$ORIGIN/..")
  if(ARG_AUTOMOC)
    nodescope_use_automoc(${NAME})
  endif()
  target_link_libraries(${NAME} PRIVATE nodescope_extension ${ARG_LINK})
  install(TARGETS ${NAME} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/nodescope)
endfunction()

# nodescope_add_tests(NAME [AUTOMOC] LABEL unit|gui|e2e LINK ...): one test program made of all sources in the current folder.
# Programs labelled gui or e2e find a display from ./test, which runs ctest under a virtual one.
function(nodescope_add_tests NAME)
  cmake_parse_arguments(ARG "AUTOMOC" "LABEL" "LINK" ${ARGN})
  nodescope_collect_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
  add_executable(${NAME} ${sources})
  if(ARG_AUTOMOC)
    nodescope_use_automoc(${NAME})
  endif()
  set(support test_support)
  if(ARG_LABEL MATCHES "gui|e2e")
    set(support test_support_gui)
  endif()
  target_link_libraries(${NAME} PRIVATE ${support} ${ARG_LINK})
  add_test(NAME ${NAME} COMMAND ${NAME})
  set_tests_properties(${NAME} PROPERTIES LABELS ${ARG_LABEL} TIMEOUT 900)
  if(ARG_LABEL MATCHES "gui|e2e")
    # Windows of two programs on one display would take the keyboard focus from each other.
    set_tests_properties(${NAME} PROPERTIES RESOURCE_LOCK display)
  endif()
endfunction()
