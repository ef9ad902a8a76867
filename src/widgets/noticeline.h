#pragma once

#include <QLabel>
#include <QStringList>

#include <functional>

/// The line below the pages in which the panel says what it did by itself, and what it is doing.
///
/// It shows one line whatever its font and language: of a list as many items as there is room for,
/// the whole in its tool tip. Screen readers get it announced. It takes no room from the buttons
/// beside it.
class NoticeLine : public QLabel
{
    Q_OBJECT

public:
    explicit NoticeLine(QWidget *parent);

    /// Puts a list into words: "A6 switched off: LIST."
    using Sentence = std::function<QString(const QString &list)>;
    /// Tells of something, in plain text, with the text of a link behind it; linkActivated() says
    /// that it was followed. The tool tip names the keys of an undo for it, which are for the
    /// window to connect.
    void tell(const Sentence &sentence, const QStringList &items, const QString &link = QString());
    void forget();
    bool hasLink() const { return !link_.isEmpty(); }

    /// Stands in front of what is told until endWork().
    void showWork(const QString &text);
    void endWork();
    /// Says how things stand, before whatever else it shows; an empty text ends it.
    void showState(const QString &text);

protected:
    /// The link takes the focus: there is nothing else.
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QString listOf(int count) const;
    void showFitting();
    void announce();

    Sentence sentence_;
    QStringList items_;
    QString link_;
    QString work_;
    QString state_;
};
