# Sourced by scripts that wait for what a program does: nothing is timed, what has to come is waited for.
# Who sources it has a function fail and says in patience how many seconds until something is given up.

started= # the program's process, once it runs; whatever is waited for never comes when that has ended

# until_true WHAT COMMAND...: waits until the command succeeds. WHAT is told when it does not.
until_true() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        [ -z "$started" ] || kill -0 "$started" 2>/dev/null || fail "it ended by itself before this: $what"
        [ "$SECONDS" -lt "$end" ] || fail "waited for this: $what"
        sleep 0.05
    done
}
