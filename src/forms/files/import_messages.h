// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/import/import_talk.h"

#include <QHash>
#include <QSet>

#include <memory>

class QProgressDialog;

namespace lumen {

class MessageBoxes;

/// The import's questions as message boxes, each once a file and run, and a window with a way out
/// while an import takes long.
class ImportMessages : public ImportTalk
{
public:
    explicit ImportMessages(MessageBoxes& messages);
    ~ImportMessages() override;
    ImportMessages(const ImportMessages&) = delete;
    ImportMessages& operator=(const ImportMessages&) = delete;

    /// The user knows already that nothing is stored: that one file is only read goes without
    /// saying.
    void setNothingIsStored() { m_nothingIsStored = true; }

    bool takesIncomplete(const QString& path, const QStringList& losses) override;
    void isReadOnly(const QString& path, const QStringList& losses) override;
    bool goesOn(const QString& path, qint64 elapsedMs) override;
    void ended() override;

private:
    MessageBoxes& m_messages;
    bool m_nothingIsStored = false;
    QHash<QString, bool> m_answers;
    QSet<QString> m_told;
    std::unique_ptr<QProgressDialog> m_progress;
};

} // namespace lumen
