// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/startup_progress.h"
#include "reader/bible_window.h"
#include "support/recording_opener.h"
#include "support/test_services.h"
#include "support/tiny_data.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include <memory>
#include <vector>

namespace lumen {

class RecordingSplash : public StartupProgress
{
public:
    void showSplash() override { visible = true; }
    void setProgress(int percent) override { steps.push_back(percent); }
    void hideSplash() override { visible = false; }
    bool visible = false;
    std::vector<int> steps;
};

/// The real reader window over the tiny Data folder, shown offscreen.
class ReaderTest : public testing::Test
{
protected:
    /// Loads and shows a reader where the settings tell; one from before is closed first, as at the
    /// program's end.
    void startAsLeft()
    {
        close();
        services.state.installed = {}; // the start takes stock itself
        reader = std::make_unique<frm성서>(services.services, services.state, opener);
        ASSERT_TRUE(reader->Form_Load(splash));
        reader->show();
        QApplication::processEvents();
    }
    /// The same in a window of one size for all tests.
    void start()
    {
        ASSERT_NO_FATAL_FAILURE(startAsLeft());
        reader->resize(1000, 700);
        QApplication::processEvents();
    }
    void close()
    {
        if (reader)
            reader->close();
        reader.reset();
    }

    void click(QStringView toolId) { reader->atbar.tool(toolId).action()->trigger(); }
    ComboBox& combo(QStringView toolId) { return reader->atbar.tool(toolId).combo(); }
    void pickVersion(QStringView comboId, int code)
    {
        combo(comboId).setListIndex(combo(comboId).findItemData(code));
    }
    QString stored(const QString& name)
    {
        services.registry.OpenKey(settingsPath(settings_key::kBible));
        return services.registry.GetValue(name, ValueKind::String);
    }
    void store(const QString& name, const QString& value)
    {
        services.registry.OpenKey(settingsPath(settings_key::kBible));
        services.registry.SetValue(name, value, ValueKind::String);
    }
    /// Types a reference into the quick-move box and presses Enter.
    void quickMove(const QString& reference)
    {
        QLineEdit* const box = reader->quickMove->tx즉석이동;
        box->setFocus();
        box->setText(reference);
        QTest::keyClick(box, Qt::Key_Return);
    }
    QString place() const { return reader->statusPanel2->text(); }
    /// What a copy of the selection gives as plain text.
    QString copied()
    {
        click(u"ID_UnicodeCopy");
        return services.clipboard.plainText();
    }
    void addBookmark() { QTest::mouseClick(reader->bookmarks->cmd책갈피추가, Qt::LeftButton); }
    /// A message box of a warning.
    void expectWarning(const QString& title, const QString& text)
    {
        services.messages.expect(title, text, 48);
    }
    static void drag(QWidget& on, const QPoint& from, const QPoint& by)
    {
        QTest::mousePress(&on, Qt::LeftButton, {}, from);
        QTest::mouseMove(&on, from + by);
        QTest::mouseRelease(&on, Qt::LeftButton, {}, from + by);
    }

    TestServices services;
    TinyData data{services};
    RecordingOpener opener;
    RecordingSplash splash;
    std::unique_ptr<frm성서> reader;
};

} // namespace lumen
