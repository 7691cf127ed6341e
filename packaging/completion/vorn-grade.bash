# bash completion for vorn-grade
# shellcheck shell=bash

_vorn_grade() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $before in
        --format)
            mapfile -t COMPREPLY < <(compgen -W 'table csv json' -- "$word")
            return
            ;;
        --language)
            mapfile -t COMPREPLY < <(compgen -W 'en fr' -- "$word")
            return
            ;;
        --sensitivity | --coelution | --height)
            return
            ;;
    esac
    compopt -o filenames
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--sensitivity --coelution --height --format --language --report --ml --skip-done
            --null --help --version' -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _vorn_grade vorn-grade
