# SPDX-License-Identifier: MIT
# What gets installed: the library with its header, the host's libraries with theirs, zelhost, and what CMake and
# pkg-config need to build add-ons against them.
include(CMakePackageConfigHelpers)

set(host_libraries zvsdkbase zvtoolbox common_ui_qt zvsdkdialogs_common_qt zvsdkdialogs_prompt_qt)
# A program that has loaded the libraries gives them to its add-ons; they need no run path of their own.
set_target_properties(zelgui ${host_libraries} PROPERTIES INSTALL_RPATH "")

install(TARGETS zelgui ${host_libraries} zelhost EXPORT zelguiTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES zelgui/api/zelgui.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zelgui)
foreach(header IN ITEMS zvsdkbase/zelutil.h zvtoolbox/stringlist.h common_ui_qt/mainwindow.h
                        zvsdkdialogs_common_qt/qtdialogabstract.h zvsdkdialogs_prompt_qt/colorchooserdialog.h)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES host/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/zelgui)
install(EXPORT zelguiTargets NAMESPACE zelgui:: DESTINATION ${package_folder})
configure_package_config_file(cmake/zelguiConfig.cmake.in ${CMAKE_BINARY_DIR}/zelguiConfig.cmake
    INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/zelguiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/zelguiConfig.cmake ${CMAKE_BINARY_DIR}/zelguiConfigVersion.cmake
    DESTINATION ${package_folder})

file(RELATIVE_PATH pc_to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/zelgui.pc.in ${CMAKE_BINARY_DIR}/zelgui.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/zelgui.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
