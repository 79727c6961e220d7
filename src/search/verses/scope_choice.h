// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"

#include <QString>

#include <functional>

class QWidget;

namespace lumen {

class EasyPanel;
class ParsingPanel;
class PowerPanel;
class dlog책별선택;

/// The scope lists of the three tabs with their tags and the choice of single books. The easy and
/// the power tab share one scope: their lists mirror each other.
class ScopeChoice
{
public:
    ScopeChoice(Services& services, QWidget& window, EasyPanel& easy, PowerPanel& power,
                ParsingPanel& parsing);

    /// Fills the three lists; nothing is chosen afterwards.
    void Proc검색범위초기화();
    /// The click of the shared scope, also when the entry has been chosen before.
    void cb범위_Click();
    void cbParRange_Click();
    /// Chooses an entry of the shared scope, by list index.
    void choose(int index);

    /// A tag of the scope table or a comma list of book abbreviations.
    const QString& scopeTag() const { return m_scopeTag; }
    const QString& parsingScopeTag() const { return m_parsingScopeTag; }

    /// What the status bar says of the scope.
    std::function<void(const QString& text)> onScopeText;

private:
    void cmd책별선택_Click();
    void cmd책별선택2_Click();
    void chooseBooks();
    void chooseParsingBooks();
    void takeBooks(dlog책별선택& dialog);

    Services& m_services;
    QWidget& m_window;
    EasyPanel& m_easy;
    PowerPanel& m_power;
    ParsingPanel& m_parsing;
    QString m_scopeTag;
    QString m_parsingScopeTag;
};

} // namespace lumen
