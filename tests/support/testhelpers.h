#pragma once

#include <QFile>
#include <QWidget>
#include <QtTest>

/// Adds columns of test data: addColumns<QString, bool>("name", "valid").
template <typename... Types, typename... Names>
void addColumns(Names... names)
{
    static_assert(sizeof...(Types) == sizeof...(Names));
    (QTest::addColumn<Types>(names), ...);
}

/// Adds a row of test data; texts may be literals.
template <typename... Cells>
void addRow(const char *name, const Cells &...cells)
{
    (QTest::newRow(name) << ... << cells);
}

/// Adds rows of texts: a line each, with "|" between the cells, of which the first is the row's
/// name.
inline void addRows(std::initializer_list<const char *> columns, const char *table)
{
    for (const char *column : columns)
        QTest::addColumn<QString>(column);
    const QStringList lines = QString::fromUtf8(table).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList cells = line.split('|');
        QTestData &row = QTest::newRow(qPrintable(cells.value(0).trimmed()));
        for (int i = 1; i <= int(columns.size()); ++i)
            row << cells.value(i).trimmed();
    }
}

/// The widget below `parent` with this accessible name that isn't hidden, or null.
template <typename Widget>
Widget *findNamed(const QWidget *parent, const char *name)
{
    const QList<Widget *> widgets = parent->findChildren<Widget *>();
    for (Widget *widget : widgets) {
        if (widget->accessibleName() == QLatin1String(name) && !widget->isHidden())
            return widget;
    }
    return nullptr;
}

/// What a variable of the environment says, or else another number.
inline unsigned numberFrom(const char *variable, unsigned otherwise)
{
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariable(variable).toUInt()
                                               : otherwise;
}

/// A file's text; null if it can't be read.
inline QByteArray fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
}

/// Makes a file hold just this text. After a null text there is no file.
inline bool setFileText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (text.isNull())
        return !file.exists() || file.remove();
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}
