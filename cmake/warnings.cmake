# The warnings under which everything of ours is built. The presets make errors of them; who
# builds a release with a newer compiler gets warnings.
add_library(sys_context_warnings INTERFACE)
target_compile_options(sys_context_warnings INTERFACE
  $<$<BOOL:${SYS_CONTEXT_WERROR}>:-Werror>
  -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wformat=2)
