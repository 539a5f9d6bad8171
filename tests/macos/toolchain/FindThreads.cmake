# SPDX-License-Identifier: MIT
# On a Mac it is a part of the system.
set(Threads_FOUND ON)
if(NOT TARGET Threads::Threads)
    add_library(Threads::Threads INTERFACE IMPORTED)
endif()
