// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <functional>

class QWidget;

namespace lumen {

/// The captions of the reference panel's tabs in their order; a tab is told by its caption.
namespace panel_caption {
inline constexpr QStringView kCrossReferences = u"관주";
inline constexpr QStringView kBibleDictionary = u"성경사전";
inline constexpr QStringView kConcordance = u"성구사전";
inline constexpr QStringView kEnglishDictionary = u"영한영사전";
inline constexpr QStringView kMatthewHenry = u"메튜헨리주석";
inline constexpr QStringView kWesley = u"웨슬리주석";
inline constexpr QStringView kPersonalNotes = u"개인주석";
inline constexpr QStringView kWordAnalysis = u"원전분해";
inline constexpr QStringView kUtilities = u"유틸리티";
inline constexpr QStringView kHymnal = u"찬송가";
} // namespace panel_caption

inline constexpr std::array kPanelCaptions{
    panel_caption::kCrossReferences, panel_caption::kBibleDictionary,
    panel_caption::kConcordance,     panel_caption::kEnglishDictionary,
    panel_caption::kMatthewHenry,    panel_caption::kWesley,
    panel_caption::kPersonalNotes,   panel_caption::kWordAnalysis,
    panel_caption::kUtilities,       panel_caption::kHymnal,
};
inline constexpr int kPanelTabCount = static_cast<int>(kPanelCaptions.size());

/// What fills one tab of the reference panel. The panel calls it only while it is expanded. All
/// functions may throw a JetError; the caller's guard shows it.
class PanelTab
{
public:
    virtual ~PanelTab() = default;

    virtual QStringView caption() const = 0;
    /// The page with the tab's controls; the panel becomes its parent and owner.
    virtual QWidget* page() = 0;

    /// The tab has come on show. It tells the first status panel what it has found, or clears it.
    virtual void enter() = 0;
    /// The reader stands at another place, or has filled the same one anew.
    virtual void showPlace() = 0;
    /// Other verses of the same chapter are selected.
    virtual void showSelection() {}
    /// Another tab, place or window state comes: what the user typed has to be stored now.
    virtual void leave() {}
    /// The program ends: what the tab itself has opened is freed.
    virtual void close() {}

    /// Puts a text into the first panel of the status bar; "" clears it. Set by the panel.
    std::function<void(const QString&)> setStatus;
    /// Brings this tab on show, as a click on its header would. Set by the panel.
    std::function<void()> bringOnShow;
};

} // namespace lumen
