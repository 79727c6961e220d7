// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/module_tab.h"
#include "platform/controls/named.h"
#include "platform/controls/text/text_control.h"

#include <QLineEdit>
#include <QRadioButton>

#include <optional>

namespace lumen {

/// The tab "메튜헨리주석": the commentary on the reader's verse or on its chapter, in Korean where
/// the module has it and in English.
class MatthewHenry : public ModuleTab
{
public:
    explicit MatthewHenry(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kMatthewHenry; }
    void enter() override;
    void showPlace() override { ProcMH주석표시(); }
    void showSelection() override { ProcMH주석표시(); }

    /// Shows the commentary of the reader's place; moves within the verses of the section on show
    /// ask nothing.
    void ProcMH주석표시();

    QRadioButton* Opt절별주석 = named<QRadioButton>(u"Opt절별주석", u"절별 주석");
    QRadioButton* Opt장별주석 = named<QRadioButton>(u"Opt장별주석", u"장별 주석");
    QLineEdit* tx주석인덱스 = named<QLineEdit>(u"tx주석인덱스", u"주석 범위");
    TextControl* txMH주석한글 = named<TextControl>(u"txMH주석한글", u"한글 주석");
    TextControl* txMH주석영문 = named<TextControl>(u"txMH주석영문", u"영문 주석");

private:
    enum class Mode { Verse, Chapter };
    struct Shown
    {
        QString key;
        Mode mode = Mode::Verse;
        int firstVerse = 0;
        int lastVerse = 0;
    };

    void layOut();
    Mode mode() const;
    bool isShown(const QString& key, int verse) const;
    void showChapter(const QString& key);
    void showVerse(const QString& key, int verse);
    void clear();
    /// Boxes without a text give their room to the other.
    void showTexts(const QString& korean, const QString& english);

    std::optional<Shown> m_shown;
};

} // namespace lumen
