# SPDX-License-Identifier: MIT
# Warnings for all our sources. They are errors, because a warning that nobody reads protects nobody; the first build
# with a new compiler or on a new system can turn that off to see them all.
option(FADELOOM_WARNINGS_AS_ERRORS "End the build at a warning" ON)
add_compile_options(-Wall -Wextra -Wconversion -Wshadow $<$<BOOL:${FADELOOM_WARNINGS_AS_ERRORS}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 reports overruns inside std::string that do not exist.
    add_compile_options(-Wno-array-bounds -Wno-restrict -Wno-stringop-overread -Wno-stringop-overflow)
endif()
