# SPDX-License-Identifier: MIT
# Functions for projects of add-ons; find_package(zelgui) brings them.
include_guard(GLOBAL)

#[[
zelgui_add_addon(NAME <name> SOURCES <source>... [LANGUAGE C|CXX|Fortran])

Makes the target <name>, a module for the host, from the sources; its file is <name>.so, without a prefix. It exports
ZelAddOnInit and nothing else, so that two add-ons in one process can't get at each other's functions. A module without
ZelAddOnInit, or with one that has a C++ name since `extern "C"` is missing, doesn't link.

LANGUAGE is the sources' language where their file names don't tell, or would tell wrongly. The project has to have
enabled it. A Fortran compiler goes by the file's name all the same.
]]
function(zelgui_add_addon)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;LANGUAGE" "SOURCES")
    if(NOT arg_NAME OR NOT arg_SOURCES OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "zelgui_add_addon(NAME <name> SOURCES <source>... [LANGUAGE C|CXX|Fortran])")
    endif()
    add_library(${arg_NAME} MODULE ${arg_SOURCES})
    if(arg_LANGUAGE)
        if(NOT arg_LANGUAGE MATCHES "^(C|CXX|Fortran)$")
            message(FATAL_ERROR "zelgui_add_addon: LANGUAGE is \"${arg_LANGUAGE}\"; it has to be C, CXX or Fortran.")
        endif()
        get_property(enabled GLOBAL PROPERTY ENABLED_LANGUAGES)
        if(NOT arg_LANGUAGE IN_LIST enabled)
            message(FATAL_ERROR "zelgui_add_addon: project() doesn't enable the language ${arg_LANGUAGE}.")
        endif()
        set_source_files_properties(${arg_SOURCES} PROPERTIES LANGUAGE ${arg_LANGUAGE})
        set_target_properties(${arg_NAME} PROPERTIES LINKER_LANGUAGE ${arg_LANGUAGE})
    endif()
    # By the linker, since not every language's compiler knows of visibility.
    set(exports ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/addon.map)
    set_target_properties(${arg_NAME} PROPERTIES PREFIX "" LINK_DEPENDS ${exports})
    target_link_options(${arg_NAME} PRIVATE
        LINKER:--version-script=${exports} LINKER:--require-defined=ZelAddOnInit)
    target_link_libraries(${arg_NAME} PRIVATE zelgui::zelgui)
endfunction()

#[[
zelgui_add_addon_test(NAME <test> SCRIPT <file> ADDONS <target>... [OPTIONS <option>...])

Adds a test in which zelhost, without a display, runs the script with the add-ons loaded. OPTIONS are further options
of zelhost.
]]
function(zelgui_add_addon_test)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;SCRIPT" "ADDONS;OPTIONS")
    if(NOT arg_NAME OR NOT arg_SCRIPT OR NOT arg_ADDONS OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR
            "zelgui_add_addon_test(NAME <test> SCRIPT <file> ADDONS <target>... [OPTIONS <option>...])")
    endif()
    get_filename_component(script ${arg_SCRIPT} ABSOLUTE)
    list(TRANSFORM arg_ADDONS REPLACE "^(.+)$" "$<TARGET_FILE:\\1>")
    add_test(NAME ${arg_NAME} COMMAND zelgui::zelhost ${arg_OPTIONS} --script ${script} ${arg_ADDONS})
    set_tests_properties(${arg_NAME} PROPERTIES TIMEOUT 120 ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endfunction()
