# SPDX-License-Identifier: MIT
# FADELOOM_MACOS_DOUBLES builds the adapters for macOS on Linux, with clang and the platform's language options, against
# our own declarations and doubles of the platform in tests/macos. The result is for testing only.
option(FADELOOM_MACOS_DOUBLES "Build the macOS adapters and their tests on Linux, and nothing else" OFF)

if(APPLE OR FADELOOM_MACOS_DOUBLES)
    set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER})  # The same compiler for both languages.
    enable_language(OBJCXX)
    set(CMAKE_OBJCXX_STANDARD 23)
    set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
    set(CMAKE_OBJCXX_EXTENSIONS OFF)
endif()
if(FADELOOM_MACOS_DOUBLES)
    add_compile_options(-fblocks -fobjc-runtime=macosx-14.2)
    include_directories(SYSTEM ${CMAKE_SOURCE_DIR}/tests/macos/declarations)
    link_libraries(BlocksRuntime)
    # The compiler's class data contains absolute addresses.
    add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-no-pie>)
endif()
