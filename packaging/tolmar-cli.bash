# bash completion for tolmar-cli.  The words come from the program itself
# (tolmar-cli --complete WORDS...), so every command, option and kind that it
# knows completes, new ones included.

_tolmar_cli() {
  local cur prev words cword
  _init_completion -n : || return

  local IFS=$'\n'
  local offers
  offers=($("${words[0]}" --complete "${words[@]:1:cword-1}" 2>/dev/null))

  local files=0 w list=()
  for w in "${offers[@]}"; do
    if [[ $w == @file ]]; then
      files=1
    elif [[ $w == -* && $cur != -* ]]; then
      continue # options only once a dash is typed
    else
      list+=("$w")
    fi
  done

  COMPREPLY=($(compgen -W "${list[*]}" -- "$cur"))
  if ((files)) && [[ $cur != -* ]]; then
    COMPREPLY+=($(compgen -f -- "$cur"))
    compopt -o filenames 2>/dev/null
  fi
  # "plank-xyz:" goes on after its colon.
  [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *: ]] && compopt -o nospace 2>/dev/null
  __ltrim_colon_completions "$cur"
} && complete -F _tolmar_cli tolmar-cli
