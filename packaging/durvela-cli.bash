# bash completion for durvela-cli

_durvela_cli() {
  local current=${COMP_WORDS[COMP_CWORD]} words
  case ${COMP_WORDS[COMP_CWORD - 1]} in
    --clock) words='own country' ;;
    --node) words='mean corrected' ;;
    --ayanamsa) words='0 1 2 3 4 5 7' ;;
    --language) words='en' ;;
    --zone) words=$(awk '!/^#/ { print $3 }' /usr/share/zoneinfo/zone.tab 2>/dev/null) ;;
    --date | --from | --to) words=$(date +%F) ;;
    --place | --state | --country | --latitude | --longitude | --name) words='' ;;
    *)
      words='--help --version'
      if [ "$COMP_CWORD" -eq 1 ]; then
        words+=' day days'
      else
        words+=' --place --state --country --latitude --longitude --zone --name
          --clock --ayanamsa --node --language --json'
        [ "${COMP_WORDS[1]}" = day ] && words+=' --date'
        [ "${COMP_WORDS[1]}" = days ] && words+=' --from --to'
      fi
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
} && complete -F _durvela_cli durvela-cli
