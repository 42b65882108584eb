# Completion of bldatman-run for bash.

# Files that end so, or folders on the way to them.
_bldatman_run_files() {
    mapfile -t COMPREPLY < <(compgen -f -X "!*$1" -- "$word"; compgen -d -- "$word")
}

_bldatman_run() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    # "--option=value" arrives as three words.
    if [ "$word" = "=" ]; then
        word=
    elif [ "$previous" = "=" ]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    compopt -o filenames 2>/dev/null
    case $previous in
        -c | --command | -h | --help | --version) COMPREPLY=() ;;
        -f | --command-file) _bldatman_run_files .bld ;;
        -d | --dictionary) _bldatman_run_files .json ;;
        -l | --language)
            mapfile -t COMPREPLY < <(compgen -W "en es fr it de ja ko pl pt_BR zh_CN zh_TW" -- "$word")
            ;;
        -o | --output | --trace | --module) _bldatman_run_files "" ;;
        *)
            if [[ $word == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "-c --command -f --command-file -d --dictionary -l --language
                    -o --output --trace --module -h --help --version" -- "$word")
            else
                _bldatman_run_files .csv
            fi
            ;;
    esac
}

complete -F _bldatman_run bldatman-run
