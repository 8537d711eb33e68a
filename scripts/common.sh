# What the scripts in bash share; they source it.

repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# show_help: the comment that the script begins with.
show_help() { sed -n '2,/^set/{/^set/d;s/^# \{0,1\}//;p}' "$0"; }

# build_library PRESET: builds the library alone; prints the folder that it is built in.
build_library() {
  local folder=$repository/build/library-$1
  {
    cmake -S "$repository" --preset "$1" -B "$folder" \
      -DSYS_CONTEXT_HOST=OFF -DSYS_CONTEXT_TESTS=OFF &&
      cmake --build "$folder" --target sys_context &&
      ninja -C "$folder" -t cleandead  # the objects of sources that are no more
  } >&2 || return
  echo "$folder"
}

# library_objects FOLDER: those below this folder of a build.
library_objects() { find "$1" -path '*/sys_context_*.dir/*.o'; }
