# Installs into a folder of its own, builds projects outside on what lies there, and runs what they make.

function(run OUT)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE out ERROR_VARIABLE out RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} ended with ${status}:\n${out}")
  endif()
  set(${OUT} "${out}" PARENT_SCOPE)
endfunction()

function(expect_output EXPECTED)
  run(out ${ARGN})
  if(NOT out MATCHES "${EXPECTED}")
    message(SEND_ERROR "${ARGN} wrote '${out}', which is not '${EXPECTED}'")
  endif()
endfunction()

function(build_outside SOURCE)
  run(ignored "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${SOURCE}/build" -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${prefix}"
    -DCMAKE_BUILD_TYPE=Debug)
  run(ignored "${CMAKE_COMMAND}" --build "${SOURCE}/build")
endfunction()

file(REMOVE_RECURSE "${FOLDER}")
set(prefix "${FOLDER}/prefix")
set(scene "${EXAMPLES}/scenes/workbench.vx")
run(ignored "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}")

# What the libraries are made with is no business of those who use them.
file(GLOB_RECURSE headers RELATIVE "${prefix}/${HEADERS}" "${prefix}/${HEADERS}/*.h")
set(all "")
foreach(header IN LISTS headers)
  if(header MATCHES "^vexel/(render|pick)/|^nodescope/(tree|edit|shell|mainframe|preferences)/")
    message(SEND_ERROR "${header} is private, but a public header includes it")
  endif()
  file(STRINGS "${prefix}/${HEADERS}/${header}" foreign REGEX "#include <(epoxy|embree|EGL|GL|zlib|assimp)")
  if(foreign)
    message(SEND_ERROR "${header} passes on a library that is private: ${foreign}")
  endif()
  string(APPEND all "#include <${header}>\n")
endforeach()
list(LENGTH headers count)
if(count LESS 200)
  message(SEND_ERROR "only ${count} headers are installed")
endif()

# A file that includes every header proves that what they include is installed too.
file(COPY "${EXAMPLES}/installed/" DESTINATION "${FOLDER}/project")
file(WRITE "${FOLDER}/project/AllHeaders.cpp" "${all}")
file(APPEND "${FOLDER}/project/CMakeLists.txt"
  "add_library(all_headers OBJECT AllHeaders.cpp)\n"
  "target_link_libraries(all_headers PRIVATE Vexel::viewer Nodescope::extension Nodescope::nodescope)\n")
build_outside("${FOLDER}/project")

expect_output("^[1-9][0-9]+\n$" "${FOLDER}/project/build/count_nodes" "${scene}")
expect_output("inspected for 10 rounds\n$" "${FOLDER}/project/build/inspected_host")
expect_output("^nodescope " "${prefix}/bin/nodescope" --version)
expect_output("nodes " "${prefix}/bin/vexel" info "${scene}")

# A plug-in of others: the installed inspector finds it in the plug-in path, and says so when it does not.
file(COPY "${EXAMPLES}/plugin/" DESTINATION "${FOLDER}/plugin")
build_outside("${FOLDER}/plugin")
set(ENV{VXL_NODESCOPE_CONFIGURATION_FILE} "${FOLDER}/plugin/NscConfiguration.xml")
set(ENV{XDG_CONFIG_HOME} "${FOLDER}/settings")
unset(ENV{VXLHOME})
set(complaint "NscPluginsManager::read: cannot find the plug-in 'nodescope_statistics': [^\n]* is in ${prefix}/${LIBRARIES}/nodescope, ")
expect_output("${complaint}" "${prefix}/bin/nodescope" --screenshot "${FOLDER}/without.png" "${scene}")
set(ENV{VXL_NODESCOPE_PLUGIN_PATH} "/nowhere:${FOLDER}/plugin/build")
run(out "${prefix}/bin/nodescope" --screenshot "${FOLDER}/with.png" "${scene}")
if(out MATCHES "NscPluginsManager")
  message(SEND_ERROR "the plug-in cannot be used: ${out}")
endif()
file(SHA256 "${FOLDER}/without.png" without)
file(SHA256 "${FOLDER}/with.png" with)
if(with STREQUAL without)
  message(SEND_ERROR "the window looks the same with and without the plug-in")
endif()
