#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

/// Names one widget of the panel. Where several fit, the one nearest to the user is taken: in the
/// modal window before the others, shown before hidden.
class PanelWidget
{
public:
    /// By accessible name, such as "cmbBxPageSize".
    PanelWidget(const QString &accessibleName);
    PanelWidget(const char *accessibleName);

    /// A button by its text, without mnemonic.
    static PanelWidget button(const QString &text);
    /// A button of a button box or message box by its role's name, in any language: "Ok", "Apply".
    static PanelWidget standardButton(const QString &name);
    /// By class or base class, such as "BixDialog" or "QMessageBox".
    static PanelWidget ofClass(const QString &className);

    const QJsonObject &target() const { return m_target; }

private:
    PanelWidget(const QString &key, const QString &value);

    QJsonObject m_target;
};

/// A row, tab, item or button of a widget: by text or by number from 0.
class PanelEntry
{
public:
    PanelEntry(int index);
    PanelEntry(const QString &text);
    PanelEntry(const char *text);

    const QJsonValue &value() const { return m_value; }

private:
    QJsonValue m_value;
};

/// The message box that waits for an answer.
struct PanelMessageBox
{
    bool shown = false;
    QString title;
    QString text;
    QStringList buttons; ///< texts, without mnemonics
};

/// One page of a tab bar.
struct PanelTab
{
    QString text;
    bool enabled = false;
    bool current = false;
    QRect rect; ///< in window coordinates; empty if the tab takes no room
};

/// Contents of a table.
struct PanelTable
{
    QStringList headers;
    QVector<QStringList> rows;
    int currentRow = -1;
    QVector<int> selectedRows;
    QVector<int> columnWidths; ///< in pixels
};

/// Runs the panel on an X server of its own and uses it as a person would.
///
/// Nothing is linked into the panel: a plugin in its process carries out what is asked for here.
/// Clicks and keys take the way that input of the window system takes, and an action that a person
/// could not do now (a hidden, disabled or covered widget, a window behind a modal one) fails.
/// Windows get the keyboard focus as under a window manager: the newest one has it.
///
/// Every action comes back when the panel has come to rest, be it in a modal dialog that the
/// action opened, or has ended. Actions return false and queries an empty answer if they failed;
/// error() then says why, along with the panel's error output:
/// \code
/// QVERIFY2(panel.click("butGroupDuplex"), qPrintable(panel.error()));
/// \endcode
class PanelDriver
{
public:
    /// \param program path of the panel's executable in a build tree; the plugin is looked for in
    ///        "tests/plugins" of that tree
    explicit PanelDriver(const QString &program);
    ~PanelDriver(); ///< ends the panel, however it stands
    PanelDriver(const PanelDriver &) = delete;
    PanelDriver &operator=(const PanelDriver &) = delete;

    // Before start(). The panel inherits this process' environment at the time of construction,
    // with an English locale.
    void setEnvironment(const QString &name, const QString &value);
    void unsetEnvironment(const QString &name);
    /// Sets LANG, such as "de_DE", and removes the variables that overrule it.
    void setLanguage(const QString &locale);
    /// Command and arguments that run the panel, such as "unshare -r"; they have to become it
    /// (exec), so that its end and exit status are the panel's.
    void setLauncher(const QStringList &command);

    /// Starts the panel and waits for its first window. Can be called again after it ended.
    bool start(const QStringList &arguments = {});
    bool isRunning() const;
    /// Waits until the panel has ended by itself.
    bool waitForEnd(int timeoutMs = 40000);
    /// Exit status of the ended panel, -1 if it was ended by a signal.
    int exitStatus() const;
    /// All that the panel has written to its error output since start(), Qt's warnings included,
    /// but for the notice that its hash seed (QT_HASH_SEED) is set.
    QString standardError() const;
    /// What went wrong last.
    QString error() const { return m_error; }

    // Actions.
    bool click(const PanelWidget &widget);
    /// Clicks a tab of the given tab bar, or of the first shown one.
    bool clickTab(const PanelEntry &tab);
    bool clickTab(const PanelWidget &bar, const PanelEntry &tab);
    /// Clicks a cell of a table; a row is found by its text in that column.
    bool clickRow(const PanelWidget &table, const PanelEntry &row, int column = 0);
    /// Clicks a picture button of a button group.
    bool clickGroupButton(const PanelWidget &group, const PanelEntry &button);
    /// Opens the combo box and clicks an item. A disabled item fails.
    bool choose(const PanelWidget &comboBox, const PanelEntry &item);
    /// Types into the widget that has the keyboard focus.
    bool type(const QString &text);
    /// Clicks the input field, selects what it holds and types the text over it.
    bool enter(const PanelWidget &field, const QString &text);
    /// Presses a key or combination, such as "Down", "Return", "Ctrl+A".
    bool press(const QString &keys);
    /// Activates a widget's window, as a click on its frame does.
    bool activateWindow(const PanelWidget &widget);
    /// Closes a widget's window, as the close button of its frame does.
    bool closeWindow(const PanelWidget &widget);
    /// Waits until the panel has come to rest. Actions do it by themselves.
    bool sync();

    // Queries.
    /// Whether such a widget is shown now.
    bool isShown(const PanelWidget &widget);
    /// Whether such a widget is shown and enabled now.
    bool isEnabled(const PanelWidget &widget);
    /// Text of a label, button, button group's label or input field.
    QString text(const PanelWidget &widget);
    /// Current text of a combo box, name of the checked button of a button group.
    QString currentText(const PanelWidget &widget);
    /// Whether a check box, radio button or button is checked.
    bool isChecked(const PanelWidget &widget);
    QString toolTip(const PanelWidget &widget);
    /// Item texts of a combo box.
    QStringList items(const PanelWidget &comboBox);
    /// The texts of the items that can be chosen.
    QStringList enabledItems(const PanelWidget &comboBox);
    /// All that is known of a widget, hidden ones too: "class", "name", "visible", "enabled",
    /// "focus", "text", "toolTip", "rect" and "sizeHint" ([x, y, width, height] in the window),
    /// "color" of its text, "windowTitle", and as the class has it "checked", "value", "minimum",
    /// "maximum", "currentText", "currentIndex", "items" (text, enabled), "buttons" (name, checked,
    /// enabled).
    QJsonObject state(const PanelWidget &widget);
    PanelTable table(const PanelWidget &table);
    QVector<PanelTab> tabs();
    /// Titles of the tabs that take room in the bar.
    QStringList shownTabs();
    PanelMessageBox messageBox();
    /// Title of the main window.
    QString windowTitle();
    /// All top-level windows from front to back: "class", "title", "visible", "active", "modal",
    /// "rect" on the screen.
    QVector<QJsonObject> windows();

    /// Saves a picture as PNG: of a widget, of the whole screen.
    bool grab(const PanelWidget &widget, const QString &path);
    bool grabScreen(const QString &path);

    /// Asks again and again until the condition holds.
    /// \param what for the error message, such as "the message box"
    bool waitFor(const std::function<bool()> &condition, const QString &what,
                 int timeoutMs = 10000);

private:
    bool connectToPanel();
    bool fail(const QString &message);
    bool request(QJsonObject message, QJsonObject *reply, int timeoutMs);
    bool act(const QString &command, QJsonObject message);
    QJsonObject query(const QString &command, QJsonObject message = {});
    bool endedWell();

    QString m_program;
    QStringList m_launcher;
    QProcessEnvironment m_environment;
    QTemporaryDir m_directory; ///< the socket and what the panel writes to its standard streams
    QProcess m_panel;
    QLocalSocket m_socket;
    QString m_error;
    int m_lastId = 0;
};
