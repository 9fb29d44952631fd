# For the scripts that source it: runs $program and notes in $bad whether all was as it must be.
# shellcheck shell=bash disable=SC2034,SC2154
bad=0

complain() {
    echo "$1"
    bad=1
}

# expect STATUS PATTERN ARGUMENT…: the exit status, and a pattern in what is said.
expect() {
    local status=$1 pattern=$2 said got
    shift 2
    said=$(timeout 60 "$program" "$@" 2>&1 </dev/null)
    got=$?
    [ "$got" -eq "$status" ] && grep -qE -- "$pattern" <<<"$said" ||
        complain "$(basename "$program") $*: status $got, said: ${said:0:400}; wanted status $status and \"$pattern\""
}
