// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/test_services.h"
#include "tools/preferences_dialog.h"

#include <gtest/gtest.h>

#include <QTabWidget>
#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class PreferencesDialogTest : public testing::Test
{
protected:
    PreferencesDialogTest()
    {
        world.fonts.offered = {u"Noto Sans"_s, u"굴림"_s, u"바탕체"_s};
        world.registry.OpenKey(kBible);
    }

    dlog환경설정& dialog()
    {
        if (!m_dialog) {
            m_dialog = std::make_unique<dlog환경설정>(world.services, reader);
            showActive(*m_dialog);
        }
        return *m_dialog;
    }
    void store(const QString& name, const QString& value)
    {
        world.registry.SetValue(name, value, ValueKind::String);
    }
    QString stored(const QString& name)
    {
        world.registry.OpenKey(kBible);
        return world.registry.GetValue(name, ValueKind::String);
    }
    static void click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }

    const QString kBible = u"HKEY_CURRENT_USER\\SOFTWARE\\ORVANE\\Lumenscript 2.0\\Bible"_s;
    TestServices world;
    FakeReader reader;

private:
    std::unique_ptr<dlog환경설정> m_dialog;
};

TEST_F(PreferencesDialogTest, ShowsWhatIsStoredAndTheDefaultsForTheRest)
{
    store(u"MainFont"_s, u"바탕체"_s);
    store(u"Ver2Color"_s, u"255"_s);
    store(u"CpFullName"_s, u"1"_s);
    EXPECT_EQ(dialog().cb본문서체->Text(), u"바탕체"_s);
    EXPECT_EQ(dialog().pic대역본2->BackColor(), 255U);
    EXPECT_EQ(dialog().pic대역본1->BackColor(), RGB(136, 33, 28));
    EXPECT_TRUE(dialog().chkFullName->isChecked());
    EXPECT_TRUE(dialog().chkCopyAddIndex->isChecked());
    EXPECT_FALSE(dialog().chkCrLf->isChecked());
}

TEST_F(PreferencesDialogTest, ApplyStoresAndTheReaderTakesItAtOnce)
{
    world.fileDialogs.answerColor(RGB(1, 2, 3));
    click(dialog().cmd바탕색);
    dialog().cb본문서체->setListIndex(dialog().cb본문서체->findItem(u"바탕체"_s));
    dialog().chkSep->click();
    EXPECT_EQ(stored(u"BackColor"_s), QString()) << "nothing is stored before";

    click(dialog().cmdApply);
    EXPECT_EQ(world.fileDialogs.colorRequests, QList<RgbLong>{RGB(255, 255, 255)});
    EXPECT_EQ(stored(u"BackColor"_s), u"197121"_s);
    EXPECT_EQ(stored(u"MainFont"_s), u"바탕체"_s);
    EXPECT_EQ(stored(u"CpFormalSep"_s), u"1"_s);
    EXPECT_EQ(stored(u"CpAddIndex"_s), u"1"_s);
    EXPECT_EQ(reader.applications, 1);
    EXPECT_TRUE(dialog().isVisible());

    click(dialog().cmd확인);
    EXPECT_EQ(reader.applications, 2);
    EXPECT_EQ(dialog().result(), QDialog::Accepted);
}

TEST_F(PreferencesDialogTest, ResetThenCancelChangesNothing)
{
    store(u"MainFont"_s, u"바탕체"_s);
    store(u"AltColor"_s, u"255"_s);
    store(u"CpAddVersion"_s, u"0"_s);
    click(dialog().cmd초기값);
    EXPECT_EQ(dialog().cb본문서체->Text(), u"굴림"_s);
    EXPECT_EQ(dialog().pic구분색->BackColor(), RGB(245, 245, 245));
    EXPECT_TRUE(dialog().chkAddVersion->isChecked());
    click(dialog().cmd취소);
    EXPECT_EQ(stored(u"MainFont"_s), u"바탕체"_s);
    EXPECT_EQ(stored(u"AltColor"_s), u"255"_s);
    EXPECT_EQ(stored(u"CpAddVersion"_s), u"0"_s);
    EXPECT_EQ(reader.applications, 0);
}

TEST_F(PreferencesDialogTest, WithoutAReferenceItsOptionsGreyOutAndKeepTheirTicks)
{
    dialog().findChild<QTabWidget*>(u"tabPages"_s)->setCurrentIndex(1);
    const std::array dependents{dialog().chkAddVersion, dialog().chkFullName,
                                dialog().chkParenthesis, dialog().chkSep, dialog().chkCrLf};
    click(dialog().chkCopyAddIndex);
    for (const QCheckBox* box : dependents)
        EXPECT_FALSE(box->isEnabled()) << box->objectName().toStdString();
    EXPECT_TRUE(dialog().chkAddVersion->isChecked());
    click(dialog().cmdApply);
    EXPECT_EQ(stored(u"CpAddIndex"_s), u"0"_s);
    EXPECT_EQ(stored(u"CpAddVersion"_s), u"1"_s);
    click(dialog().chkCopyAddIndex);
    for (const QCheckBox* box : dependents)
        EXPECT_TRUE(box->isEnabled()) << box->objectName().toStdString();
}

} // namespace
} // namespace lumen
