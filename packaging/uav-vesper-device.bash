# bash completion of uav-vesper-device(1)

# _uav_vesper_device_offer WORD WORDS [PREFIX]
_uav_vesper_device_offer() {
    mapfile -t COMPREPLY < <(compgen -P "${3-}" -W "$2" -- "$1")
}

_uav_vesper_device() {
    local word=${COMP_WORDS[COMP_CWORD]} before=$((COMP_CWORD - 1)) name offered='' listed=''
    # bash makes three words of --name=value.
    if [ "$word" = = ]; then
        word=
    elif [ "${COMP_WORDS[before]}" = = ]; then
        before=$((before - 1))
    fi
    COMPREPLY=()
    case ${COMP_WORDS[before]} in
        --generation) _uav_vesper_device_offer "$word" 'K1 K6 K7 K7EW' ;;
        --scene) _uav_vesper_device_offer "$word" 'drone street silence peaks' ;;
        --faults)
            [[ $word != *,* ]] || listed=${word%,*},
            _uav_vesper_device_offer "${word##*,}" 'late silent deaf sweeps refusing noise cut unplug' "$listed"
            compopt -o nospace # a comma may follow
            ;;
        --link | --replay | --tap | --record) compopt -o default ;; # files
        --pace | --battery | --period | --seed | --speed | --help) ;; # numbers, or nothing more
        *)
            for name in link generation pace scene battery faults period seed replay speed tap record help; do
                [[ " ${COMP_WORDS[*]:0:COMP_CWORD} " == *" --$name "* ]] || offered+=" --$name"
            done
            _uav_vesper_device_offer "$word" "$offered"
            ;;
    esac
}
complete -F _uav_vesper_device uav-vesper-device
