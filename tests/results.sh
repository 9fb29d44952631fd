# How test scripts report, for those that source this file: a line a test, "ok NAME" or "FAILED NAME: why", and last
# "N passed, N failed". The script sets `results`, a file to keep the lines in.
# shellcheck shell=bash disable=SC2154

record() {
    echo "$1"
    echo "$1" >>"$results"
}
ok() { record "ok $1"; }
failed() { record "FAILED $1: $2"; }

# The tests' own lines of a program that runs some.
reported() { grep -E '^(ok|FAILED) ' <<<"$1" | while read -r line; do record "$line"; done; }

# The closing line; fails when a test has.
sum_up() {
    local bad good
    bad=$(grep -c '^FAILED' "$results")
    good=$(grep -c '^ok' "$results")
    echo "$good passed, $bad failed"
    [ "$bad" -eq 0 ]
}
