# Completion of commands, options and their values, all of which the help of the program tells, and of content files.
_kelvane_kit_values() {
    case $1 in
    *FOLDER*) compgen -d -- "$2" ;;
    *FILE* | *LIST*) compgen -f -- "$2" ;;
    *CODE*) compgen -W "$("$3" check --explain all 2>/dev/null | sed -n 's/^\([a-z-]*\) ([a-z]*)$/\1/p') $(tr -d A-Z <<<"${1//|/ }")" -- "$2" ;;
    *[a-z]*) compgen -W "${1//|/ }" -- "$2" ;;
    esac
}

_kelvane_kit() {
    local program=${COMP_WORDS[0]} word=${COMP_WORDS[COMP_CWORD]} help value
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        help=$("$program" --help 2>/dev/null)
        mapfile -t COMPREPLY < <(compgen -W "$(sed '1,/^Subcommands:/d' <<<"$help" | awk '{print $1}') --help --version" -- "$word")
        return
    fi
    help=$("$program" "${COMP_WORDS[1]}" --help 2>/dev/null)
    value=$(sed -n "s/^  ${COMP_WORDS[COMP_CWORD - 1]} \([^ ]*\).*/\1/p" <<<"$help")
    if [[ ${COMP_WORDS[COMP_CWORD - 1]} == --* && -n $value ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(_kelvane_kit_values "$value" "$word" "$program")
    elif [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(grep -oE -- '^  [^ ]*--[a-z-]+' <<<"$help" | grep -o -- '--.*')" -- "$word")
    elif [[ ${COMP_WORDS[1]} == keys || ${COMP_WORDS[1]} == new ]]; then
        # Types, classes and records, as the overview of the keys lists them.
        mapfile -t COMPREPLY < <(compgen -W "$("$program" keys 2>/dev/null | sed -n 's/^  \([^ ]*\) .*/\1/p')$(
            [[ ${COMP_WORDS[1]} == new ]] && echo " entity"
        )" -- "$word")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(
            for value in $("$program" check --help 2>/dev/null | sed -n 's/^  --type \([^ ]*\).*/\1/p' | tr '|' ' '); do
                compgen -f -X "!*.$value" -- "$word"
            done
            compgen -d -- "$word"
        )
        [ ${#COMPREPLY[@]} -gt 0 ] || mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _kelvane_kit kelvane-kit
