// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/rich_text_box.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// What is put into each text, in letters that no trial holds.
const QString kEdit = u"QXZEDITQXZ"_s;

/// The edit of scripts/rtf-trials: each RTF file of the folder LUMENSCRIPT_RTF_TRIALS is shown,
/// must come back to the letter, is edited at its end and written beside itself as .edited.rtf.
TEST(RtfTrialTest, FilesOfWordProcessorsAreShownAndWritten)
{
    const QString folder = qEnvironmentVariable("LUMENSCRIPT_RTF_TRIALS");
    if (folder.isEmpty())
        GTEST_SKIP() << "LUMENSCRIPT_RTF_TRIALS names no folder";
    QStringList names = QDir(folder).entryList({u"*.rtf"_s}, QDir::Files);
    names.removeIf([](const QString& name) { return name.endsWith(u".edited.rtf"_s); });
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        QFile file(folder + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString rtf = QString::fromLatin1(file.readAll());
        RichTextBox box;
        box.setTextRTF(rtf);
        ASSERT_EQ(box.TextRTF(), rtf);
        box.select(box.document()->characterCount(), 0);
        box.setSelText(kEdit);
        QFile edited(folder + u'/' + name.chopped(4) + u".edited.rtf"_s);
        ASSERT_TRUE(edited.open(QIODevice::WriteOnly));
        edited.write(box.TextRTF().toLatin1());
    }
}

} // namespace
} // namespace lumen
