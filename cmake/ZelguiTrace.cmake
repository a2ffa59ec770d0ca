# SPDX-License-Identifier: MIT
# Whether the layer behind zelhost's --trace and --strict is built. What it takes besides is needed for nothing else.
find_path(FFI_INCLUDE_DIR ffi.h)
find_library(FFI_LIBRARY ffi)
set(trace_possible OFF)
if(FFI_INCLUDE_DIR AND FFI_LIBRARY)
    set(trace_possible ON)
endif()

option(ZELGUI_TRACE "Build what zelhost needs for --trace and --strict" ${trace_possible})
if(ZELGUI_TRACE AND NOT trace_possible)
    message(FATAL_ERROR "ZELGUI_TRACE needs libffi with its header.")
elseif(NOT ZELGUI_TRACE)
    message(STATUS "zelhost has no --trace and --strict; they need libffi with its header.")
endif()
