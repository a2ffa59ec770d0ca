# SPDX-License-Identifier: MIT
# The target `tidy`: clang-tidy over the product's sources, each only when it or a header has changed.
find_program(CLANG_TIDY clang-tidy)
if(NOT CLANG_TIDY)
    return()
endif()

file(GLOB_RECURSE sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} zelgui/*.cpp host/*.cpp interface/*.cpp)
file(GLOB_RECURSE headers CONFIGURE_DEPENDS zelgui/*.h host/*.h interface/*.h)
set(stamps)
foreach(source IN LISTS sources)
    set(stamp ${CMAKE_BINARY_DIR}/tidy/${source}.stamp)
    get_filename_component(folder ${stamp} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CLANG_TIDY} --quiet -p ${CMAKE_BINARY_DIR} ${PROJECT_SOURCE_DIR}/${source}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${PROJECT_SOURCE_DIR}/${source} ${headers} ${PROJECT_SOURCE_DIR}/.clang-tidy
        COMMENT "Tidy ${source}"
        VERBATIM)
    list(APPEND stamps ${stamp})
endforeach()
add_custom_target(tidy DEPENDS ${stamps})
