# SPDX-License-Identifier: MIT
# Compiles every source of the program for the architectures of a Mac, with our declarations in place of the platform's
# headers and Debian's libc++, musl and Qt in place of its libraries. Nothing is linked: it shows that a source is valid
# with the platform's language options and ABI, and that it uses nothing newer than the oldest supported system.
#
# Target macosObjects. Related sources are compiled in batches; a batch that compiles leaves objects/TRIPLE/BATCH.o (an
# empty one if it contains no code), and objects/batches lists what is expected: the triple, the batch, its sources.
set(library /usr/lib/llvm-19)
set(own ${CMAKE_CURRENT_BINARY_DIR}/objects)
file(MAKE_DIRECTORY ${own}/libraries ${own}/types/bits)

# Header-only libraries.
foreach(name IN ITEMS nlohmann gtest gmock)
    file(CREATE_LINK /usr/include/${name} ${own}/libraries/${name} SYMBOLIC)
endforeach()
# The basic types have the same sizes and identities as on a Mac: overloads and formats depend on that.
file(READ /usr/include/x86_64-linux-musl/bits/alltypes.h types)
foreach(change IN ITEMS
        "#define _Int64 long->#define _Int64 long long" "typedef signed _Int64   intmax_t->typedef long intmax_t"
        "typedef unsigned _Int64 uintmax_t->typedef unsigned long uintmax_t"
        "typedef _Int64 time_t->typedef long time_t" "typedef _Int64 suseconds_t->typedef int suseconds_t"
        "typedef unsigned mode_t->typedef unsigned short mode_t"
        "typedef unsigned _Reg nlink_t->typedef unsigned short nlink_t"
        "typedef unsigned _Int64 dev_t->typedef int dev_t" "typedef long blksize_t->typedef int blksize_t"
        "typedef long clock_t->typedef unsigned long clock_t")
    string(REPLACE "->" ";" change "${change}")
    list(GET change 0 there)
    list(GET change 1 onAMac)
    string(FIND "${types}" "${there};" isThere)
    if(isThere EQUAL -1 AND NOT there MATCHES "^#")
        message(FATAL_ERROR "musl's types have changed: there is no \"${there}\"")
    endif()
    string(REPLACE "${there}" "${onAMac}" types "${types}")
endforeach()
file(WRITE ${own}/types/bits/alltypes.h.new "${types}")
file(COPY_FILE ${own}/types/bits/alltypes.h.new ${own}/types/bits/alltypes.h ONLY_IF_DIFFERENT)

set(dialect -fblocks -std=c++23 -Wall -Wextra -Wconversion -Wshadow -Wunguarded-availability -Werror
    -nostdinc -nostdinc++ -isystem ${library}/include/c++/v1 -isystem ${library}/lib/clang/19/include
    -isystem ${CMAKE_CURRENT_SOURCE_DIR}/declarations -isystem ${own}/types -isystem /usr/include/x86_64-linux-musl
    -U__nonnull -D_GNU_SOURCE -D_LIBCPP_HAS_MUSL_LIBC -I${CMAKE_SOURCE_DIR}/src -I${CMAKE_SOURCE_DIR}
    -isystem ${own}/libraries -DQT_NO_KEYWORDS -DQT_NO_DEBUG
    [[-DFADELOOM_VERSION="0"]] [[-DFADELOOM_BUILD="0"]] [[-DFADELOOM_WEB_PAGE=""]] [[-DFADELOOM_UPDATE_ENDPOINT=""]]
    -DFADELOOM_UPDATE_CHECK=1)
get_target_property(qtFolders Qt6::Core INTERFACE_INCLUDE_DIRECTORIES)
list(GET qtFolders 0 qt)
cmake_path(GET qt PARENT_PATH qt)
list(APPEND dialect -isystem ${qt})
foreach(module IN ITEMS Core Gui Network OpenGL Qml QmlIntegration QmlModels Quick QuickControls2 Svg Widgets)
    list(APPEND dialect -isystem ${qt}/Qt${module})
endforeach()

# The program's folders on a Mac, and the tests that run there.
set(folders base platform engine engine/kernels settings log control shell commands ui platform/simulated platform/qt platform/macos
    app app/macos)
set(batches)
function(addBatch name)  # The sources, relative to the project.
    set(${name}_sources ${ARGN} PARENT_SCOPE)
    set(batches ${batches} ${name} PARENT_SCOPE)
