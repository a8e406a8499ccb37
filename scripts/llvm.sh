# Sourced by the checks of format and names: both need one version, or they find other things on every machine.

# llvm_program NAME: the program of that version, by whatever name this system has it. Fails when it is not there.
llvm_program() {
    local version=19 program
    for program in "$1-$version" "$1"; do
        if command -v "$program" >/dev/null && "$program" --version | grep -q "version $version\."; then
            echo "$program"
            return
        fi
    done
    echo "Not checked: this needs $1 $version (package $1-$version, which ./check installs on Debian)." >&2
    return 1
}
