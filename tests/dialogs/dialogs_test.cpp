// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/file_html_help.h"
#include "platform/dialogs/qt_clipboard.h"
#include "platform/dialogs/qt_file_dialogs.h"
#include "platform/dialogs/qt_modal.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Does something in the modal dialog that comes up next.
template <typename Dialog>
void whenUp(std::function<void(Dialog&)> user)
{
    QTimer::singleShot(0, qApp, [user = std::move(user)] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        user(*dialog);
    });
}

TEST(QtFileDialogs, AnExtensionIsAddedOnlyToANameWithoutOne)
{
    EXPECT_EQ(withExtension(u"/a/창세기 1장1~3절"_s, u".txt"_s), u"/a/창세기 1장1~3절.txt"_s);
    EXPECT_EQ(withExtension(u"/a/b.rtf"_s, u".txt"_s), u"/a/b.rtf"_s);
    EXPECT_EQ(withExtension(u"/a.b/c"_s, u"txt"_s), u"/a.b/c.txt"_s);
    EXPECT_EQ(withExtension(u"/a/c"_s, QString()), u"/a/c"_s);
}

TEST(QtFileDialogs, SavingGivesTheChosenNameAndAsksNothingAboutAnOldFile)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QTemporaryDir folder;
    QFile old(folder.filePath(u"old.txt"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    QtFileDialogs dialogs;
    const SaveRequest request{u"텍스트 파일로 추출"_s, u"텍스트 파일 (*.txt)|*.txt"_s, u".txt"_s,
                              u"창세기"_s};
    const auto choose = [&folder](const QString& name) {
        whenUp<QFileDialog>([&folder, name](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"텍스트 파일로 추출"_s);
            dialog.setDirectory(folder.path());
            dialog.selectFile(name);
            // Would open a question about the old file if the dialog asked one.
            static_cast<QDialog&>(dialog).accept();
        });
    };
    choose(u"new"_s);
    EXPECT_EQ(dialogs.save(nullptr, request), folder.filePath(u"new.txt"_s));
    choose(u"old.txt"_s);
    EXPECT_EQ(dialogs.save(nullptr, request), folder.filePath(u"old.txt"_s));
    whenUp<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.save(nullptr, request), std::nullopt);
}

TEST(QtClipboard, OneCopyCarriesEveryForm)
{
    QtClipboard clipboard;
    clipboard.set({u"태초에"_s, u"<p>태초에</p>"_s, "{\\rtf1 x}"});
    EXPECT_EQ(clipboard.plainText(), u"태초에"_s);
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data->html(), u"<p>태초에</p>"_s);
    EXPECT_EQ(data->data(u"text/rtf"_s), QByteArray("{\\rtf1 x}"));
    EXPECT_EQ(data->data(u"application/rtf"_s), QByteArray("{\\rtf1 x}"));

    clipboard.set({u"only text"_s, {}, {}});
    data = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data->text(), u"only text"_s);
    EXPECT_FALSE(data->hasHtml());
    EXPECT_FALSE(data->hasFormat(u"text/rtf"_s)) << "nothing is left of the copy before";
}

TEST(QtModal, GivesWhatTheDialogEndedWith)
{
    QtModal modal;
    QDialog dialog;
    QTimer::singleShot(0, &dialog, &QDialog::accept);
    EXPECT_EQ(modal.run(dialog), QDialog::Accepted);
    QTimer::singleShot(0, &dialog, &QDialog::reject);
    EXPECT_EQ(modal.run(dialog), QDialog::Rejected);

    bool ran = false;
    QMetaObject::invokeMethod(
        &dialog, [&ran] { ran = true; }, Qt::QueuedConnection);
    modal.letEventsRun();
    EXPECT_TRUE(ran);
}

TEST(FileHtmlHelp, PagesComeFromTheFirstFolderThatHasThem)
{
    const QTemporaryDir folder;
    const auto make = [&folder](const QString& name) {
        QDir().mkpath(QFileInfo(folder.filePath(name)).path());
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly);
    };
    ASSERT_TRUE(make(u"own/howtosearchbible.htm"_s));
    ASSERT_TRUE(make(u"shared/HowtoSearchBible.htm"_s));
    ASSERT_TRUE(make(u"shared/Index.htm"_s));
    RecordingShell shell;
    FileHtmlHelp help(shell, {folder.filePath(u"own"_s), folder.filePath(u"shared"_s)});
    EXPECT_TRUE(help.showPage(u"HowtoSearchBible.htm"_s));
    EXPECT_TRUE(help.showIndex());
    const Result<Done> search = help.showSearch();
    ASSERT_FALSE(search);
    EXPECT_EQ(search.failure().kind, FailureKind::NotFound);
    EXPECT_EQ(shell.opened, (QStringList{folder.filePath(u"own/howtosearchbible.htm"_s),
                                         folder.filePath(u"shared/Index.htm"_s)}));
    shell.failure = Failure{FailureKind::System, u"no browser"_s};
    EXPECT_EQ(help.showIndex().failure().kind, FailureKind::System);
}

} // namespace
} // namespace lumen
