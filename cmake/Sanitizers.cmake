# SPDX-License-Identifier: MIT
# FADELOOM_SANITIZE lists the sanitizers for the whole build, in the compiler's spelling: "address,undefined".
set(FADELOOM_SANITIZE "" CACHE STRING "Sanitizers for the whole build, comma separated")
if(FADELOOM_SANITIZE)
    add_compile_options(-fsanitize=${FADELOOM_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    # Instrumented code triggers false warnings; the plain builds enforce all of them.
    add_compile_options(-Wno-error)
    add_link_options(-fsanitize=${FADELOOM_SANITIZE})
endif()
