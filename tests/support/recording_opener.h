// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/window_opener.h"

#include <QStringList>

#include <vector>

namespace lumen {

/// Writes down which windows were asked for.
class RecordingOpener : public WindowOpener
{
public:
    void open(WindowId window) override { opened.push_back(window); }
    void search(int version, const QString& words) override
    {
        searches << QString::number(version) + u' ' + words;
    }
    void openStrongList(const QString& language, const QString& number) override
    {
        strongLists << language + u' ' + number;
    }
    /// Inserts `verses`, as a user would who takes them.
    void openVerseInsertion(QWidget*, const std::function<void(const QString&)>& insert) override
    {
        insert(verses);
    }
    void openHomePage() override { ++homePages; }
    void endAtOnce() override { ++ends; }

    std::vector<WindowId> opened;
    QStringList strongLists;
    QStringList searches;
    QString verses;
    int homePages = 0;
    int ends = 0;
};

} // namespace lumen
