#compdef kelvane-kit
# Completion of commands, options and their values, all of which the help of the program tells, and of content files.
_kelvane_kit() {
    local program=$words[1] value previous=$words[CURRENT-1]
    local -a help entries

    if (( CURRENT == 2 )); then
        entries=(${(f)"$($program --help 2>/dev/null | sed -n '/^Subcommands:/,$s/^  \([a-z]*\)  *\(.*\)/\1:\2/p')"})
        entries+=('--help:Show the help' '--version:Show the version')
        _describe command entries
        return
    fi
    help=(${(f)"$($program $words[2] --help 2>/dev/null)"})
    value=${${(M)help:#  $previous *}[1]#  $previous }
    if [[ $previous == --* && -n $value ]]; then
        value=${value%% *}
        case $value in
        (*FOLDER*) _files -/ ;;
        (*FILE*|*LIST*) _files ;;
        (*CODE*)
            entries=(${(f)"$($program check --explain all 2>/dev/null | sed -n 's/^\([a-z-]*\) ([a-z]*)$/\1/p')"})
            [[ $value == *all ]] && entries+=(all)
            _describe code entries
            ;;
        (*[a-z]*)
            entries=(${(s:|:)value})
            _describe value entries
            ;;
        esac
    elif [[ $words[CURRENT] == -* ]]; then
        entries=(${(f)"$(print -rl -- $help | grep -oE -- '^  [^ ]*--[a-z-]+' | grep -o -- '--.*')"})
        _describe option entries
    elif [[ $words[2] == (keys|new) ]]; then
        entries=(${(f)"$($program keys 2>/dev/null | sed -n 's/^  \([^ ]*\) .*/\1/p')"})
        [[ $words[2] == new ]] && entries+=(entity)
        _describe name entries
    else
        value=$($program check --help 2>/dev/null | sed -n 's/^  --type \([^ ]*\).*/\1/p')
        _files -g "*.($value)"
    fi
}
_kelvane_kit "$@"
