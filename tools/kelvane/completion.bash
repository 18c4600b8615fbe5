# Completion of the types, of sources that have the ending of their type, and of the formats.
_kelvane() {
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    case $COMP_CWORD in
    1)
        mapfile -t COMPREPLY < <(compgen -W 'mesh particle brushes entity saveGame' -- "$word")
        ;;
    2)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(
            compgen -f -X "!*.${COMP_WORDS[1],,}" -- "$word"
            compgen -d -- "$word"
        )
        [ ${#COMPREPLY[@]} -gt 0 ] || mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    3)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    4)
        [ "${COMP_WORDS[1]}" = saveGame ] || mapfile -t COMPREPLY < <(compgen -W 'txt bin' -- "$word")
        ;;
    esac
}
complete -F _kelvane kelvane
