# SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
# SPDX-License-Identifier: MIT

# Completion for bash. The program itself tells its options, and the values that it knows.

_diagnosis_host() {
    local program=${1/#\~/$HOME} word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]} words
    # In --option=value the sign is a word of its own.
    [ "$word" = = ] && word=
    [ "$option" = = ] && option=${COMP_WORDS[COMP_CWORD - 2]}
    case $option in
    --modem) words=$("$program" --list-modems) ;;
    --language) words=$("$program" --check-config / --language '?' 2>&1) ;;
    --format) words=$("$program" --report --format '?' 2>&1) ;;
    --tab) return ;;
    *)
        if [[ $word == -* ]]; then
            words=$("$program" --help | grep -oE '^ +(-., )?--[a-z-]+')
        else
            mapfile -t COMPREPLY < <(compgen -f -- "$word")
            return
        fi
        ;;
    esac 2>/dev/null
    words=${words##*known are:}
    mapfile -t COMPREPLY < <(compgen -W "${words//,/ }" -- "$word")
}

complete -o filenames -F _diagnosis_host diagnosis-host
