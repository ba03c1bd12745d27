# Flags of the project's own code; never part of what an installed package asks of its users.
add_library(compile_options INTERFACE)
target_compile_options(compile_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                                                 -Werror)
if(SIZEWRIGHT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -g)
  add_link_options(-fsanitize=address,undefined)
endif()
if(SIZEWRIGHT_COVERAGE)
  add_compile_options(--coverage -O0 -g)
  add_link_options(--coverage)
endif()
