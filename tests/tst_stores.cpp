#include "app/language.h"
#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"

#include <QDir>
#include <QProcess>

#include <algorithm>
#include <thread>

// Each printer whose store is printed in tests/cases/stores is a test by itself: what an import
// makes of NAME.ppd, there or in demo/ppd, has to read as NAME.expected says. NAME.de.expected is
// the same in German. PRESSDESK_REWRITE=1 writes the files instead of comparing them.

namespace {

const QString storesDir = PRESSDESK_SOURCE_DIR "/tests/cases/stores/";
const QString demoDir = PRESSDESK_SOURCE_DIR "/demo/ppd/";

QString valueName(const OptionRef &value)
{
    return value.option->key() + '=' + value.choice->key();
}

/// "A=x B=y,z" in the order given: values of one option that follow each other are joined.
QString joinedValues(const QList<OptionRef> &values)
{
    QString text;
    const bOption *last = nullptr;
    for (const OptionRef &value : values) {
        text += value.option == last ? ',' + value.choice->key() : ' ' + valueName(value);
        last = value.option;
    }
    return text;
}

/// "A=x>B=y>C=z": conditions first, what they block last.
QString ruleText(const OptionRefList &rule)
{
    QStringList names;
    for (const OptionRef &value : rule)
        names.append(valueName(value));
    return names.join('>');
}

/// A line with key, text, rank and all choices ("*" ends the default), then one or two lines for
/// each choice with rules, in the order in which they are walked.
QString optionText(const bOption *option)
{
    QStringList choices;
    QString rules;
    for (const OptionChoice *choice : option->choiceList()) {
        const QString mark = choice == option->defaultChoice() ? "*/" : "/";
        choices.append(choice->key() + mark + choice->text());
        if (!choice->pairConstraintList().isEmpty())
            rules += "    " + choice->key() + " excludes" +
                     joinedValues(choice->pairConstraintList()) + '\n';
        QString groups;
        for (const OptionRefList &rule : choice->groupConstraintList())
            groups += ' ' + ruleText(rule);
        if (!groups.isEmpty())
            rules += "    " + choice->key() + " in" + groups + '\n';
    }
    QString selected;
    if (option->current() != option->defaultChoice())
        selected = ", but selected is " + option->currentKey();
    return QString("%1/%2 %3: ").arg(option->key(), option->text()).arg(option->priority()) +
           choices.join(" | ") + selected + '\n' + rules;
}

QString field(const char *name, const QString &value)
{
    return QString(name) + (value.isEmpty() ? ":" : ": ") + value + '\n';
}

/// The whole store. The PPD's options come in the order in which `ppd` opens them, those of the
/// panel sorted by key: a store itself has no order.
QString storeText(const OptionStore &store, const QString &ppd)
{
    QList<bOption *> options = store.optionList();
    const auto place = [&](const bOption *option) {
        return std::make_tuple(!option->isPpdOption(), ppd.indexOf("*OpenUI *" + option->key()),
                               option->key());
    };
    std::sort(options.begin(), options.end(),
              [&](const bOption *a, const bOption *b) { return place(a) < place(b); });

    QStringList installed;
    for (const bOption *option : store.installedOptions())
        installed.append(option->key());
    QString text = field("model", store.modelName()) +
                   field("raster or PDF", store.rasterOrPdfFilter() ? "yes" : "no") +
                   field("installed", installed.join(' ')) +
                   field("blocked", blockedValues(store)) + '\n';
    bool own = false;
    for (const bOption *option : qAsConst(options)) {
        if (!option->isPpdOption() && !own)
            text += "\nthe panel's own:\n";
        own = !option->isPpdOption();
        text += optionText(option);
    }
    return text;
}

/// Imports as a user of this language would see it.
std::unique_ptr<OptionStore> import(const QString &path, const QString &language)
{
    alignPrintSystemLanguage(language);
    std::unique_ptr<OptionStore> store;
    // libcups looks for the language once in a thread.
    std::thread([&] { store = importPpdFile(path); }).join();
    return store;
}

/// The lines that differ, as a user of `diff` reads them.
QByteArray difference(const QString &expectedFile, const QByteArray &text)
{
    QProcess diff;
    diff.setProcessChannelMode(QProcess::MergedChannels);
    diff.start("diff", {"-U1", "--label", "expected", "--label", "imported", expectedFile, "-"});
    diff.write(text);
    diff.closeWriteChannel();
    return diff.waitForFinished() ? diff.readAll() : diff.errorString().toUtf8();
}

} // namespace

class TestStores : public QObject
{
    Q_OBJECT

private slots:
    void stores_data();
    void stores();
};

void TestStores::stores_data()
{
    addColumns<QString>("expected");
    QStringList files = QDir(storesDir).entryList({"*.expected"});
    for (const QString &ppd :
         QDir(storesDir).entryList({"*.ppd"}) + QDir(demoDir).entryList({"*.ppd"}))
        files.append(ppd.section('.', 0, 0) + ".expected");
    files.removeDuplicates();
    for (const QString &file : qAsConst(files))
        addRow(qPrintable(QString(file).remove(".expected")), file);
}

void TestStores::stores()
{
    QFETCH(QString, expected);
    const QStringList parts = expected.split('.');
    QString ppd = storesDir + parts.first() + ".ppd";
    if (!QFile::exists(ppd))
        ppd = demoDir + parts.first() + ".ppd";
    const auto store = import(ppd, parts.size() == 3 ? parts[1] : "en");
    QVERIFY2(store, qPrintable(ppd));

    const QByteArray text = storeText(*store, fileText(ppd)).toUtf8();
    expected.prepend(storesDir);
    if (qEnvironmentVariableIsSet("PRESSDESK_REWRITE"))
        QVERIFY(setFileText(expected, text));
    if (text != fileText(expected))
        QFAIL(difference(expected, text));

    store->releaseAllConstraints();
    QCOMPARE(blockedValues(*store), QString());
}

QTEST_GUILESS_MAIN(TestStores)
#include "tst_stores.moc"
