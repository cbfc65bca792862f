// SPDX-License-Identifier: MIT
#include "Preset/PresetInfo.h"

#include <algorithm>

#include "Preset/QDBrushManager.h"

namespace dabcanvas {
namespace {

struct Row {
    quint32 id;
    const char* method;  // as the records of settings have one
    QString PresetInfo::*text;
};
constexpr quint32 kTags = 0xA201;
constexpr Row kTexts[] = {{0xA202, "presetAbout", &PresetInfo::about},
                          {0xA203, "presetAuthor", &PresetInfo::author},
                          {0xA204, "presetLicence", &PresetInfo::licence}};

// Not as text, which a file keeps up to U+00FF alone.
void put(BrushParams& params, quint32 id, const char* method, const QString& text) {
    params.removeIf(
        [id](const BrushParam& param) { return static_cast<quint32>(BrushRecords::key(param)) == id; });
    if (!text.isEmpty()) {
        params.append(QDBrushManager::paramWithID(static_cast<int>(id), QString::fromLatin1(method),
                                                  text.toUtf8(), kXBFData));
    }
}

QString textOf(const BrushParams& params, quint32 id) {
    return QString::fromUtf8(BrushRecords::paramValueForKey(params, id).toByteArray());
}

}  // namespace

bool isPresetInfo(std::uint32_t id) {
    return id == kTags ||
           std::any_of(std::begin(kTexts), std::end(kTexts), [id](const Row& row) { return row.id == id; });
}

PresetInfo infoOfParams(const BrushParams& params) {
    PresetInfo info;
    for (const QString& tag : textOf(params, kTags).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (const QString name = tag.simplified(); !name.isEmpty()) {
            info.tags.append(name);
        }
    }
    for (const Row& row : kTexts) {
        info.*row.text = textOf(params, row.id);
    }
    return info;
}

void setInfoOfParams(BrushParams& params, const PresetInfo& info) {
    put(params, kTags, "presetTags", info.tags.join(QLatin1Char(',')));
    for (const Row& row : kTexts) {
        put(params, row.id, row.method, info.*row.text);
    }
}

}  // namespace dabcanvas
