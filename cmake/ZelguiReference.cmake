# SPDX-License-Identifier: MIT
# The target `reference`: the public headers as HTML. A function that lacks its comment is an error.
find_program(DOXYGEN doxygen)
if(NOT DOXYGEN)
    return()
endif()

configure_file(docs/reference/Doxyfile.in ${CMAKE_BINARY_DIR}/Doxyfile @ONLY)
set(page ${CMAKE_BINARY_DIR}/reference/html/index.html)
add_custom_command(OUTPUT ${page}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/reference
    COMMAND ${DOXYGEN} ${CMAKE_BINARY_DIR}/Doxyfile
    DEPENDS ${CMAKE_BINARY_DIR}/Doxyfile zelgui/api/zelgui.h host/zvsdkbase/zelutil.h
    COMMENT "Reference: ${page}"
    VERBATIM)
add_custom_target(reference DEPENDS ${page})
