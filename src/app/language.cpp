#include "app/language.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>
#include <clocale>
#include <iterator>

namespace {

struct Language
{
    const char *code;
    const char *catalogue;
};

constexpr Language languages[] = {
    {"en", ":/strings/english"}, {"fr", ":/strings/french"},     {"de", ":/strings/german"},
    {"it", ":/strings/italian"}, {"pt", ":/strings/portuguese"}, {"es", ":/strings/spanish"},
};

struct StandardText
{
    const char *context, *text;
};

// Qt takes the texts from the platform's context, on GNOME from a second one; the button box has
// one of its own as well.
constexpr StandardText standardTexts[] = {
    {"QDialogButtonBox", QT_TRANSLATE_NOOP("QDialogButtonBox", "Apply")},
    {"QDialogButtonBox", QT_TRANSLATE_NOOP("QDialogButtonBox", "&Cancel")},
    {"QDialogButtonBox", QT_TRANSLATE_NOOP("QDialogButtonBox", "&OK")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "OK")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Apply")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Close")},
    {"QGnomeTheme", QT_TRANSLATE_NOOP("QGnomeTheme", "&OK")},
    {"QGnomeTheme", QT_TRANSLATE_NOOP("QGnomeTheme", "&Cancel")},
    {"QGnomeTheme", QT_TRANSLATE_NOOP("QGnomeTheme", "&Close")},
};

const Language *findLanguage(const QString &localeName)
{
    const QString code = localeName.section(QLatin1Char('_'), 0, 0);
    const auto *found =
        std::find_if(std::begin(languages), std::end(languages), [&](const Language &language) {
            return code == QLatin1String(language.code);
        });
    return found == std::end(languages) ? nullptr : found;
}

} // namespace

QString catalogueForLocale(const QString &localeName)
{
    const Language *language = findLanguage(localeName);
    return QLatin1String(language ? language->catalogue : languages[0].catalogue);
}

void alignPrintSystemLanguage(const QString &localeName)
{
    const QString locale = findLanguage(localeName) ? localeName : QStringLiteral("en_US");
    qputenv("LC_ALL", (locale + QStringLiteral(".UTF-8")).toLatin1());
    // libcups looks at the environment only while the process itself has no message locale.
    std::setlocale(LC_MESSAGES, "C");
}

void lookUpStandardButtons(const QTranslator &translator)
{
    for (const StandardText &text : standardTexts)
        translator.translate(text.context, text.text);
}
