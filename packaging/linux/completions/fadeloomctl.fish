# SPDX-License-Identifier: MIT
# Completion of fadeloomctl for fish: the running program provides the candidates.
function __fadeloomctl_candidates
    set -l words (commandline -opc)
    fadeloomctl complete -- $words[2..-1] (commandline -ct) 2>/dev/null
end
complete -c fadeloomctl -f -a '(__fadeloomctl_candidates)'
