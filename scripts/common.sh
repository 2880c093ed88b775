# shellcheck shell=bash
# For the scripts beside it: where the project is, and how they speak. Sourced, not run.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() {
    printf '%s\n' "$*" >&2
}

give_up() {
    say "$(basename "$0"): $*"
    exit 1
}

# step WHAT COMMAND...: runs a command that takes a while and says only how long it took. If it fails, the end of its
# output is shown and the script ends. If `goes_on_without` is set, only the name of the log is shown, and the line is
# left open for the caller to say what it does instead.
step() {
    local what=$1 started=$SECONDS log pid status=0
    shift
    mkdir -p build/log
    # A list of packages is longer than a file's name may be.
    log=build/log/$(tr -cs 'A-Za-z0-9\n' '-' <<<"$what" | cut -c 1-60).log
    "$@" >"$log" 2>&1 </dev/null &
    pid=$!
    if [ -t 2 ]; then
        while kill -0 "$pid" 2>/dev/null; do
            printf '\r%s … %d s ' "$what" $((SECONDS - started)) >&2
            sleep 0.5
        done
        printf '\r' >&2
    else
        printf '%s …' "$what" >&2
    fi
    wait "$pid" || status=$?
    if [ "$status" -ne 0 ] && [ -n "${goes_on_without:-}" ]; then
        printf '%s failed (%s); ' "$([ -t 2 ] && printf '%s …' "$what")" "$log" >&2
        exit 1
    fi
    if [ "$status" -ne 0 ]; then
        # The lines about tests that passed, and about warnings that clang-tidy does not show, would hide the others.
        printf '%s failed. The end of %s:\n' "$([ -t 2 ] && printf '%s …' "$what")" "$log" >&2
        grep -v -e '^ *Start ' -e ' Passed ' -e 'warnings generated\.$' "$log" | tail -n 60 >&2
        exit 1
    fi
    printf '%s %d s\n' "$([ -t 2 ] && printf '%s …' "$what")" $((SECONDS - started)) >&2
}

# jdks: a line "RELEASE HOME" for each of the JDKs that tests run on, JAVA_HOME's first.
jdks() {
    local java release seen=
    for java in ${JAVA_HOME:+"$JAVA_HOME/bin/java"} /usr/lib/jvm/*/bin/java; do
        release=$("$java" -XshowSettings:properties -version 2>&1 | sed -n 's/^ *java.specification.version = //p')
        case "$release:$seen" in
            17:*17* | 25:*25*) ;;
            17:* | 25:*) seen="$seen $release" && printf '%s %s\n' "$release" "${java%/bin/java}" ;;
        esac
    done
    [ -n "$seen" ] || give_up "neither JDK 17 nor JDK 25 is in JAVA_HOME or below /usr/lib/jvm"
}
