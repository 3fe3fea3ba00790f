# Warnings for our own code. Headers of other projects come in as system headers.
add_library(pd_warnings INTERFACE)
target_compile_options(pd_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

# Sanitizers, as a list: "address;undefined" or "thread".
set(PD_SANITIZE "" CACHE STRING "Sanitizers to build everything with")
if(PD_SANITIZE)
  list(JOIN PD_SANITIZE "," pd_sanitizers)
  add_compile_options(-fsanitize=${pd_sanitizers} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${pd_sanitizers})
endif()
