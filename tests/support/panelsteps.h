#pragma once

#include "support/paneldriver.h"

#include <QDir>
#include <QPair>
#include <QVector>

/// What whole-program tests share: the panel with the steps that occur again and again, its
/// messages, and the files that it leaves.

// Title and text of its message boxes.
extern const QStringList noMessage;
extern const QStringList applied;
extern const QStringList nothingSelected;
extern const QStringList notPublished;
extern const QStringList printersChanged;

/// Titles of the tabs that can be seen without a selected printer.
extern const QStringList onlyPrinterPage;

/// Folder of the user's settings.
QDir userFolder();
/// Settings file of a printer.
QString cfgFile(const QString &printer);
/// The user's own defaults, as lpoptions keeps them.
QString lpoptionsFile();
/// Empties the user's folder and defaults. The question about data collection has been answered.
bool makeUserFolder();

QStringList savedLines(const QString &printer);
/// What the print system knows as the user's options of a queue.
QStringList publishedOptions(const QString &printer);
/// Those of the wanted lines that are missing.
QStringList missing(QStringList wanted, const QStringList &lines);

/// Accessible name of a combo box or button group, and the text of one of its values.
using Value = QPair<QString, QString>;
using Values = QVector<Value>;

/// The panel, with the steps that occur again and again.
class Panel : public PanelDriver
{
public:
    Panel();
    ~Panel(); ///< adds to the complaints; after a failure says what went wrong last

    bool startWith(const QString &printer);
    bool select(const QString &printer);
    bool apply() { return click(standardButton("Apply")); }
    bool ok() { return click(standardButton("Ok")); }
    bool cancel() { return click(standardButton("Cancel")); }
    /// Closes the message box, which has the same button as the window behind it.
    bool answer();

    static PanelWidget standardButton(const char *name);

    /// Title and text of the message box; noMessage if there is none.
    QStringList message();
    /// Texts of a column of the printer table.
    QStringList rowsOf(int column);
    /// Whether the table or the window says that a printer is selected.
    bool hasSelection();

    bool set(const Value &value);
    /// Whether the value can be chosen now.
    bool canSet(const Value &value);

    /// What panels have written to their error output since the test began.
    static QString complaints;
};
