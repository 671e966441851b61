# Copies the headers of FOLDERS, and those of the repository that they include, from ROOT to DESTINATION. Field and value classes
# are made from templates in detail/ folders, which therefore go along; nothing else of those folders does.

cmake_minimum_required(VERSION 3.25)

set(pending)
foreach(folder IN LISTS FOLDERS)
  file(GLOB found RELATIVE "${ROOT}" "${ROOT}/${folder}/*.h")
  list(APPEND pending ${found})
endforeach()

set(copied)
while(pending)
  list(POP_FRONT pending header)
  if(header IN_LIST copied)
    continue()
  endif()
  list(APPEND copied "${header}")
  cmake_path(GET header PARENT_PATH folder)
  file(INSTALL "${ROOT}/${header}" DESTINATION "${DESTINATION}/${folder}")
  file(STRINGS "${ROOT}/${header}" includes REGEX "^#include <[a-z]+/.*\\.h>")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^#include <(.*)>.*" "\\1" included "${line}")
    if(EXISTS "${ROOT}/${included}")
      list(APPEND pending "${included}")
    endif()
  endforeach()
endwhile()
