// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/reader_place.h"

#include <QList>
#include <QStringList>

namespace lumen {

/// A reader that stands where a test puts it and notes what it is asked to do.
class FakeReader : public ReaderPlace
{
public:
    int book() const override { return bookNumber; }
    int chapter() const override { return chapterNumber; }
    QString versionName(int slot) const override { return versions.value(slot); }
    int versionCode(int slot) const override { return codes.value(slot); }
    int GetCurVerse() const override { return range.section(QLatin1Char('-'), 0, 0).toInt(); }
    QString GetCurVerseRange() const override { return range; }
    void Proc이동(QString& reference) override { moves << reference; }
    void goTo(int book, int chapter, int verse) override
    {
        bookNumber = book;
        chapterNumber = chapter;
        range = QString::number(verse);
    }
    void applySettings() override { ++applications; }
    void bringToFront() override { ++raises; }

    int bookNumber = 0;
    int chapterNumber = 1;
    QString range = QStringLiteral("1");
    QStringList versions;
    QList<int> codes;
    QStringList moves;
    int applications = 0;
    int raises = 0;
};

} // namespace lumen
