#!/usr/bin/env bash
# Who may include whom: the floors of docs/architecture.md, read from the #include lines.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

broken=0

# only FOLDER PATTERN: every quoted include below FOLDER matches PATTERN.
only() {
    local found
    [ -d "$1" ] || return 0
    found=$(grep -rnE '^ *# *include +"' "$1" --include='*.h' --include='*.cpp' | grep -vE "\"($2)/" || true)
    if [ -n "$found" ]; then
        echo "$1 may include only $2:" && echo "$found"
        broken=1
    fi
}

# standard FOLDER: every include in angle brackets below FOLDER is of the standard library, its next
# edition's expected, or of the system's files.
standard() {
    local found
    [ -d "$1" ] || return 0
    found=$(grep -rnE '^ *# *include +<' "$1" --include='*.h' --include='*.cpp' | grep -vE '<([a-z_]+|tl/expected\.hpp|fcntl\.h|unistd\.h|sys/stat\.h)>' || true)
    if [ -n "$found" ]; then
        echo "$1 may include only the standard library:" && echo "$found"
        broken=1
    fi
}

# machine PATTERN FOLDER...: includes matching PATTERN stand in FOLDER alone.
machine() {
    local found
    found=$(grep -rnE "^ *# *include +[<\"]$1" src tools tests --include='*.h' --include='*.cpp' |
        grep -vE "^($2)" || true)
    if [ -n "$found" ]; then
        echo "Only $2 may include $1:" && echo "$found"
        broken=1
    fi
}

only src/base 'base'
only src/console 'base|console'
only src/sim 'base|sim'
only src/platform/canvas 'base|platform/canvas'
only src/platform/devices 'base|platform/(canvas|devices)'
only src/platform/desktop 'base|platform/(canvas|devices|desktop)'
only src/platform/widgets 'base|platform/(canvas|devices|desktop|widgets)'
only src/platform/headless 'base|platform/(canvas|devices|headless)'
only src/platform/sdl 'base|platform/(canvas|devices|sdl)'
only src/platform/machine 'base|platform/machine'
only src/resources 'base|platform/(devices|desktop|widgets)|resources'
only src/radar 'resources|base|console|sim|platform/(canvas|devices|desktop)|radar'
only src/controls 'base|console|sim|platform/(canvas|devices|desktop)|controls'
only src/shell 'base|console|sim|platform/(canvas|devices|desktop|widgets)|resources|radar|controls|shell'
standard src/base
standard src/console
standard src/sim
standard src/platform/desktop
standard src/platform/widgets
standard src/platform/headless
standard src/resources
standard src/radar
standard src/controls
standard src/shell
machine 'SDL2?[/.]' 'src/platform/sdl/'
machine '(ft2build|png|jpeglib|turbojpeg)\.h' 'src/platform/canvas/'
machine 'toml\+\+' 'tools/(apt|sound)/'
machine '(fcntl|unistd|sys/stat)\.h' 'src/(base|platform/machine)/|tools/sound/|tests/'

exit "$broken"
