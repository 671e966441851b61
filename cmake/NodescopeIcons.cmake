# Icons are drawn as SVG; the build renders each to PNG, at one and two pixels per unit, and compiles them into a library.

include(NodescopeResources)

find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# nodescope_add_icons(OUT PREFIX FOLDER [SIZES "20x20:name,name" ...] [BARE name ...]): renders FOLDER/*.svg and puts into OUT the
# C++ source that holds them as resources PREFIX/<name>.png. Icons have 24 x 24 pixels unless SIZES tells otherwise; the resource
# paths of BARE ones have no extension. OUT belongs into the RESOURCES of nodescope_add_library() in the same CMakeLists.txt.
function(nodescope_add_icons OUT PREFIX FOLDER)
  cmake_parse_arguments(ARG "" "" "SIZES;BARE" ${ARGN})
  foreach(group IN LISTS ARG_SIZES)
    string(REGEX MATCH "^([0-9]+)x([0-9]+):(.*)$" matched "${group}")
    string(REPLACE "," ";" names "${CMAKE_MATCH_3}")
    foreach(name IN LISTS names)
      set(width_${name} ${CMAKE_MATCH_1})
      set(height_${name} ${CMAKE_MATCH_2})
    endforeach()
  endforeach()

  set(entries)
  set(pictures)
  file(GLOB drawings CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.svg")
  foreach(drawing IN LISTS drawings)
    cmake_path(GET drawing STEM name)
    set(extension .png)
    if(name IN_LIST ARG_BARE)
      set(extension "")
    endif()
    if(NOT DEFINED width_${name})
      set(width_${name} 24)
      set(height_${name} 24)
    endif()
    foreach(factor 1 2)
      set(suffix "")
      if(factor EQUAL 2)
        set(suffix "@2x") # Qt takes this one by itself on a display with two pixels per unit
      endif()
      math(EXPR width "${width_${name}} * ${factor}")
      math(EXPR height "${height_${name}} * ${factor}")
      set(picture "${CMAKE_CURRENT_BINARY_DIR}/icons/${name}${suffix}.png")
      add_custom_command(OUTPUT "${picture}" DEPENDS "${drawing}"
        COMMAND "${RSVG_CONVERT}" --width ${width} --height ${height} --output "${picture}" "${drawing}"
        COMMENT "" VERBATIM)
      list(APPEND pictures "${picture}")
      string(APPEND entries "    <file alias=\"${name}${suffix}${extension}\">icons/${name}${suffix}.png</file>\n")
    endforeach()
  endforeach()

  file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/icons")
  nodescope_compile_resources(source icons "${PREFIX}" ENTRIES "${entries}" FOLDER "${CMAKE_CURRENT_BINARY_DIR}"
    DEPENDS ${pictures} COMMENT "Drawing the icons of ${PREFIX}")
  set(${OUT} "${source}" PARENT_SCOPE)
endfunction()
