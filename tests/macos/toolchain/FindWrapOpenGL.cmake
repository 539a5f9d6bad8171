# SPDX-License-Identifier: MIT
# Part of the system on a Mac.
set(WrapOpenGL_FOUND ON)
if(NOT TARGET WrapOpenGL::WrapOpenGL)
    add_library(WrapOpenGL::WrapOpenGL INTERFACE IMPORTED)
endif()
