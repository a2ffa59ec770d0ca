# SPDX-License-Identifier: MIT
# What gets installed: the library with its header, the host's libraries with theirs, zelhost, and what CMake and
# pkg-config need to build add-ons against them.
include(CMakePackageConfigHelpers)

set(host_libraries zvsdkbase zvtoolbox common_ui_qt zvsdkdialogs_common_qt zvsdkdialogs_prompt_qt)
# A program that has loaded the libraries gives them to its add-ons; they need no run path of their own.
set_target_properties(zelgui ${host_libraries} PROPERTIES INSTALL_RPATH "")

# The reference host keeps its libraries to itself: every host has libraries of these names, and each has to load its
# own. zelgui takes those that its process has loaded.
set(host_library_folder ${CMAKE_INSTALL_LIBDIR}/zelgui)
install(TARGETS zelgui EXPORT zelguiTargets DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS ${host_libraries} EXPORT zelguiTargets DESTINATION ${host_library_folder})
install(TARGETS zelhost EXPORT zelguiTargets DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET zelgui_trace)
    # Only zelhost loads it; nobody links it.
    install(TARGETS zelgui_trace DESTINATION ${host_library_folder})
endif()
install(FILES zelgui/api/zelgui.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zelgui)
foreach(header IN ITEMS zvsdkbase/zelutil.h zvtoolbox/stringlist.h common_ui_qt/mainwindow.h
                        zvsdkdialogs_common_qt/qtdialogabstract.h zvsdkdialogs_prompt_qt/colorchooserdialog.h)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES host/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/zelgui)
install(EXPORT zelguiTargets NAMESPACE zelgui:: DESTINATION ${package_folder})
# The build folder is a package as well.
export(EXPORT zelguiTargets NAMESPACE zelgui:: FILE ${CMAKE_BINARY_DIR}/zelguiTargets.cmake)
configure_file(cmake/ZelguiAddOn.cmake ${CMAKE_BINARY_DIR}/ZelguiAddOn.cmake COPYONLY)
configure_file(cmake/addon.map ${CMAKE_BINARY_DIR}/addon.map COPYONLY)
configure_package_config_file(cmake/zelguiConfig.cmake.in ${CMAKE_BINARY_DIR}/zelguiConfig.cmake
    INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/zelguiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/zelguiConfig.cmake ${CMAKE_BINARY_DIR}/zelguiConfigVersion.cmake
    cmake/ZelguiAddOn.cmake cmake/addon.map DESTINATION ${package_folder})

file(RELATIVE_PATH pc_to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/zelgui.pc.in ${CMAKE_BINARY_DIR}/zelgui.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/zelgui.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# What goes with the program: its manual page, its entry in a desktop's menu, the examples, the documentation.
set(example_folder ${CMAKE_INSTALL_LIBDIR}/zelgui/add-ons)
install(TARGETS ${zelgui_examples} DESTINATION ${example_folder})
set_target_properties(${zelgui_examples} PROPERTIES INSTALL_RPATH "")
# When it is installed, since only then the prefix is certain.
install(CODE "
    foreach(example IN ITEMS ${zelgui_examples})
        string(APPEND examples \" \${CMAKE_INSTALL_PREFIX}/${example_folder}/\${example}.so\")
    endforeach()
    set(program \${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/zelhost)
    configure_file(${PROJECT_SOURCE_DIR}/host/app/zelhost.desktop.in ${CMAKE_BINARY_DIR}/zelhost.desktop @ONLY)")
install(FILES ${CMAKE_BINARY_DIR}/zelhost.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES docs/zelhost.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN *.md PATTERN *.png PATTERN *.cpp PATTERN *.h PATTERN CMakeLists.txt
    PATTERN reference EXCLUDE)
install(DIRECTORY addons DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN *.c PATTERN *.zelscript)
