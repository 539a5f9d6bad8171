# SPDX-License-Identifier: MIT
# The warnings every source of ours is built with. They are errors: a warning nobody reads protects nobody.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overruns inside of std::string that are not there.
    add_compile_options(-Wno-array-bounds -Wno-restrict -Wno-stringop-overread -Wno-stringop-overflow)
endif()
