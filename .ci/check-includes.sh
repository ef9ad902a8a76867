#!/usr/bin/env bash
# Looks for includes in src/ that point upwards and prints them as file:line.
#
#   check-includes.sh [FOLDER]     FOLDER: the source folder, default the checkout's src
#
# From low to high: model, storage, widgets, pages, policy and privileged, app. The dialogs of
# src/storage stand with the pages, since they are made of widgets.
set -eu

source=${1:-$(dirname "${BASH_SOURCE[0]}")/../src}
cd "$source"

# Every include of ours names the folder; one without a folder means its own.
grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]' . |
    awk -F: '
        BEGIN {
            rank["model"] = 0
            rank["storage"] = 1
            rank["widgets"] = 2
            rank["pages"] = 3
            rank["policy"] = rank["privileged"] = 4
            rank["app"] = 5
        }
        function layer(folder, name) {
            return folder == "storage" && name ~ /dialog/ ? "pages" : folder
        }
        {
            n = split($1, file, "/") # ./folder/.../name
            folder = file[2]
            text = substr($0, length($1) + length($2) + 3)
            match(text, /["<][^">]*[">]/)
            target = substr(text, RSTART + 1, RLENGTH - 2)
            gsub(/\.\.?\//, "", target)
            m = split(target, parts, "/")
            included = layer(m > 1 ? parts[1] : folder, parts[m])
            from = layer(folder, file[n])
            if (!(from in rank)) {
                print "src/" substr($1, 3) ":" $2 ": the folder " from " has no layer"
                found = 1
            } else if (included in rank && rank[included] > rank[from]) {
                print "src/" substr($1, 3) ":" $2 ": " from " includes " included ": " text
                found = 1
            }
        }
        END { exit found }'
