// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/extract_dialog.h"

#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/file_dialogs.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/files/file_system.h"
#include "tools/messages.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr VerseRangeFace kFace{u"dlog성서추출", u"본문 추출", u"cmd추출", u"추출(&X)",
                               messages::kNothingToExtract};

} // namespace

dlog성서추출::dlog성서추출(Services& services, const AppState& state, QWidget* parent)
    : VerseRangeDialog(services, state, kFace, parent)
{
    auto* target = new QGroupBox(u"추출할 곳"_s);
    auto* layout = new QVBoxLayout(target);
    layout->addWidget(opt클립보드);
    layout->addWidget(OptFile);
    ownControls().addWidget(target);
}

void dlog성서추출::Form_Load()
{
    VerseRangeDialog::Form_Load();
    opt클립보드->setChecked(settings().ToClip);
    OptFile->setChecked(!settings().ToClip);
}

void dlog성서추출::done(int result)
{
    settings().ToClip = opt클립보드->isChecked();
    VerseRangeDialog::done(result);
}

void dlog성서추출::deliver(const QString& text, const ExtractRange& range)
{
    MessageText question = messages::kExtractedToFile;
    if (opt클립보드->isChecked()) {
        services().clipboard.set({text, {}, {}});
        question = messages::kExtractedToClipboard;
    } else if (!writeFile(text, range)) {
        return;
    }
    if (services().messages.show(this, question) == Answer::No)
        close();
}

bool dlog성서추출::writeFile(const QString& text, const ExtractRange& range)
{
    const SaveRequest request{u"텍스트 파일로 추출"_s, u"텍스트 파일 (*.txt)|*.txt"_s, u".txt"_s,
                              extractFileName(range), settings().Folder};
    const auto path = services().fileDialogs.save(this, request);
    if (!path)
        return false;
    settings().Folder = path->first(std::max<qsizetype>(0, path->lastIndexOf(u'/')));
    if (services().files.FileExists(*path) &&
        services().messages.show(this, messages::kExtractOverwrite) == Answer::No)
        return false;
    if (services().files.writeAll(*path, extractFileContent(text)))
        return true;
    services().messages.show(this, messages::kExtractFileFailed);
    return false;
}

} // namespace lumen
