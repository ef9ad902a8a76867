#!/usr/bin/env bash
# Looks for includes in src/ that point upwards or sideways and prints them as file:line. Since each
# one points strictly downwards, no two folders depend on each other, not even roundabout.
#
#   check-includes.sh [FOLDER]     FOLDER: the source folder, default the checkout's src
#
# From low to high: model; storage; desktop and widgets; pages/base; the other folders of pages, and
# profiles; policy, privileged and sketch; app. Within a folder files include each other freely. The model
# sees no Qt but Qt Core.
set -eu

source=${1:-$(dirname "${BASH_SOURCE[0]}")/../src}
qt_headers=$(qmake -query QT_INSTALL_HEADERS)
[ -d "$qt_headers/QtCore" ] || { echo "no headers of Qt Core in $qt_headers" >&2; exit 1; }
cd "$source"

grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]' . |
    awk -F: -v core="$qt_headers/QtCore/" '
        BEGIN {
            rank["model"] = 0
            rank["storage"] = 1
            rank["desktop"] = rank["widgets"] = 2
            rank["pages/base"] = 3
            rank["pages/*"] = rank["profiles"] = 4
            rank["policy"] = rank["privileged"] = rank["sketch"] = 5
            rank["app"] = 6
        }
        # "pages/basic/generaltab.h" lies in "pages/basic"; a file without a folder in "".
        function folder_of(path,    parts, count) {
            count = split(path, parts, "/")
            return count < 2 ? "" : parts[1] == "pages" && count > 2 ? "pages/" parts[2] : parts[1]
        }
        function rank_of(folder) {
            if (folder in rank)
                return rank[folder]
            return folder ~ /^pages\/./ ? rank["pages/*"] : -1
        }
        function exists(file,    line) {
            return (getline line < file) >= 0
        }
        # "QString", "qstring.h" and "QtCore/QString" are of Qt Core.
        function is_other_qt(header) {
            if (header !~ /^(Q|q[a-z0-9_]+\.h$)/ || header ~ /^QtCore\//)
                return 0
            return header ~ /\// || !exists(core header)
        }
        function complain(about) {
            print "src/" path ":" $2 ": " about ": " text
            found = 1
        }
        {
            path = substr($1, 3) # ./folder/.../name
            from = folder_of(path)
            text = substr($0, length($1) + length($2) + 3)
            match(text, /["<][^">]*[">]/)
            quoted = substr(text, RSTART, 1) == "\""
            target = substr(text, RSTART + 1, RLENGTH - 2)
            to = quoted && target !~ /\// ? from : folder_of(target)

            if (rank_of(from) < 0)
                complain("the folder \"" from "\" has no layer")
            else if (target ~ /\.\.\// || (quoted && rank_of(to) < 0))
                complain("no path from src")
            else if (rank_of(to) > rank_of(from))
                complain(from " includes " to " above it")
            else if (rank_of(to) == rank_of(from) && to != from)
                complain(from " includes " to " beside it")
            else if (from == "model" && is_other_qt(target))
                complain("the model sees Qt Core alone")
        }
        END { exit found }'
