#!/usr/bin/env bash
# Looks for button names that differ from the choice texts of the sample PPDs, in any language: a
# button group finds its value by text, and would lose it without a word.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The page whose catalogue names the buttons, and the PPD keyword they set.
groups='GeneralTab Coll
GeneralTab Duplex
ColorGroup ColorModel
BookletTab BXBooklet
FinishingTab Sep
FinishingTab Rotate'

status=0
for language in english: french:fr german:de italian:it portuguese:pt spanish:es; do
    for ppd in demo/ppd/*.ppd; do
        grep -qE '^\*Manufacturer: *"(Brixola|NV_RATEX)"' "$ppd" || continue
        awk -v groups="$groups" -v code="${language#*:}" -v ppd="$ppd" '
            function plain(text) {
                gsub(/&lt;/, "<", text); gsub(/&gt;/, ">", text); gsub(/&quot;/, "\"", text)
                gsub(/&apos;/, "\047", text); gsub(/&amp;/, "\\&", text)
                return text
            }
            function between(tag) {
                sub(".*<" tag "[^>]*>", ""); sub("</" tag ">.*", "")
                return plain($0)
            }
            # "*Keyword Choice/Text: ..." as keyword, choice and text
            function readChoice(line, prefix,    rest, space, slash, colon) {
                rest = substr(line, length(prefix) + 1)
                space = index(rest, " "); slash = index(rest, "/"); colon = index(rest, ":")
                if (!space || slash < space || colon < slash)
                    return 0
                keyword = substr(rest, 1, space - 1)
                choice = substr(rest, space + 1, slash - space - 1)
                text = substr(rest, slash + 1, colon - slash - 1)
                return 1
            }
            FNR == NR {
                if (/<name>/) context = between("name")
                else if (/<source>/) source = between("source")
                else if (/<translation/) catalogue[context, source] = between("translation")
                next
            }
            code != "" && index($0, "*" code ".") == 1 {
                if (readChoice($0, "*" code ".")) localized[keyword, choice] = text
                next
            }
            /^\*[A-Za-z0-9]+ [^ ]+\// {
                if (readChoice($0, "*")) { choices[keyword] = choices[keyword] "\n" choice; english[keyword, choice] = text }
            }
            END {
                count = split(groups, rows, "\n")
                for (i = 1; i <= count; ++i) {
                    split(rows[i], part, " ")
                    number = split(substr(choices[part[2]], 2), keys, "\n")
                    for (j = 1; j <= number; ++j) {
                        name = catalogue[part[1], english[part[2], keys[j]]]
                        shown = code == "" ? english[part[2], keys[j]] : localized[part[2], keys[j]]
                        if (name == "" || name != shown) {
                            print ppd ": " part[2] " " keys[j] " reads \"" shown "\", the button of " part[1] " \"" name "\""
                            bad = 1
                        }
                    }
                }
                exit bad
            }' "resources/translations/${language%:*}.ts" "$ppd" || status=1
    done
done
exit $status
