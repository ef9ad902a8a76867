#!/usr/bin/env bash
# Looks for includes in src/ that point upwards and prints them as file:line.
#
#   check-includes.sh [FOLDER]     FOLDER: the source folder, default the checkout's src
#
# From low to high: model, storage, desktop and widgets, pages and profiles, policy and privileged,
# app.
set -eu

source=${1:-$(dirname "${BASH_SOURCE[0]}")/../src}
cd "$source"

# Every include of ours names the folder; one without a folder means its own.
grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]' . |
    awk -F: '
        BEGIN {
            rank["model"] = 0
            rank["storage"] = 1
            rank["desktop"] = rank["widgets"] = 2
            rank["pages"] = rank["profiles"] = 3
            rank["policy"] = rank["privileged"] = 4
            rank["app"] = 5
        }
        {
            split($1, file, "/") # ./folder/.../name
            folder = file[2]
            text = substr($0, length($1) + length($2) + 3)
            match(text, /["<][^">]*[">]/)
            target = substr(text, RSTART + 1, RLENGTH - 2)
            gsub(/\.\.?\//, "", target)
            m = split(target, parts, "/")
            included = m > 1 ? parts[1] : folder
            if (!(folder in rank)) {
                print "src/" substr($1, 3) ":" $2 ": the folder " folder " has no layer"
                found = 1
            } else if (included in rank && rank[included] > rank[folder]) {
                print "src/" substr($1, 3) ":" $2 ": " folder " includes " included ": " text
                found = 1
            }
        }
        END { exit found }'
