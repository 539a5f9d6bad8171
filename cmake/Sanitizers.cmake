# SPDX-License-Identifier: MIT
# FADELOOM_SANITIZE names the sanitizers for the whole build, as the compiler spells them: "address,undefined".
set(FADELOOM_SANITIZE "" CACHE STRING "Sanitizers for the whole build, comma separated")
if(FADELOOM_SANITIZE)
    add_compile_options(-fsanitize=${FADELOOM_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    # Instrumented code makes compilers see ghosts; the plain builds hold every warning.
    add_compile_options(-Wno-error)
    add_link_options(-fsanitize=${FADELOOM_SANITIZE})
endif()
