// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/windows.h"
#include "data/settings.h"
#include "forms/startup_progress.h"
#include "platform/controls/twips.h"
#include "reader/bible_window.h"
#include "support/active_window.h"
#include "support/test_services.h"
#include "support/tiny_data.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QToolBar>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class NoSplash : public StartupProgress
{
public:
    void showSplash() override {}
    void setProgress(int) override {}
    void hideSplash() override {}
};

/// The reader with the windows that it really opens.
class WindowsTest : public testing::Test
{
protected:
    WindowsTest()
    {
        windows.setReader(reader);
        EXPECT_TRUE(reader.Form_Load(splash));
        reader.show();
    }

    /// The windows in view that have a name.
    static QList<QWidget*> shown(const QString& name)
    {
        QList<QWidget*> found;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->objectName() == name)
                found << window;
        return found;
    }
    void click(QStringView toolId) { reader.atbar.tool(toolId).action()->trigger(); }

    TestServices services;
    TinyData data{services};
    NoSplash splash;
    Windows windows{services.services, services.state};
    frm성서 reader{services.services, services.state, windows};
};

TEST_F(WindowsTest, TheSearchOpensOnceWhereItStoodAndGoesWithTheReader)
{
    services.registry.OpenKey(settingsPath(settings_key::kBibleSearch));
    for (const auto& [name, pixels] :
         {std::pair{u"Left"_s, 30}, {u"Top"_s, 20}, {u"Width"_s, 700}, {u"Height"_s, 560}})
        services.registry.SetValue(name, QString::number(toTwips(pixels)), ValueKind::Long);
    click(u"ID_검색");
    click(u"ID_검색");
    const QList<QWidget*> search = shown(u"frm성서검색"_s);
    ASSERT_EQ(search.size(), 1);
    EXPECT_EQ(search[0]->pos(), QPoint(30, 20));
    EXPECT_EQ(search[0]->size(), QSize(700, 560));

    search[0]->move(50, 40);
    reader.close();
    EXPECT_FALSE(search[0]->isVisible());
    services.registry.OpenKey(settingsPath(settings_key::kBibleSearch));
    EXPECT_EQ(services.registry.GetValue(u"Left"_s, ValueKind::Long), QString::number(toTwips(50)));
}

TEST_F(WindowsTest, EachToolRunsItsOwnDialog)
{
    struct Row
    {
        QStringView tool;
        QString dialog;
    };
    const Row rows[] = {{u"ID_환경설정", u"dlog환경설정"_s},
                        {u"ID_루멘스크립트에대하여", u"frmAbout"_s},
                        {u"ID_본문추출", u"dlog성서추출"_s},
                        {u"ID_사용자역본환경설정", u"dlogUserVersionPref"_s}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.dialog.toStdString());
        services.modal.shown.clear();
        services.modal.expect([](QDialog& dialog) { dialog.reject(); });
        click(row.tool);
        EXPECT_EQ(services.modal.shown, QStringList{row.dialog});
    }
    reader.close();
}

TEST_F(WindowsTest, ASyllableUnderCompositionStaysInItsBoxBehindATool)
{
    showActive(reader);
    QLineEdit* const box = reader.quickMove->tx즉석이동;
    box->setFocus();
    QInputMethodEvent syllable(u"창"_s, {});
    QCoreApplication::sendEvent(box, &syllable);
    QToolBar* const bar = reader.findChild<QToolBar*>();
    ASSERT_NE(bar, nullptr);
    QWidget* const next = bar->widgetForAction(reader.atbar.tool(u"ID_다음장").action());
    ASSERT_NE(next, nullptr);
    QTest::mouseClick(next, Qt::LeftButton);
    EXPECT_EQ(reader.model.chapter(), 2);
    EXPECT_EQ(box->text(), u"창"_s);
    reader.close();
}

} // namespace
} // namespace lumen
