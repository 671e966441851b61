# Installs into a folder of its own, builds a project outside on what lies there, and runs its programs.

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

file(REMOVE_RECURSE "${FOLDER}")
set(prefix "${FOLDER}/prefix")
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
file(COPY "${EXAMPLE}/" DESTINATION "${FOLDER}/project")
file(WRITE "${FOLDER}/project/AllHeaders.cpp" "${all}")
file(APPEND "${FOLDER}/project/CMakeLists.txt"
  "add_library(all_headers OBJECT AllHeaders.cpp)\n"
  "target_link_libraries(all_headers PRIVATE Vexel::viewer Nodescope::extension Nodescope::nodescope)\n")
run(ignored "${CMAKE_COMMAND}" -S "${FOLDER}/project" -B "${FOLDER}/build" -G "${GENERATOR}"
  "-DCMAKE_PREFIX_PATH=${prefix}" -DCMAKE_BUILD_TYPE=Debug)
run(ignored "${CMAKE_COMMAND}" --build "${FOLDER}/build")

expect_output("^[1-9][0-9]+\n$" "${FOLDER}/build/count_nodes" "${SCENE}")
expect_output("inspected for 10 rounds\n$" "${FOLDER}/build/inspected_host")
expect_output("^nodescope " "${prefix}/bin/nodescope" --version)
expect_output("nodes " "${prefix}/bin/vexel" info "${SCENE}")
