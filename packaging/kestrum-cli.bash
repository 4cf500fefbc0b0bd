# bash completion of kestrum-cli. It knows no option by itself: it reads them from the program.

# Prints what may stand for an option of a usage text: its values between "|", "N..M", or nothing.
_kestrum_cli_values() {
    local pattern="[[[:space:]]$2 ([^][:space:]]+)" value
    [[ $1 =~ $pattern ]] || return
    value=${BASH_REMATCH[1]}
    if [[ $value =~ ^([0-9]+)\.\.([0-9]+)$ ]]; then
        seq "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
    elif [[ $value == *"|"* && $value != *[A-Z.]* ]]; then
        printf '%s\n' ${value//|/ }
    fi
}

# Whether an option of a usage text wants a value.
_kestrum_cli_wants_value() {
    local pattern="[[[:space:]]$2 [^][:space:]|-]"
    [[ $2 == -* && $1 =~ $pattern ]]
}

_kestrum_cli() {
    local program=${COMP_WORDS[0]} word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
    local usage verb=${COMP_WORDS[1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        usage=$("$program" --help 2>/dev/null | sed -n 's/^.*kestrum-cli \[*\([-a-zA-Z]*\).*/\1/p')
        COMPREPLY=($(compgen -W "${usage/VERB/--help}" -- "$word"))
        return
    fi
    usage=$("$program" "$verb" --help 2>/dev/null) || return
    if _kestrum_cli_wants_value "$usage" "$before"; then
        COMPREPLY=($(compgen -W "$(_kestrum_cli_values "$usage" "$before")" -- "$word"))
    elif [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "$(grep -oE -- '(^|[[ ])--?[a-z][a-z-]*' <<<"$usage" | tr -d '[ ')
            --help" -- "$word"))
    fi
}

# Where nothing of the program's fits, the names of files do.
complete -o default -F _kestrum_cli kestrum-cli
