// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/error.h"
#include "panel/reference_panel.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QTabBar>
#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// Notes what the panel asks of it.
class RecordingTab : public PanelTab
{
public:
    RecordingTab(QStringView caption, QStringList& calls) : m_caption(caption), m_calls(calls) {}

    QStringView caption() const override { return m_caption; }
    QWidget* page() override { return m_page; }
    void enter() override
    {
        note(u"enter");
        setStatus(m_caption.toString() + u" 열림"_s);
    }
    void showPlace() override { note(u"place"); }
    void showSelection() override { note(u"selection"); }
    void leave() override
    {
        note(u"leave");
        if (leaveFails)
            throw JetError(ErrorNumber::kWriteFailed, u"디스크에 쓸 수 없습니다."_s);
    }

    bool leaveFails = false;

private:
    void note(QStringView what) { m_calls << m_caption.toString() + u' ' + what.toString(); }

    QStringView m_caption;
    QStringList& m_calls;
    QWidget* m_page = new QWidget;
};

class ReferencePanelTest : public testing::Test
{
protected:
    ReferencePanelTest()
    {
        panel.onStatus = [this](const QString& text) { statuses << text; };
        panel.onLayout = [this] { ++layouts; };
        panel.onHideTextBox = [this] { ++hidings; };
        auto tab = std::make_unique<RecordingTab>(panel_caption::kPersonalNotes, calls);
        notes = tab.get();
        panel.addTab(std::move(tab));
        panel.addTab(std::make_unique<RecordingTab>(panel_caption::kCrossReferences, calls));
        panel.resize(900, 300);
        panel.show();
    }

    void clickHeader(QStringView caption)
    {
        QTabBar& bar = *panel.sst관주사전->tabBar();
        for (int tab = 0; tab < bar.count(); ++tab)
            if (bar.tabText(tab) == caption)
                QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
    }
    void expandOn(QStringView caption)
    {
        panel.sst관주사전->selectCaption(caption.toString());
        panel.setState(PanelState::Expanded);
        calls.clear();
        statuses.clear();
        hidings = 0;
    }

    TestServices world;
    QStringList calls;
    QStringList statuses;
    int layouts = 0;
    int hidings = 0;
    RecordingTab* notes = nullptr;
    ReferencePanel panel{world.services};
};

TEST_F(ReferencePanelTest, CollapsedNothingIsLoaded)
{
    panel.sst관주사전->selectCaption(u"개인주석"_s);
    EXPECT_EQ(panel.state(), PanelState::Collapsed);
    panel.showPlace();
    panel.showSelection();
    EXPECT_EQ(calls, QStringList());
}

TEST_F(ReferencePanelTest, AClickOnATabOpensThePanelOnItAndASecondOneClosesIt)
{
    for (const QString& caption : {u"개인주석"_s, u"관주"_s}) {
        SCOPED_TRACE(caption.toStdString());
        layouts = 0;
        calls.clear();
        clickHeader(caption); // another than the current one
        EXPECT_EQ(panel.state(), PanelState::Expanded);
        EXPECT_EQ(panel.shownCaption(), caption);
        EXPECT_EQ(calls, QStringList{caption + u" enter"_s});
        EXPECT_EQ(statuses.last(), caption + u" 열림"_s);

        calls.clear();
        clickHeader(caption);
        EXPECT_EQ(panel.state(), PanelState::Collapsed);
        EXPECT_TRUE(calls.contains(caption + u" leave"_s));
        EXPECT_FALSE(calls.contains(caption + u" enter"_s));
        EXPECT_EQ(statuses.last(), QString());
        EXPECT_EQ(layouts, 2);

        clickHeader(caption); // the current one
        EXPECT_EQ(panel.state(), PanelState::Expanded);
        clickHeader(caption);
    }
}

TEST_F(ReferencePanelTest, ExpandedATabChangeLeavesOneAndEntersTheOther)
{
    expandOn(u"개인주석");
    clickHeader(u"관주");
    EXPECT_EQ(calls, (QStringList{u"개인주석 leave"_s, u"관주 enter"_s}));
    EXPECT_EQ(panel.state(), PanelState::Expanded);
    EXPECT_EQ(panel.shownCaption(), u"관주"_s);
    EXPECT_EQ(hidings, 1);
}

TEST_F(ReferencePanelTest, PlaceAndSelectionReachTheShownTabAlone)
{
    expandOn(u"개인주석");
    panel.showPlace();
    panel.showSelection();
    EXPECT_EQ(calls, (QStringList{u"개인주석 place"_s, u"개인주석 selection"_s}));
}

TEST_F(ReferencePanelTest, AFailedSaveIsToldAndKeepsThePanelOpen)
{
    expandOn(u"개인주석");
    notes->leaveFails = true;
    world.messages.expect(u"Lumenscript"_s, u"디스크에 쓸 수 없습니다."_s, 16);
    panel.toggle();
    EXPECT_EQ(panel.state(), PanelState::Expanded);
    EXPECT_EQ(layouts, 0);
    EXPECT_THROW(panel.leave(), JetError);
}

TEST_F(ReferencePanelTest, WhatCouldNotBeSavedIsTriedAgainFromAnotherTab)
{
    expandOn(u"개인주석");
    notes->leaveFails = true;
    world.messages.expect(u"Lumenscript"_s, u"디스크에 쓸 수 없습니다."_s, 16);
    clickHeader(u"관주");
    notes->leaveFails = false;
    calls.clear();
    panel.leave();
    EXPECT_TRUE(calls.contains(u"개인주석 leave"_s));
}

} // namespace
} // namespace lumen
