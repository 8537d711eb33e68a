# The warnings under which everything of ours is built, as errors.
add_library(sys_context_warnings INTERFACE)
target_compile_options(sys_context_warnings INTERFACE
  -Werror -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wformat=2)
