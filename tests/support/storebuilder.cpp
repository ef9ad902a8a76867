#include "support/storebuilder.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"

#include <QStringList>

namespace {

struct Name
{
    explicit Name(const QString &word)
        : key(word.section('/', 0, 0))
        , text(word.section('/', 1).replace('_', ' '))
    {
        if (!word.contains('/'))
            text = key;
    }

    QString key;
    QString text;
};

QStringList words(const QString &line)
{
    return line.simplified().split(' ', Qt::SkipEmptyParts);
}

OptionChoice *findValue(const OptionStore &store, const QString &value)
{
    const bOption *option = store.find(value.section('=', 0, 0));
    OptionChoice *choice = option ? option->findChoice(value.section('=', 1)) : nullptr;
    if (!choice)
        qFatal("the store has no value %s", qPrintable(value));
    return choice;
}

void addOption(OptionStore &store, const QStringList &line)
{
    bool isNumber = false;
    const int priority = line.value(1).toInt(&isNumber);
    if (!isNumber)
        qFatal("no option: %s", qPrintable(line.join(' ')));
    const Name name(line[0]);
    auto option = std::make_unique<bOption>(name.key, name.text);
    option->setPriority(priority);
    for (QString word : line.mid(2)) {
        const bool isDefault = word.endsWith('*');
        if (isDefault)
            word.chop(1);
        const Name choice(word);
        option->addChoice(choice.key, choice.text);
        if (isDefault)
            option->setDefaultChoice(option->choiceList().last());
    }
    store.insert(option.release());
}

void addRules(OptionStore &store, const QStringList &line)
{
    const OptionChoice *first = findValue(store, line[0]);
    for (const QString &value : line.mid(1)) {
        const OptionChoice *other = findValue(store, value);
        store.addConstraint(first->option()->key(), first->key(), other->option()->key(),
                            other->key());
    }
}

} // namespace

std::unique_ptr<OptionStore> makeStore(const QString &block)
{
    auto store = std::make_unique<OptionStore>();
    const QStringList lines = block.split('\n');
    for (const QString &text : lines) {
        const QStringList line = words(text);
        if (line.isEmpty())
            continue;
        if (line[0].contains('='))
            addRules(*store, line);
        else
            addOption(*store, line);
    }
    return store;
}

void selectValues(OptionStore &store, const QString &values)
{
    const QStringList list = words(values);
    for (const QString &value : list) {
        OptionChoice *choice = findValue(store, value);
        choice->option()->setCurrent(choice);
    }
}

QString blockedValues(const OptionStore &store)
{
    QStringList values;
    const QList<bOption *> options = store.optionList();
    for (const bOption *option : options) {
        const QList<OptionChoice *> choices = option->choiceList();
        for (const OptionChoice *choice : choices) {
            if (choice->isBlocked())
                values.append(option->key() + '=' + choice->key());
        }
    }
    values.sort();
    return values.join(' ');
}
