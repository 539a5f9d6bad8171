# SPDX-License-Identifier: MIT
# The warnings every source of ours is built with. They are errors: a warning nobody reads protects nobody. Only where a
# compiler or a system is new to us, the first build shows them all rather than ending at the first.
option(FADELOOM_WARNINGS_AS_ERRORS "End the build at a warning" ON)
add_compile_options(-Wall -Wextra -Wconversion -Wshadow $<$<BOOL:${FADELOOM_WARNINGS_AS_ERRORS}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overruns inside of std::string that are not there.
    add_compile_options(-Wno-array-bounds -Wno-restrict -Wno-stringop-overread -Wno-stringop-overflow)
endif()