endfunction()
foreach(folder IN LISTS folders)
    string(REPLACE "/" "_" name ${folder})
    file(GLOB plain CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
    file(GLOB objective CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/src/${folder}/*.mm)
    # The same loops for two instruction sets must not share a translation unit with anything else.
    foreach(source IN LISTS plain)
        if(source MATCHES "RenderKernels")
            cmake_path(GET source STEM stem)
            list(REMOVE_ITEM plain ${source})
            addBatch(${stem} ${source})
        endif()
    endforeach()
    # Sources that are never compiled together in a build may use the same names: those of CoreAudio and ours, those of
    # ui and each other.
    list(LENGTH plain count)
    set(size 8)
    if(folder STREQUAL platform/macos)
        set(size 1)
    elseif(folder STREQUAL ui)
        set(size 4)
    endif()
    math(EXPR parts "(${count} + ${size} - 1) / ${size}")
    set(index 0)
    foreach(source IN LISTS plain)
        math(EXPR part "${index} % ${parts} + 1")
        list(APPEND ${name}_part${part} ${source})
        math(EXPR index "${index} + 1")
    endforeach()
    foreach(part RANGE 1 ${parts})
        if(${name}_part${part})
            addBatch(${name}_${part} ${${name}_part${part}})
        endif()
    endforeach()
    # Objective-C classes share one namespace, their sources do not.
    if(objective)
        addBatch(${name}_objective ${objective})
    endif()
endforeach()
file(GLOB real CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests/coreaudio/*.mm)
if(real)
    addBatch(coreaudio_tests ${real})
endif()

set(objects)
set(listed)
foreach(processor IN ITEMS arm64 x86_64)
    set(triple ${processor}-apple-macos14.2)
    file(MAKE_DIRECTORY ${own}/${triple})
    set(compile ${CMAKE_CXX_COMPILER} --target=${triple} ${dialect})
    set(often ${own}/${triple}/often.pch)
    add_custom_command(OUTPUT ${often}
        COMMAND ${compile} -x c++-header ${CMAKE_CURRENT_SOURCE_DIR}/OftenIncluded.h -o ${often}
        DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/OftenIncluded.h ${own}/types/bits/alltypes.h
        COMMENT "Reading the libraries for ${triple}" VERBATIM)
    foreach(batch IN LISTS batches)
        set(object ${own}/${triple}/${batch}.o)
        set(unit "")
        set(paths)
        foreach(source IN LISTS ${batch}_sources)
            string(APPEND unit "#include \"${source}\"\n")
            list(APPEND paths ${CMAKE_SOURCE_DIR}/${source})
        endforeach()
        if(batch MATCHES "objective|coreaudio")
            set(file ${own}/${batch}.mm)
            set(language -x objective-c++ -fobjc-arc)
            set(needed)
        else()
            set(file ${own}/${batch}.cpp)
            set(language -include-pch ${often} -x c++)
            set(needed ${often})
            if(batch MATCHES "AVX2")
                set(needed)
                set(language -x c++)
                if(processor STREQUAL x86_64)
                    list(APPEND language -mavx2)
                endif()
            endif()
        endif()
        # Code is generated only for what depends on the architecture, or is specific to the platform.
        set(depth -fsyntax-only)
        if(batch MATCHES "base|engine|RenderKernels|platform_macos")
            set(depth -c)
        endif()
        file(CONFIGURE OUTPUT ${file} CONTENT "${unit}" @ONLY)
        add_custom_command(OUTPUT ${object}
            COMMAND ${CMAKE_COMMAND} -E rm -f ${object}
            COMMAND ${compile} ${language} -MD -MF ${object}.d -MT ${object} ${depth} ${file} -o ${object}
            COMMAND ${CMAKE_COMMAND} -E touch ${object}
            DEPENDS ${file} ${paths} ${needed}
            DEPFILE ${object}.d
            COMMENT "Compiling ${batch} for ${triple}" VERBATIM)
        list(APPEND objects ${object})
        list(JOIN ${batch}_sources " " names)
        string(APPEND listed "${triple} ${batch} ${names}\n")
    endforeach()
endforeach()
file(WRITE ${own}/batches "${listed}")
add_custom_target(macosObjects DEPENDS ${objects})
