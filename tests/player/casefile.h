#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// A script of steps with what each led to, as CONTRIBUTING describes it.
///
/// Lines: "# comment"; "== title" begins a case; "  text" goes on with the step above; "> text" is
/// what the step above led to; any other is a step. What stands before the first title comes first
/// in each case.
struct CaseStep
{
    QStringList before; ///< comments and blank lines above, for rewriting
    QString text;
    QStringList block;    ///< the lines that go on, without their indentation
    QStringList expected; ///< without "> "
    int line = 0;
};

struct Case
{
    QStringList before;
    QString title;
    QVector<CaseStep> steps;
    int line = 0;
};

class CaseFile
{
public:
    /// False if the file can't be read or a line stands where it means nothing; error() says which.
    bool read(const QString &path);
    QString error() const { return error_; }

    Case preamble;
    QVector<Case> cases;

    /// The file's text with `expected` as it stands in the steps.
    QString text() const;

private:
    QString error_;
    QStringList after; ///< the last comments
};
