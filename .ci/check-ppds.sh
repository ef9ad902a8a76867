#!/usr/bin/env bash
# Checks the sample PPDs with CUPS' own test. The filters that they name are the printer maker's and
# on no build machine, so a missing one is a warning; all else is an error, translations included.
# That test passes over rules that name no value of the printer, as the panel does, and over rules
# that are written in one direction only, which not all readers of a PPD turn round. Both are looked
# for here.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/../demo/ppd"

check_pair_rules()
{
    awk '
    # "*Keyword Value/Text: ..." makes "Keyword Value" known.
    /^\*[A-Za-z0-9]+ [^ :\/]+\// { value = $2; sub(/\/.*/, "", value); known[substr($1, 2) " " value] }
    /^\*UIConstraints:/ { rule[substr($2, 2) " " $3, substr($4, 2) " " $5] = FNR }
    END {
        for (pair in rule) {
            split(pair, side, SUBSEP)
            place = FILENAME ":" rule[pair] ": " side[1] ", " side[2] ": "
            for (i = 1; i <= 2; ++i)
                if (!(side[i] in known)) { print place "no such value: " side[i]; wrong = 1 }
            if (!((side[2], side[1]) in rule)) { print place "missing the other way round"; wrong = 1 }
        }
        exit wrong
    }' "$1"
}

cupstestppd -W filters ./*.ppd
for ppd in ./*.ppd; do
    check_pair_rules "$ppd"
done
