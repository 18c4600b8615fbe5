#!/usr/bin/env bash
# Tests the completions of the companion: completion_test.sh PROGRAM SOURCE-FOLDER
set -euo pipefail
program=$1
cd "$2"

expect() {
    [ "$1" = "$2" ] || { echo "completed '$1', not '$2'" >&2 && exit 1; }
}

complete_with() {
    COMP_WORDS=("$program" "$@")
    COMP_CWORD=$#
    _kelvane_kit
    echo "${COMPREPLY[*]}"
}
source tools/kelvanekit/completion.bash
expect "$(complete_with che)" check
expect "$(complete_with --v)" --version
expect "$(complete_with check --max)" --max-findings
expect "$(complete_with check --format '')" 'pretty line json sarif github'
expect "$(complete_with check --type p)" particle
expect "$(complete_with check --disable missing-s)" missing-section
expect "$(complete_with check --explain al)" all
expect "$(complete_with check --jobs '')" ''
expect "$(complete_with check --root sampl)" samples
expect "$(complete_with check samples/entity/star_)" samples/entity/star_amber.entity
expect "$(complete_with check --disable missing-key samples/b)" samples/brushes
expect "$(complete_with check LICEN)" LICENSE
expect "$(complete_with keys --format '')" 'text markdown html json words'
expect "$(complete_with keys CapitalSh)" CapitalShip
expect "$(complete_with new entity StarBaseU)" StarBaseUpgrade

command -v zsh >/dev/null || { echo "zsh is not there: its completion is not tested" && exit 0; }
zsh_complete_with() {
    zsh -f -c '
        _describe() { print -r -- ${(P)2} }
        _files() { print -r -- files "$@" }
        words=("$@")
        CURRENT=$#words
        source tools/kelvanekit/completion.zsh' zsh "$program" "$@"
}
expect "$(zsh_complete_with c | grep -o 'check:Report')" check:Report
expect "$(zsh_complete_with check --m | grep -o -e '--max-findings')" --max-findings
expect "$(zsh_complete_with check --format '')" 'pretty line json sarif github'
expect "$(zsh_complete_with check --disable '' | grep -o missing-section)" missing-section
expect "$(zsh_complete_with check --root '')" 'files -/'
expect "$(zsh_complete_with keys Fri | tr ' ' '\n' | grep -x Frigate)" Frigate
expect "$(zsh_complete_with check '')" 'files -g *.(mesh|particle|brushes|entity)'
