#include "pages/watermark/customwatermarks.h"

namespace {

const QLatin1String storeKey("CustomWatermarkStore"); // a line for each
const QLatin1String selectedKey("CustomWatermarkSet");

} // namespace

bool CustomWatermarks::load()
{
    clear();
    const QStringList lines = readSettingValues(storeKey);
    for (const QString &line : lines) {
        const Watermark::Record record = Watermark::fromLine(line);
        // An entry without a text would read as the separator of the list.
        if (!record.name.isEmpty())
            insert(record.name, record.look);
    }
    return !lines.isEmpty();
}

bool CustomWatermarks::isCustom(const QString &name) const
{
    return !name.isEmpty() && (contains(name) || !Watermark::isBuiltInText(name));
}

QString CustomWatermarks::savedSelection()
{
    return readSetting(selectedKey);
}

void CustomWatermarks::save(Settings *settings, const QString &selected) const
{
    for (auto entry = looks.cbegin(); entry != looks.cend(); ++entry)
        settings->insert(storeKey, Watermark::toLine({entry.key(), entry.value()}));
    if (!selected.isEmpty())
        settings->insert(selectedKey, selected);
}
