# SPDX-License-Identifier: MIT
# On a Mac it is a part of the system.
set(WrapOpenGL_FOUND ON)
if(NOT TARGET WrapOpenGL::WrapOpenGL)
    add_library(WrapOpenGL::WrapOpenGL INTERFACE IMPORTED)
endif()
