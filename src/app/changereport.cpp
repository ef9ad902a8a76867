#include "app/changereport.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/optionlabels.h"
#include "pages/base/tab.h"
#include "storage/settingsfile.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/noticeline.h"

#include <QRadioButton>

#include <algorithm>

namespace {

bool areOff(const QList<ChangeWatch::Move> &moves)
{
    return std::all_of(moves.cbegin(), moves.cend(),
                       [](const ChangeWatch::Move &move) { return OptionLabels::isOff(*move.to); });
}

QStringList keywordsOf(const QList<ChangeWatch::Move> &moves)
{
    QStringList keywords;
    for (const ChangeWatch::Move &move : moves)
        keywords.append(move.option->key());
    return keywords;
}

} // namespace

ChangeReport::ChangeReport(const QList<Tab *> &pages, const OptionLabels &labels,
                           NoticeLine *notice, BixTabWidget *tabs)
    : pages(pages)
    , labels(labels)
    , notice(notice)
    , tabs(tabs)
{
}

// What happens

void ChangeReport::noteSender(const QObject *sender)
{
    if (!qobject_cast<const QWidget *>(sender) || watch.isInPass())
        return;
    userActed = true;
    // One click may speak through several controls: the switch of a group stands for what it
    // switches, and of two radio buttons the one that was picked for the other.
    const auto *radio = qobject_cast<const QRadioButton *>(sender);
    if (radio && !radio->isChecked())
        return;
    const bool isSwitch = qobject_cast<const BixCheckBoxButton *>(sender);
    if (!causeKeyword.isEmpty() && (causeIsSwitch || !isSwitch))
        return;
    for (const Tab *page : pages) {
        const QString keyword = page->keywordOf(sender);
        if (keyword.isEmpty())
            continue;
        causeKeyword = keyword;
        causeIsSwitch = isSwitch;
        return;
    }
}

void ChangeReport::startOver()
{
    startingOver = currentStore;
    watch.restart(currentStore);
    // What they point into goes with the next printer.
    lastCause = Cause();
    lastMoves.clear();
    offered.clear();
    if (!currentStore) {
        tabs->clearDots();
        notice->forget();
    }
}

void ChangeReport::settle()
{
    const Cause because = cause();
    const Moves moves = startingOver ? adjustments() : watch.moves();
    const Moves told = toTell(moves);
    if (startingOver)
        tabs->clearDots();
    markTabs(told);

    const bool isNews = startingOver || userActed || !told.isEmpty();
    if (isNews) {
        offered = startingOver ? Moves() : stillLost(because);
        tell(told, causeText(because));
        lastCause = because;
        lastMoves = startingOver ? Moves() : moves;
        lostBy = causeText(because);
    }
    startingOver = userActed = causeIsSwitch = false;
    causeKeyword.clear();
    watch.rest();
}

void ChangeReport::restore()
{
    Moves moves;
    moves.swap(offered);
    // What a switch brings back comes after it.
    const QStringList keywords = keywordsOf(moves);
    const QStringList followers = labels.followersAmong(keywords);
    std::stable_partition(moves.begin(), moves.end(), [&](const ChangeWatch::Move &move) {
        return !followers.contains(move.option->key());
    });
    for (const ChangeWatch::Move &move : qAsConst(moves)) {
        for (Tab *page : pages) {
            if (page->keywords().contains(move.option->key())) {
                page->choose(*move.from);
                break;
            }
        }
    }
}

QHash<QString, QString> ChangeReport::moved() const
{
    QHash<QString, QString> keys;
    for (const ChangeWatch::Move &move : lastMoves) {
        if (move.from)
            keys.insert(move.option->key(), move.from->key());
    }
    return keys;
}

// Why

ChangeReport::Cause ChangeReport::cause() const
{
    bOption *option = currentOption(causeKeyword);
    if (option)
        return {option, watch.atRest(option), option->current()};
    // Without a control it was the server's answer.
    const QList<bOption *> options = currentStore ? currentStore->optionList() : QList<bOption *>();
    for (bOption *each : options) {
        OptionChoice *before = watch.atRest(each);
        if (OptionLabels::isPolicy(*each) && before != each->current())
            return {each, before, each->current()};
    }
    return {};
}

