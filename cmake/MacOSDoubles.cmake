# SPDX-License-Identifier: MIT
# FADELOOM_MACOS_DOUBLES builds the adapters for macOS on Linux, with clang in the platform's dialect, against our own
# declarations and doubles of the platform in tests/macos. Nothing of it is for use: it is there to be tested.
option(FADELOOM_MACOS_DOUBLES "Build the macOS adapters and their tests on Linux, and nothing else" OFF)

if(APPLE OR FADELOOM_MACOS_DOUBLES)
    set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER})  # One compiler for both.
    enable_language(OBJCXX)
    set(CMAKE_OBJCXX_STANDARD 23)
    set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
    set(CMAKE_OBJCXX_EXTENSIONS OFF)
endif()
if(FADELOOM_MACOS_DOUBLES)
    add_compile_options(-fblocks -fobjc-runtime=macosx-14.2)
    include_directories(SYSTEM ${CMAKE_SOURCE_DIR}/tests/macos/declarations)
    link_libraries(BlocksRuntime)
    # Addresses in the compiler's class data are absolute.
    add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-no-pie>)
endif()
