# SPDX-License-Identifier: MIT
# What all of the project's targets share.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

# Programs find the libraries beside them, wherever the whole tree is put.
if(NOT DEFINED CMAKE_INSTALL_RPATH)
    set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}:$ORIGIN/../${CMAKE_INSTALL_LIBDIR}/zelgui")
endif()
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
# The libraries are side by side, as they will be when installed: zelhost looks for zelgui beside the host's own.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

# Once loaded, nobody can write to the tables of functions any more.
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)

if(ZELGUI_SANITIZE)
    set(sanitizers address,undefined,float-cast-overflow)
    add_compile_options(
        -fsanitize=${sanitizers} -fno-sanitize-recover=undefined,float-cast-overflow -fno-omit-frame-pointer)
    # A module finds the sanitizers' run time in the program that loads it.
    add_link_options(-fsanitize=${sanitizers})
endif()
if(ZELGUI_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(ZELGUI_COVERAGE)
    # Tests that end a process on purpose, or run side by side, must not spoil the counts.
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

# Strict compilation of our own sources; the toolkit's headers are exempt as system headers.
add_library(zelgui_warnings INTERFACE)
target_compile_options(zelgui_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
    $<$<BOOL:${ZELGUI_WERROR}>:-Werror>)

# The same for the product, where in addition no C string is decoded without saying from which encoding.
add_library(zelgui_strict INTERFACE)
target_link_libraries(zelgui_strict INTERFACE zelgui_warnings)
target_compile_options(zelgui_strict INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wzero-as-null-pointer-constant>)
target_compile_definitions(zelgui_strict INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_URL_CAST_FROM_STRING)
