# SPDX-License-Identifier: MIT
# The toolkit that the host uses, and what the sources may use of it.
if(ZELGUI_QT_MAJOR EQUAL 6)
    set(ZELGUI_QT_MINIMUM 6.4)
elseif(ZELGUI_QT_MAJOR EQUAL 5)
    set(ZELGUI_QT_MINIMUM 5.15)
else()
    message(FATAL_ERROR "ZELGUI_QT_MAJOR is \"${ZELGUI_QT_MAJOR}\"; it has to be 5 or 6.")
endif()

find_package(Qt${ZELGUI_QT_MAJOR} ${ZELGUI_QT_MINIMUM} REQUIRED COMPONENTS Widgets Test)
find_package(Boost REQUIRED)

set(CMAKE_AUTOMOC ON)
set(ZELGUI_QT Qt${ZELGUI_QT_MAJOR})
