# Completion of quorvantis-cli for bash: source this file, or put it into
# /usr/share/bash-completion/completions under the name quorvantis-cli.

_quorvantis_cli() {
  local commands="show check build unpack preview print pdf key score export convert edit recover import rules versions bank languages match"
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command="" arguments=0 i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      --app-folder | --language | --mode | --end | --value | --flags | --start | --text | --text-file | --batch | \
        --from | --to | --rules | --repository | --marks | --ini | --into | --after | --answer-pictures | --formulas | --marked | --student | --responses | \
        --count | --seed | --out | --questions | --options | --names | --keep | --source | --ignore | --index | --limit)
        ((++i)) ;;
      -*) ;;
      *) if [ -z "$command" ]; then command=${COMP_WORDS[i]}; else ((++arguments)); fi ;;
    esac
  done

  compopt -o filenames 2>/dev/null
  if [ "$previous" = --app-folder ]; then
    mapfile -t COMPREPLY < <(compgen -d -- "$word")
  elif [ "$previous" = --mode ]; then
    mapfile -t COMPREPLY < <(compgen -W "same custom" -- "$word")
  elif [ "$previous" = --answer-pictures ] || [ "$previous" = --formulas ]; then
    mapfile -t COMPREPLY < <(compgen -W "give-up ignore force" -- "$word")
  elif [ "$previous" = --questions ]; then
    mapfile -t COMPREPLY < <(compgen -W "none neighbours within-kind within-score all" -- "$word")
  elif [ "$previous" = --options ]; then
    mapfile -t COMPREPLY < <(compgen -W "on off" -- "$word")
  elif [ "$previous" = --out ]; then
    mapfile -t COMPREPLY < <(compgen -d -- "$word")
  elif [ "$previous" = --from ]; then
    mapfile -t COMPREPLY < <(compgen -W "exam qti canvas moodle aiken csv tsv gift" -- "$word")
  elif [ "$previous" = --to ]; then
    mapfile -t COMPREPLY < <(compgen -W "exam qti canvas moodle aiken csv tsv gift markdown" -- "$word")
  elif [ "$previous" = --into ] || [ "$previous" = --source ]; then
    mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.exm' -- "$word")
  elif [ "$previous" = --rules ] || [ "$previous" = --marked ] || [ "$command $previous" = "import --text" ] ||
    [ "$command $previous" = "rules --text" ] || [ "$previous" = --ini ] || [ "$previous" = --marks ] ||
    [ "$previous" = --index ] || [ "$previous" = --text-file ] || [ "$previous" = --batch ] || [ "$previous" = --responses ]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  elif [[ $word == -* ]]; then
    local options="--help --app-folder --language --debug"
    [ -n "$command" ] || options+=" --version"
    case $command in
      show) options+=" --json --table" ;;
      check) options+=" --json --ignore --ignored" ;;
      preview) options+=" --student --responses" ;;
      print) options+=" --after-preview --paper --key --sheet --solutions --large-print" ;;
      pdf) options+=" --paper --key --sheet --solutions --large-print" ;;
      key) options+=" --csv" ;;
      score) options+=" --mode --end --value" ;;
      import) options+=" --rules --repository --learn --marks --into --after --answer-pictures --formulas --mend-line-ends --marked --text" ;;
      rules) options+=" --repository --rules --marks --ini --text" ;;
      versions) options+=" --count --seed --out --questions --options --names --keep --no-pdf --replace --source" ;;
      convert) options+=" --from --to --strict" ;;
      match) options+=" --flags --start --text --text-file --batch" ;;
      edit) options+=" --recovery" ;;
      bank) options+=" --index --json --limit" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  elif [ -z "$command" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$word")
  else
    case $command:$arguments in
      show:0 | check:0 | unpack:0 | preview:0 | print:0 | pdf:0 | key:0 | build:1 | score:[01] | export:0 | recover:1 | import:1) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.exm' -- "$word") ;;
      build:0) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.json' -- "$word") ;;
      unpack:1 | preview:1 | print:1) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
      export:1) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -- "$word" | grep -E '\.(doc|docx|pdf)$') ;;
      pdf:1) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.pdf' -- "$word") ;;
      rules:0) mapfile -t COMPREPLY < <(compgen -W "learn check" -- "$word") ;;
      bank:0) mapfile -t COMPREPLY < <(compgen -W "add remove update list find like tag tags draw" -- "$word") ;;
      bank:1) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
      versions:0) mapfile -t COMPREPLY < <(compgen -W "make verify" -- "$word") ;;
      versions:1) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.exm' -- "$word") ;;
      import:0 | rules:1) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -- "$word" | grep -E '\.(txt|md|doc|docx|odt|rtf)$') ;;
      convert:[01]) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -- "$word" | grep -E '\.(exm|zip|xml|gift|aiken|csv|tsv|txt|md)$') ;;
      edit:0) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    esac
  fi
}

complete -F _quorvantis_cli quorvantis-cli
