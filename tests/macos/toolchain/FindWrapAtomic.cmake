# SPDX-License-Identifier: MIT
# On a Mac it is a part of the system.
set(WrapAtomic_FOUND ON)
if(NOT TARGET WrapAtomic::WrapAtomic)
    add_library(WrapAtomic::WrapAtomic INTERFACE IMPORTED)
endif()
