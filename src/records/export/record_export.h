// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "records/record_values.h"

#include <functional>
#include <optional>

class QWidget;

namespace lumen {

class RichTextBox;
struct AppState;
struct Services;

/// Hands the record on the screen to the outside world, as it stands in the boxes, be it stored or
/// not. What became of a file is told through `onWritten`.
class RecordExport
{
public:
    /// All references must outlive it; `parent` is the window that the dialogs belong to.
    RecordExport(const RecordProfile& profile, Services& services, const AppState& state,
                 const RecordBoxes& boxes, QWidget* parent);

    /// As a new document of the word processor; of the selection in `current` alone where the user
    /// wants that.
    void ProcMS워드로추출(const RichTextBox* current);
    /// RTF under the extension of the Hangul word processor, which reads it.
    void ProcHWP로추출();
    void ProcRTF로추출();
    void Proc텍스트파일로추출();
    void saveAsPage();
    void saveAsHwpx();
    void saveAsOdt();
    void saveAsPdf();

    std::function<void(const QString& path, bool written)> onWritten;

private:
    struct FileKind;
    static const FileKind kHwp;
    static const FileKind kRtf;
    static const FileKind kText;
    static const FileKind kHwpx;
    static const FileKind kOdt;
    static const FileKind kPdf;

    std::optional<QString> askName(const FileKind& kind);
    bool mayOverwrite(const QString& path);
    void write(const QString& path, const QByteArray& bytes);
    QString mergedRtf() const;

    const RecordProfile& m_profile;
    Services& m_services;
    const AppState& m_state;
    const RecordBoxes& m_boxes;
    QWidget* m_parent;
    /// The common dialog of the window keeps its flags: a page is only asked about after a file
    /// was.
    bool m_asksBeforeOverwriting = false;
};

} // namespace lumen
