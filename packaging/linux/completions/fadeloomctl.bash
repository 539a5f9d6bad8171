# SPDX-License-Identifier: MIT
# Completion of fadeloomctl for bash: the running program provides the candidates.
_fadeloomctl()
{
    local line=${COMP_LINE:0:COMP_POINT} words current parted="" breaks="" candidate
    # shellcheck disable=SC2162
    read -a words <<< "$line"  # A backslash keeps a space inside a word.
    [[ $line == *[[:blank:]] && $line != *\\[[:blank:]] ]] && words+=("")
    current=${words[-1]}
    # bash does not replace what precedes one of its word break characters.
    for candidate in @ : =; do
        [[ $COMP_WORDBREAKS == *"$candidate"* ]] && breaks+=$candidate
    done
    [[ -n $breaks ]] && parted=${current%"${current##*["$breaks"]}"}
    COMPREPLY=()
    while IFS=$'\t' read -r candidate _; do
        COMPREPLY+=("$(printf %q "${candidate#"$parted"}")")
    done < <(fadeloomctl complete -- "${words[@]:1}" 2>/dev/null)
}
complete -F _fadeloomctl fadeloomctl
