# Completion of vif in bash.

# What can follow, one by line.
_vif_commands() {
  printf '%s\n' "
@bash-commands
  "
}

_vif_codes() {
  printf '%s\n' "
@bash-codes
  "
}

_vif_fields() {
  printf '%s\n' "
@bash-fields
  "
}

# Sets REPLY to the options of a command; without one, to those of vif itself.
_vif_options() {
  REPLY=
  case $1 in
@bash-options
  esac
}

# Sets REPLY to what an option takes, or to nothing.
_vif_value() {
  REPLY=
  case $1:$2 in
@bash-values
  esac
}

# Sets REPLY to what stands at a position, from 1, after the command.
_vif_positional() {
  REPLY=
  case $1:$2 in
@bash-positionals
  esac
}

# Offers the words that begin as $typed does, after $before.
_vif_offer() {
  local word
  while read -r word; do
    [[ -z $word || $word != "$typed"* ]] || COMPREPLY+=("$before$word")
  done
}

# Offers directories, and the files whose names end like one of the arguments, in any letter case.
_vif_offer_files() {
  local unquoted=${typed//\\/} name end
  unquoted=${unquoted#[\"\']}
  compopt -o filenames 2>/dev/null
  while IFS= read -r name; do
    COMPREPLY+=("$before$name")
  done < <(compgen -d -- "$unquoted")
  while IFS= read -r name; do
    for end in "$@"; do
      [[ ${name,,} != *"$end" || -d $name ]] || COMPREPLY+=("$before$name")
    done
  done < <(compgen -f -- "$unquoted")
}

# Codes separated by commas: offers those that are not there yet for the last one.
_vif_offer_codes() {
  local chosen=,
  if [[ $typed == *,* ]]; then
    chosen=,${typed%,*},
    before+=${typed%,*},
    typed=${typed##*,}
  fi
  local code
  while read -r code; do
    [[ -z $code || $code != "$typed"* || $chosen == *",$code,"* ]] || COMPREPLY+=("$before$code")
  done < <(_vif_codes)
  compopt -o nospace 2>/dev/null
}

_vif_offer_kind() {
  case $1 in
    words\ *) _vif_offer < <(printf '%s\n' ${1#words }) ;;
    vif) _vif_offer_files .txt .xml ;;
    json) _vif_offer_files .json ;;
    new) _vif_offer_files '' ;;
    directory) _vif_offer_files /. ;;
    codes) _vif_offer_codes ;;
    field) _vif_offer < <(_vif_fields) ;;
    name) _vif_offer < <(_vif_fields && _vif_codes) ;;
    group) _vif_offer <<<any ;;
  esac
}

_vif() {
  # bash cuts at the characters of COMP_WORDBREAKS, so --format=json is three words.
  local words=() word joins=
  for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
    if [[ $word == = && ${#words[@]} -gt 0 && ${words[-1]} == --* ]]; then
      words[-1]+==
      joins=1
    elif [[ -n $joins ]]; then
      words[-1]+=$word
      joins=
    else
      words+=("$word")
    fi
  done
  COMPREPLY=()

  # The words before the one to complete.
  local REPLY command= position=1 value= onlyPositionals=
  for word in "${words[@]:0:${#words[@]}-1}"; do
    if [[ -n $value && ($value != group || $word == any || $word =~ ^[0-9]+$) ]]; then
      value=
      continue
    fi
    value=
    if [[ -z $onlyPositionals && $word == -- ]]; then
      onlyPositionals=1
    elif [[ -z $onlyPositionals && $word == -* ]]; then
      _vif_value "$command" "$word"
      value=$REPLY
    elif [[ -z $command ]]; then
      command=$word
    else
      position=$((position + 1))
    fi
  done

  local typed=${words[-1]} before=
  if [[ -n $value ]]; then
    _vif_offer_kind "$value"
    [[ $value == group ]] || return 0
  fi
  if [[ -z $onlyPositionals && $typed == --*=* ]]; then
    _vif_value "$command" "${typed%%=*}"
    # Readline replaces only what follows the last character at which bash cuts.
    [[ $COMP_WORDBREAKS == *=* ]] || before=${typed%%=*}=
    typed=${typed#*=}
    _vif_offer_kind "$REPLY"
  elif [[ -z $onlyPositionals && $typed == -* ]]; then
    _vif_options "$command"
    _vif_offer < <(printf '%s\n' $REPLY)
  elif [[ -z $command ]]; then
    _vif_offer < <(_vif_commands)
  else
    _vif_positional "$command" "$position"
    _vif_offer_kind "$REPLY"
  fi
}

complete -F _vif vif
