# Completion of vif in fish.

# Options that take a value.
function __vif_value_options
    printf '%s\n' \
@fish-value-options
end

# Options that may have a number, or "any".
function __vif_number_options
    printf '%s\n' \
@fish-number-options
end

# The words before the one to complete, without options and without what these take.
function __vif_positionals
    set -l words (commandline -opc)
    set -l option
    set -l only_positionals
    for word in $words[2..-1]
        if contains -- "$option" (__vif_value_options)
            set option
        else if contains -- "$option" (__vif_number_options); and string match -qr '^(any|[0-9]+)$' -- $word
            set option
        else if test -z "$only_positionals" -a "$word" = --
            set only_positionals yes
        else if test -z "$only_positionals"; and string match -q -- '-*' $word
            set option $word
        else
            set option
            echo $word
        end
    end
end

# Whether the command is the given one, and the next positional has the given number.
function __vif_in -a command position
    set -l words (__vif_positionals)
    test "$words[1]" = "$command"; or return 1
    test -z "$position"; or test (count $words) -eq $position
end

function __vif_files_ending_in -a ends
    __fish_complete_path (commandline -ct) | string match -r -i "^.*(?:/|$ends)(?:\t.*)?\$"
end

function __vif_vif
    __vif_files_ending_in '\.txt|\.xml'
end

function __vif_json
    __vif_files_ending_in '\.json'
end

function __vif_new
    __fish_complete_path (commandline -ct)
end

function __vif_directory
    __fish_complete_directories (commandline -ct)
end

function __vif_group
    echo any
end

function __vif_number
end

function __vif_field
    printf '%s\n' \
@fish-fields
end

function __vif_one_code
    printf '%s\n' \
@fish-codes
end

function __vif_codes
    __fish_complete_list , __vif_one_code
end

function __vif_name
    __vif_field
    __vif_one_code
end

complete -c vif -f
@fish-commands
