// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/plain_scan.h"
#include "search/search_window.h"
#include "support/fake_reader.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QTest>

#include <optional>

namespace lumen {

/// Notes where the search window leads the reader.
class LedReader : public FakeReader
{
public:
    void goTo(int book, int chapter, int verse) override
    {
        calls << QStringLiteral("%1 %2:%3").arg(book).arg(chapter).arg(verse);
    }
    void bringToFront() override { calls << QStringLiteral("front"); }

    QStringList calls;
};

/// The search window over made-up versions: 개역한글 (101) with verses in every book, KJV (201) in
/// Genesis, BHS (301) with a few. 개역한자 (102) and all others are absent.
class SearchFixture : public testing::Test
{
protected:
    SearchFixture();

    /// Loads and shows the window; without a call there is none.
    frm성서검색& open();

    /// The same on the third tab.
    void openParsing();

    QLineEdit& box(const QString& name) { return control<QLineEdit>(name); }
    ComboBox& combo(const QString& name) { return control<ComboBox>(name); }
    void click(const QString& button);
    /// Replaces the text of a box as a typist does; Hangul comes as from an input method.
    void type(QLineEdit& box, const QString& text);
    void typeAndEnter(const QString& boxName, const QString& text);
    void pick(const QString& comboName, int index);
    /// Asks a widget for its menu, as the key does.
    static void contextMenu(QWidget& widget);
    void expectMissing(const QString& module);
    void expectNoDisc();
    QString panel(int number)
    {
        return control<QLabel>(QStringLiteral("sb상황판(%1)").arg(number)).text();
    }
    QString query() { return window->dacSearch().RecordSource; }
    /// The references and the texts of the rows in the grid.
    QStringList references() { return column(0); }
    QStringList texts() { return column(1); }
    /// Walks through all pages and gathers the references.
    QStringList allReferences();

    template <typename Control>
    Control& control(const QString& name)
    {
        auto* found = window->findChild<Control*>(name);
        if (!found)
            qFatal("no control %s", qPrintable(name));
        return *found;
    }

    TestServices test;
    LedReader reader;
    MadeBible korean;
    MadeBible kjv;
    MadeBible hebrew;
    std::optional<frm성서검색> window;

private:
    QStringList column(int col);
};

} // namespace lumen
