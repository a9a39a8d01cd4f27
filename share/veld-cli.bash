# Completion of veld-cli for bash.
_veld_cli() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]:-}
  local formats="vlf txt csv html xml pdf json"
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W "npc sheet show check party roll crit --help" -- "$word")
    return
  fi
  case $before in
    -f | --format | -t | --to)
      local done=""
      [[ $word != *,* ]] || done=${word%,*},
      mapfile -t COMPREPLY < <(compgen -P "$done" -W "$formats" -- "${word##*,}")
      return
      ;;
    -o | --out) mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
    --options) mapfile -t COMPREPLY < <(compgen -f -X '!*.vlb' -- "$word"; compgen -d -- "$word"); return ;;
    --gender) mapfile -t COMPREPLY < <(compgen -W "Male Female" -- "$word"); return ;;
    crit) mapfile -t COMPREPLY < <(compgen -W "puncturing hacking crushing monster" -- "$word"); return ;;
  esac
  if [[ $word == -* ]]; then
    local options="--help"
    case $command in
      npc) options+=" --race --gender --class --level --alignment --name --youth --options --count --seed --format --out" ;;
      sheet) options+=" --to --out" ;;
      roll) options+=" --times --seed" ;;
      crit) options+=" --roll --seed" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    return
  fi
  case $command in
    sheet | show | check) mapfile -t COMPREPLY < <(compgen -f -X '!*.vlf' -- "$word"; compgen -d -- "$word") ;;
    party) mapfile -t COMPREPLY < <(compgen -f -X '!*.vl[fp]' -- "$word"; compgen -d -- "$word") ;;
  esac
}
complete -o filenames -F _veld_cli veld-cli
