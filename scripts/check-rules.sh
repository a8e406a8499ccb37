#!/usr/bin/env bash
# What the build cannot keep: who may include which outside library, and that nobody climbs out of a room by "../".
# Who may include which room is the build's business (cmake/Room.cmake).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

broken=0

# complain TEXT LINES: a rule and the lines that break it, if there are any.
complain() {
    [ -z "$2" ] && return
    printf '%s\n%s\n' "$1" "$2"
    broken=1
}

# includes PATTERN FOLDER...: the #include lines whose file matches, with place.
includes() {
    local pattern=$1
    shift
    grep -rnE "^ *# *include +$pattern" "$@" --include='*.h' --include='*.cpp' || true
}

# only PLACES HEADERS: outside headers that these places alone may include.
outside=
only() {
    outside="$outside|$2"
    complain "Only $1 may include $2:" "$(includes "[<\"]($2)" src tools | grep -vE "^($1)" || true)"
}

only 'src/platform/sdl/' 'SDL|X11/|fluidsynth\.h'
only 'src/platform/text/' 'ft2build\.h|freetype/'
only 'src/platform/images/' 'png\.h|jpeglib\.h'
only 'src/base/result\.h' 'tl/'
only 'tools/(apt|sound)/' 'toml\+\+/'
only 'src/main\.cpp|tools/' 'CLI/'

only 'src/base/|src/platform/(machine|sdl)/|src/main\.cpp|tools/' 'unistd\.h|fcntl\.h|signal\.h|pwd\.h|spawn\.h|sys/'

complain "These outside headers have no place in scripts/check-rules.sh yet:" \
    "$(includes '<[^>]*[^a-z_0-9>]' src tools | grep -vE "<(${outside#|})" || true)"
complain "A room is included by its path from src/ or the top folder:" \
    "$(includes '"([^/"]*"|[^"]*\.\./)' src tools)"

exit "$broken"
