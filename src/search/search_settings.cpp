// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_settings.h"

#include "data/settings_table.h"
#include "platform/registry/registry_store.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kLargestSize = 150'000; // twips: 10,000 pixels of 96 an inch

int readSize(const RegistryStore& registry, const QString& name)
{
    const int size = readNumber(registry, name, 0);
    return size > kLargestSize ? 0 : std::max(0, size);
}

void writeSize(RegistryStore& registry, const QString& name, int twips)
{
    if (twips > 0)
        writeNumber(registry, name, twips);
}

} // namespace

SearchSettings readSearchSettings(RegistryStore& registry)
{
    registry.OpenKey(settingsPath(settings_key::kBibleSearch));
    return {.ResultWidth = readSize(registry, u"ResultWidth"_s),
            .VerseHeight = readSize(registry, u"VerseHeight"_s),
            .ParsingHeight = readSize(registry, u"ParsingHeight"_s),
            .StrongWidth = readSize(registry, u"StrongWidth"_s),
            .MarkHits = readSwitch(registry, u"MarkHits"_s, true)};
}

void saveSearchSettings(RegistryStore& registry, const SearchSettings& settings)
{
    registry.OpenKey(settingsPath(settings_key::kBibleSearch));
    writeSize(registry, u"ResultWidth"_s, settings.ResultWidth);
    writeSize(registry, u"VerseHeight"_s, settings.VerseHeight);
    writeSize(registry, u"ParsingHeight"_s, settings.ParsingHeight);
    writeSize(registry, u"StrongWidth"_s, settings.StrongWidth);
    writeSwitch(registry, u"MarkHits"_s, settings.MarkHits);
}

} // namespace lumen
