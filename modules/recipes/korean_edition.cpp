// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/korean_edition.h"

#include "sources/json_readers.h"

#include <QJsonArray>
#include <QJsonObject>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kKorean = 101;
constexpr int kMixedScript = 102;

// How that edition says "saying"; the later ones have other words for it in every place.
constexpr QStringView kOldWords[] = {u"가라사대", u"가로되"};

// What the letters of a text are, and whether it words things as the old edition does.
class Script
{
public:
    void add(const QString& verse);

    bool isHangul() const { return m_hangul * 10 > m_letters * 9; }
    bool isMixed() const { return m_hanja * 20 > m_letters && m_hangul + m_hanja > m_other * 9; }
    bool isOldWording() const { return m_oldWords > 0; }

private:
    qsizetype m_letters = 0;
    qsizetype m_hangul = 0;
    qsizetype m_hanja = 0;
    qsizetype m_other = 0;
    qsizetype m_oldWords = 0;
};

void Script::add(const QString& verse)
{
    const QString text = verse.normalized(QString::NormalizationForm_C);
    for (const QChar c : text) {
        if (!c.isLetter())
            continue;
        ++m_letters;
        if (c.script() == QChar::Script_Hangul)
            ++m_hangul;
        else if (c.script() == QChar::Script_Han)
            ++m_hanja;
        else
            ++m_other;
    }
    for (const QStringView word : kOldWords)
        m_oldWords += text.count(word);
}

} // namespace

std::optional<int> koreanEdition(const QStringList& files)
{
    Script text;
    Script hangulText;
    for (const QString& file : files) {
        const auto document = readJsonFile(file);
        if (!document)
            continue; // told when the module is made
        const QJsonArray chapters = document.value().object()[u"chapters"_s].toArray();
        for (const auto& chapter : chapters) {
            const QJsonArray verses = chapter[u"verses"_s].toArray();
            for (const auto& verse : verses) {
                text.add(verse[u"text"_s].toString());
                hangulText.add(verse[u"hangulText"_s].toString());
            }
        }
    }
    if (text.isMixed() && hangulText.isHangul() && hangulText.isOldWording())
        return kMixedScript;
    return text.isHangul() && text.isOldWording() ? std::optional(kKorean) : std::nullopt;
}

} // namespace lumen
