#include "pages/job/emailcheck.h"

#include "functiontests.h"

static QStringList fault(const QStringList &in)
{
    const QStringList faults = {"none", "double quote", "empty", "format", "blank", "not ASCII"};
    return {faults[int(checkEmail(in[0]))]};
}

static const FunctionTests::Table table("TestEmailCheck", 1, fault, R"(
ordinary                          | jo@office.example.com | none
shortest                          | a@b.c                 | none
dot behind the at                 | a@.b                  | none
quote                             | "jo"@x.y              | double quote
nothing                           |                       | empty
no at is told before a blank      | jo example            | format
blank is told before an umlaut    | jö doe@x.y            | blank
umlaut is told before the format  | @jö                   | not ASCII
at first                          | @x.y                  | format
at last                           | jo.doe@               | format
two ats                           | jo@x@y.z              | format
dot before the at                 | jo.@x.y               | format
leading dot                       | .jo@x.y               | format
two dots in the name              | jo..doe@x.y           | format
two dots in the host              | jo@x..y               | format
no dot behind the at              | jo.doe@host           | format
trailing dot                      | jo@x.y.               | format
quote behind the limit            | n{120}@host.y 12"      | double quote
dot behind the limit              | n{120}@host.yy.       | none
cut at its last dot               | n{120}@hosts..y       | format
at behind the limit               | n{200}@x.y            | format
limit within a letter             | n{120}@xx.yyyé        | not ASCII
endless                           | .{1000000}@           | format
)");
