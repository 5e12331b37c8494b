# SPDX-License-Identifier: MIT
# The program's icon as bitmaps, for panels and docks that do not read SVG.
find_program(TARNWICK_RSVG_CONVERT rsvg-convert REQUIRED)

set(drawing ${CMAKE_CURRENT_SOURCE_DIR}/icons/org.tarnwick.Tarnwick.svg)
foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
  set(bitmap ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}x${size}/org.tarnwick.Tarnwick.png)
  add_custom_command(
    OUTPUT ${bitmap}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}x${size}
    COMMAND ${TARNWICK_RSVG_CONVERT} -w ${size} -h ${size} -o ${bitmap} ${drawing}
    DEPENDS ${drawing}
    VERBATIM)
  list(APPEND bitmaps ${bitmap})
  install(FILES ${bitmap} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
add_custom_target(tarnwick_icons ALL DEPENDS ${bitmaps})
