// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/export/record_export.h"

#include "data/app_state.h"
#include "data/module_path.h"
#include "forms/services.h"
#include "jet/engine.h"
#include "platform/controls/text/rich_text_box.h"
#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/file_dialogs.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/files/file_system.h"
#include "platform/files/shell.h"
#include "records/export/record_document.h"
#include "records/export/record_hwpx.h"
#include "records/export/record_page.h"
#include "records/messages.h"
#include "text/codepage949.h"

using namespace Qt::StringLiterals;

namespace lumen {

struct RecordExport::FileKind
{
    QStringView title;
    QStringView filter;
    QStringView quietTimeFilter; ///< "" where it is the same
    QStringView extension;
    bool proposesTitle = false;
};

const RecordExport::FileKind RecordExport::kHwp{u"HWP Format으로 추출", u"HWP 파일(*.hwp)|*.hwp",
                                                u"hwp 파일(*.hwp)|*.hwp", u".hwp"};
const RecordExport::FileKind RecordExport::kRtf{u"Rich Text Format으로 추출",
                                                u"rtf파일(*.rtf)|*.rtf", u"", u".rtf"};
const RecordExport::FileKind RecordExport::kText{u"Text 파일로 추출", u"텍스트 파일(*.txt)|*.txt",
                                                 u"", u".txt"};
const RecordExport::FileKind RecordExport::kHwpx{u"한글 문서(HWPX)로 추출",
                                                 u"한글 문서(*.hwpx)|*.hwpx", u"", u".hwpx", true};
const RecordExport::FileKind RecordExport::kOdt{u"ODT 문서로 추출", u"ODT 문서(*.odt)|*.odt", u"",
                                                u".odt", true};
const RecordExport::FileKind RecordExport::kPdf{u"PDF 문서로 추출", u"PDF 문서(*.pdf)|*.pdf", u"",
                                                u".pdf", true};

namespace {

/// The composed record as the invisible box shows it, which takes a text that begins as RTF for
/// RTF.
std::unique_ptr<RichTextBox> printBox(const QString& merged)
{
    auto box = std::make_unique<RichTextBox>();
    box->setText(merged);
    return box;
}

QString withLineEnds(QString text)
{
    return text.replace(u'\n', u"\r\n"_s);
}

/// A name that every file system takes.
QString safeName(QString title)
{
    for (QChar& letter : title)
        if (letter < u' ' || u"/\\:*?\"<>|"_s.contains(letter))
            letter = u' ';
    return title.simplified().left(80);
}

} // namespace

RecordExport::RecordExport(const RecordProfile& profile, Services& services, const AppState& state,
                           const RecordBoxes& boxes, QWidget* parent)
    : m_profile(profile), m_services(services), m_state(state), m_boxes(boxes), m_parent(parent)
{
}

QString RecordExport::mergedRtf() const
{
    return MergeAllContent(m_profile, m_boxes);
}

void RecordExport::ProcMS워드로추출(const RichTextBox* current)
{
    if (!m_services.shell.hasWordProcessor()) {
        m_services.messages.show(m_parent, messages::kNoWordProcessor);
        return;
    }
    Answer answer = Answer::No;
    if (current && current->SelLength() > 0)
        answer = m_services.messages.show(m_parent, messages::kExportSelection);
    if (answer == Answer::Cancel)
        return;
    QByteArray rtf;
    QString plain;
    if (answer == Answer::Yes) {
        // The plain form is the whole box: who pastes takes the formatted one first.
        rtf = current->SelRTF().toLatin1();
        plain = current->Text();
    } else {
        const auto box = printBox(mergedRtf());
        box->selectAll();
        rtf = box->SelRTF().toLatin1();
        plain = box->Text();
    }
    m_services.clipboard.set({plain, {}, rtf});
    const Result<Done> opened = m_services.shell.openInWordProcessor(rtf);
    if (!opened && onWritten)
        onWritten(opened.failure().detail, false);
}

bool RecordExport::mayOverwrite(const QString& path)
{
    return !m_services.files.FileExists(path) ||
           m_services.messages.show(m_parent, messages::kExportOverwrite) == Answer::Yes;
}

std::optional<QString> RecordExport::askName(const FileKind& kind)
{
    m_asksBeforeOverwriting = true;
    const bool isQuietTime = !m_profile.hasPreachedDay() && !kind.quietTimeFilter.isEmpty();
    SaveRequest request;
    request.title = kind.title.toString();
    request.filter = (isQuietTime ? kind.quietTimeFilter : kind.filter).toString();
    if (kind.proposesTitle)
        request.name = safeName(m_boxes.plainText(kTitleText)) + kind.extension.toString();
    std::optional<QString> path = m_services.fileDialogs.save(m_parent, request);
    if (!path)
        return {};
    // The last four letters as they are: a name in capitals gets the extension a second time.
    if (path->right(kind.extension.size()) != kind.extension)
        path->append(kind.extension);
    return mayOverwrite(*path) ? path : std::nullopt;
}

void RecordExport::write(const QString& path, const QByteArray& bytes)
{
    const bool written = !bytes.isEmpty() && m_services.files.writeAll(path, bytes);
    if (onWritten)
        onWritten(path, written);
}

void RecordExport::ProcHWP로추출()
{
    if (const auto path = askName(kHwp))
        write(*path, printBox(mergedRtf())->writtenRtf());
}

void RecordExport::ProcRTF로추출()
{
    if (const auto path = askName(kRtf))
        write(*path, printBox(mergedRtf())->writtenRtf());
}

void RecordExport::Proc텍스트파일로추출()
{
    if (const auto path = askName(kText))
        write(*path, textFileContent(withLineEnds(printBox(mergedRtf())->Text())));
}

void RecordExport::saveAsPage()
{
    const QString folder = joinedPath(m_state.AppPath, u"\\HTML");
    if (!m_services.files.FolderExists(folder))
        ignoreFailure(m_services.files.CreateFolder(folder), "the dialog opens elsewhere then");
    const QString page = recordPage(m_boxes);
    SaveRequest request;
    request.name = m_boxes.plainText(kTitleText).trimmed() + u".htm"_s;
    request.title = u"HTML 문서로 저장"_s;
    request.folder = m_services.jet.paths().nativePath(folder);
    request.filter = u"HTML 문서(*.htm, *.html)|*.htm;*.html"_s;
    const auto path = m_services.fileDialogs.save(m_parent, request);
    if (!path || (m_asksBeforeOverwriting && !mayOverwrite(*path)))
        return;
    if (m_services.files.writeAll(*path, pageBytes(page)))
        m_services.messages.show(m_parent, messages::kPageSaved);
    else if (onWritten)
        onWritten(*path, false);
}

void RecordExport::saveAsHwpx()
{
    if (const auto path = askName(kHwpx))
        write(*path, hwpxBytes(*recordDocument(m_profile, m_boxes, RecordFonts::AsWritten),
                               m_boxes.plainText(kTitleText).simplified()));
}

void RecordExport::saveAsOdt()
{
    if (const auto path = askName(kOdt))
        write(*path, odtBytes(*recordDocument(m_profile, m_boxes, RecordFonts::AsWritten)));
}

void RecordExport::saveAsPdf()
{
    if (const auto path = askName(kPdf))
        write(*path, pdfBytes(*recordDocument(m_profile, m_boxes, RecordFonts::Installed),
                              m_boxes.plainText(kTitleText)));
}

} // namespace lumen
