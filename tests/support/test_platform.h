// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/html_help.h"
#include "platform/files/clock.h"
#include "platform/files/fonts.h"
#include "platform/files/process_list.h"
#include "platform/files/shell.h"

#include <QStringList>

#include <optional>

namespace lumen {

/// A clock that stands; a test moves it.
class FixedClock : public Clock
{
public:
    QDateTime now() const override { return time; }

    QDateTime time{QDate(2003, 5, 1), QTime(9, 30)};
};

/// Notes what would have been opened; a test may name a failure.
class RecordingShell : public Shell
{
public:
    Result<Done> open(const QString& target) override;
    bool hasWordProcessor() const override { return wordProcessor; }
    Result<Done> openInWordProcessor(const QByteArray& rtf) override
    {
        documents << rtf;
        return Done{};
    }

    QStringList opened;
    bool wordProcessor = true;
    QByteArrayList documents;
    std::optional<Failure> failure;
};

/// A clipboard of its own.
class MemoryClipboard : public Clipboard
{
public:
    void set(const ClipboardContent& value) override;
    QString plainText() const override { return content.plain; }

    ClipboardContent content;
    int setCount = 0;
};

class FixedProcessList : public ProcessList
{
public:
    QStringList names() const override { return processes; }

    QStringList processes;
};

/// Fonts that a test names; added files are noted and count one face each.
class TestFonts : public Fonts
{
public:
    int AddFontResource(const QString& path) override;
    QStringList families() const override { return offered; }

    QStringList added;
    QStringList offered;
    int facesPerFile = 1;
};

/// Notes the help pages that were asked for: their names, "index" and "search".
class RecordingHelp : public HtmlHelp
{
public:
    Result<Done> showPage(const QString& page) override { return note(page); }
    Result<Done> showIndex() override;
    Result<Done> showSearch() override;

    QStringList asked;
    std::optional<Failure> failure;

private:
    Result<Done> note(const QString& page);
};

} // namespace lumen
