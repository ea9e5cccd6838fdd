# Completion for bash: the program knows the words.
_qorvex() {
  local line
  COMPREPLY=()
  while IFS= read -r line; do
    if [[ $line == :files ]]; then
      compopt -o filenames
      mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "${COMP_WORDS[COMP_CWORD]}")
    else
      COMPREPLY+=("${line%%$'\t'*}")
    fi
  done < <("$1" complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
}
complete -F _qorvex qorvex
