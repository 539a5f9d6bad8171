# SPDX-License-Identifier: MIT
# Part of the system on a Mac.
set(Threads_FOUND ON)
if(NOT TARGET Threads::Threads)
    add_library(Threads::Threads INTERFACE IMPORTED)
endif()
