# SPDX-License-Identifier: MIT
# Part of the system on a Mac.
set(WrapAtomic_FOUND ON)
if(NOT TARGET WrapAtomic::WrapAtomic)
    add_library(WrapAtomic::WrapAtomic INTERFACE IMPORTED)
endif()
