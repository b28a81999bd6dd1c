# Completion of orlin-host in bash. Commands and options come from its --help, classes and parameters from its list.

# The options of a help text with what they take, a line each: "--script FILE".
_orlin_host_options() {
  sed -nE 's/^  (-h,)?(--[a-z-]+) ?([A-Z]*).*/\2 \3/p' <<<"$1"
}

_orlin_host() {
  local program=$1 current=${COMP_WORDS[COMP_CWORD]}
  COMPREPLY=()

  # What stands before the current word. Bash breaks words at "=".
  local -a words=()
  local i joins=
  for ((i = 1; i < COMP_CWORD; ++i)); do
    if [[ ${COMP_WORDS[i]} == = || $joins ]] && ((${#words[@]})); then
      words[-1]+=${COMP_WORDS[i]}
    else
      words+=("${COMP_WORDS[i]}")
    fi
    joins=
    [[ ${COMP_WORDS[i]} == = ]] && joins=yes
  done
  local option=
  if [[ $joins || $current == = ]]; then
    [[ $current == = ]] && current=
    [[ ${words[-1]} == --* ]] || return  # the value of an argument
    option=${words[-1]%%=*}
    unset 'words[-1]'
  fi

  if ((${#words[@]} == 0)); then
    local help commands
    help=$("$program" --help 2>/dev/null)
    commands=$(sed -nE '/^Commands:/,/^$/s/^  ([a-z]+) .*/\1/p' <<<"$help")
    mapfile -t COMPREPLY < <(compgen -W "$commands $(_orlin_host_options "$help")" -- "$current")
    return
  fi

  local command=${words[0]} help options name takes
  help=$("$program" "$command" --help 2>/dev/null) || return
  options=$(_orlin_host_options "$help")
  local -A taken=()
  while read -r name takes; do taken[$name]=$takes; done <<<"$options"

  # The words that are neither options nor their values; the last option may wait for its value.
  local -a positionals=()
  for ((i = 1; i < ${#words[@]}; ++i)); do
    if [[ ${words[i]} != --* ]]; then
      positionals+=("${words[i]}")
    elif [[ ${words[i]} != *=* && ${taken[${words[i]}]:-} ]] && ((++i == ${#words[@]})); then
      option=${words[i - 1]}
    fi
  done

  if [[ $option ]]; then
    case ${taken[$option]:-} in
      FILE) compopt -o filenames && mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
      DIR) compopt -o filenames && mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
      HOST) mapfile -t COMPREPLY < <(compgen -W "script qt" -- "$current") ;;
      LANG)
        local languages
        languages=$(sed -nE 's/^  --language .*: (.*)/\1/p' <<<"$help")
        mapfile -t COMPREPLY < <(compgen -W "${languages// or / }" -- "$current")
        ;;
    esac
  elif [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "${!taken[*]}" -- "$current")
  elif [[ $command == account ]]; then
    compopt -o filenames && mapfile -t COMPREPLY < <(compgen -f -- "$current")
  elif [[ $command == list || $command == describe || $command == edit ]]; then
    if ((${#positionals[@]} == 0)); then
      mapfile -t COMPREPLY < <(compgen -W "$("$program" list 2>/dev/null | sed '/^#/d; s/ .*//')" -- "$current")
    elif [[ $command != list ]]; then
      local parameters
      parameters=$("$program" list "${positionals[0]}" 2>/dev/null | sed -nE 's/^  ([^ ]+) .*/\1=/p')
      compopt -o nospace
      mapfile -t COMPREPLY < <(compgen -W "$parameters" -- "$current")
    fi
  fi
}

complete -F _orlin_host orlin-host
