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

# The one library of the program's core is a folder of headers.
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/libraries)
file(CREATE_LINK /usr/include/nlohmann ${CMAKE_CURRENT_BINARY_DIR}/libraries/nlohmann SYMBOLIC)
list(APPEND dialect -isystem ${CMAKE_CURRENT_BINARY_DIR}/libraries)

function(globSources result)
    set(patterns ${ARGN})
    list(TRANSFORM patterns PREPEND ${CMAKE_SOURCE_DIR}/src/)
    file(GLOB found CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${patterns})
    set(${result} ${found} PARENT_SCOPE)
endfunction()
# What differs between processors for both, the rest of the program's core for one.
globSources(sources_x86_64 platform/macos/*.cpp platform/macos/*.mm engine/*.cpp app/macos/SystemPlatform.cpp)
globSources(core base/*.cpp platform/*.cpp settings/*.cpp log/*.cpp control/*.cpp)
set(sources_arm64 ${sources_x86_64} ${core})

set(objects)
foreach(processor IN ITEMS arm64 x86_64)
    set(triple ${processor}-apple-macos14.2)
    foreach(source IN LISTS sources_${processor})
        set(object ${CMAKE_CURRENT_BINARY_DIR}/objects/${triple}/${source}.o)
        cmake_path(GET object PARENT_PATH folder)
        file(MAKE_DIRECTORY ${folder})
        set(language -x c++)
        if(source MATCHES "\\.mm$")
            set(language -x objective-c++ -fobjc-arc)
        elseif(source MATCHES "AVX2" AND processor STREQUAL x86_64)
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