QString ChangeReport::causeText(const Cause &cause) const
{
    if (!cause.option || !cause.to)
        return QString();
    if (OptionLabels::isPolicy(*cause.option))
        return tr("The policy server");
    return labels.shortPhrase(*cause.to);
}

/// What the settings file or the PPD's default says and what was made of it.
ChangeReport::Moves ChangeReport::adjustments() const
{
    Moves list;
    const QList<bOption *> options = currentStore ? currentStore->optionList() : QList<bOption *>();
    for (bOption *option : options) {
        if (!option->isPpdOption())
            continue;
        OptionChoice *wanted = Tab::savedOrDefaultChoice(option);
        if (wanted && option->current() && wanted != option->current())
            list.append({option, wanted, option->current()});
    }
    return list;
}

ChangeReport::Moves ChangeReport::stillLost(const Cause &cause) const
{
    const bool isTakenBack = cause.option && cause.option == lastCause.option &&
                             cause.from == lastCause.to && cause.to == lastCause.from;
    Moves lost;
    if (isTakenBack)
        std::copy_if(lastMoves.cbegin(), lastMoves.cend(), std::back_inserter(lost),
                     [](const ChangeWatch::Move &move) {
                         return move.from && move.to && move.option->current() == move.to &&
                                !move.from->isBlocked();
                     });
    return lost;
}

// In words

ChangeReport::Moves ChangeReport::toTell(const Moves &moves) const
{
    const QStringList keywords = keywordsOf(moves);
    const QStringList followers = labels.followersAmong(keywords);
    Moves list;
    const QStringList order = labels.inOrder(keywords);
    for (const QString &keyword : order) {
        const ChangeWatch::Move &move = moves[keywords.indexOf(keyword)];
        if (move.to && !followers.contains(keyword))
            list.append(move);
    }
    return list;
}

QStringList ChangeReport::items(const Moves &moves, bool before) const
{
    QStringList list;
    const bool off = areOff(moves);
    for (const ChangeWatch::Move &move : moves) {
        const QString text =
            off ? labels.label(*move.option) : labels.fullPhrase(before ? *move.from : *move.to);
        if (!list.contains(text))
            list.append(text);
    }
    return list;
}

QString ChangeReport::movesSentence(const QString &causeText, bool off, const QString &list)
{
    if (causeText.isEmpty())
        return off ? tr("Switched off: %1.").arg(list) : tr("Changed: %1.").arg(list);
    return off ? tr("%1 switched off: %2.").arg(causeText, list)
               : tr("%1 changed: %2.").arg(causeText, list);
}

QString ChangeReport::lostSentence(const QString &list) const
{
    const Moves lost = toTell(offered);
    if (areOff(lost))
        return lost.size() == 1 ? tr("%1 was switched off by %2.").arg(list, lostBy)
                                : tr("%1 were switched off by %2.").arg(list, lostBy);
    return tr("Changed by %2: %1.").arg(list, lostBy);
}

void ChangeReport::tell(const Moves &moves, const QString &causeText)
{
    const Moves lost = toTell(offered);
    const QString link = lost.isEmpty() ? QString()
                         : areOff(lost) ? tr("Switch on again")
                                        : tr("Change back");
    const QString wholeLoss =
        lost.isEmpty() ? QString() : lostSentence(items(lost, true).join(QStringLiteral(", ")));
    const bool off = areOff(moves);
    if (moves.isEmpty() && lost.isEmpty())
        notice->forget();
    else if (moves.isEmpty())
        notice->tell([this](const QString &list) { return lostSentence(list); }, items(lost, true),
                     link);
    else if (startingOver)
        notice->tell(
            [](const QString &list) { return tr("Adjusted to this printer: %1.").arg(list); },
            items(moves, false));
    else
        notice->tell(
            [=](const QString &list) {
                return QStringList{movesSentence(causeText, off, list), wholeLoss}
                    .join(QLatin1Char(' '))
                    .trimmed();
            },
            items(moves, false), link);
}

void ChangeReport::markTabs(const Moves &moves)
{
    for (Tab *page : pages) {
        const bool moved = std::any_of(moves.cbegin(), moves.cend(), [&](const auto &move) {
            return page->keywords().contains(move.option->key());
        });
        if (moved)
            tabs->setDot(page);
    }
}
