# Completion for fish: the program knows the words.
function __qorvex_complete
    set -l before (commandline --current-process --tokenize --cut-at-cursor)
    set -l typed "$(commandline --current-token --cut-at-cursor)"
    for line in ($before[1] complete $before[2..-1] $typed 2>/dev/null)
        if test "$line" = :files
            __fish_complete_path "$typed"
        else
            echo $line
        end
    end
end
complete --command qorvex --no-files --keep-order --arguments '(__qorvex_complete)'
