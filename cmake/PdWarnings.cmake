# Warnings for our own code. Headers of other projects come in as system headers. Only the presets
# make them errors (CMAKE_COMPILE_WARNING_AS_ERROR): what a compiler warns of depends on its version
# and on the level of optimisation, and neither may stop somebody else's build.
add_library(pd_warnings INTERFACE)
target_compile_options(pd_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow)

# Sanitizers, as a list: "address;undefined" or "thread".
set(PD_SANITIZE "" CACHE STRING "Sanitizers to build everything with")
if(PD_SANITIZE)
  list(JOIN PD_SANITIZE "," pd_sanitizers)
  add_compile_options(-fsanitize=${pd_sanitizers} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${pd_sanitizers})
endif()
