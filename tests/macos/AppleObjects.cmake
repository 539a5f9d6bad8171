# SPDX-License-Identifier: MIT
# Compiles sources for the processors of a Mac, with our declarations in place of the platform's headers and Debian's
# libc++ and musl in place of its C++ and C libraries. Nothing is linked: it shows that a source is right in the
# platform's dialect and ABI, and that it asks for nothing that the oldest supported system lacks.
#
# target macosObjects; the objects are in objects/TRIPLE/SOURCE.o, and one that does not compile is not there.
set(library /usr/lib/llvm-19)
set(dialect -fblocks -std=c++23 -Wall -Wextra -Wconversion -Wshadow -Wunguarded-availability -Werror
    -nostdinc -nostdinc++ -isystem ${library}/include/c++/v1 -isystem ${library}/lib/clang/19/include
    -isystem ${CMAKE_CURRENT_SOURCE_DIR}/declarations -isystem /usr/include/x86_64-linux-musl
    -U__nonnull -D_GNU_SOURCE -D_LIBCPP_HAS_MUSL_LIBC -I${CMAKE_SOURCE_DIR}/src)

file(GLOB sources CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}
    ${CMAKE_SOURCE_DIR}/src/platform/*.cpp ${CMAKE_SOURCE_DIR}/src/hal/*.cpp ${CMAKE_SOURCE_DIR}/src/engine/*.cpp
    ${CMAKE_SOURCE_DIR}/src/platform/macos/*.cpp ${CMAKE_SOURCE_DIR}/src/platform/macos/*.mm)
list(APPEND sources src/app/PlatformMacOS.cpp)

set(objects)
foreach(triple IN ITEMS arm64-apple-macos14.2 x86_64-apple-macos14.2)
    foreach(source IN LISTS sources)
        set(object ${CMAKE_CURRENT_BINARY_DIR}/objects/${triple}/${source}.o)
        cmake_path(GET object PARENT_PATH folder)
        file(MAKE_DIRECTORY ${folder})
        set(language -x c++)
        if(source MATCHES "\\.mm$")
            set(language -x objective-c++ -fobjc-arc)
        elseif(source MATCHES "AVX2" AND triple MATCHES "^x86_64")
            list(APPEND language -mavx2)
        endif()
        add_custom_command(OUTPUT ${object}
            COMMAND ${CMAKE_COMMAND} -E rm -f ${object}
            COMMAND ${CMAKE_CXX_COMPILER} ${language} --target=${triple} ${dialect} -MD -MF ${object}.d -c
                ${CMAKE_SOURCE_DIR}/${source} -o ${object}
            DEPENDS ${CMAKE_SOURCE_DIR}/${source}
            DEPFILE ${object}.d
            COMMENT "Compiling ${source} for ${triple}")
        list(APPEND objects ${object})
    endforeach()
endforeach()
add_custom_target(macosObjects DEPENDS ${objects})
