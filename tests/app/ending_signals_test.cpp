// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/ending_signals.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>

#include <csignal>

namespace lumen {
namespace {

TEST(EndingSignalsTest, OpenDialogsAreDismissedBeforeTheMainWindow)
{
    QWidget window;
    window.show();
    const EndingSignals signals([&window] { closeWithDialogs(window); });
    QDialog dialog(&window);
    int answer = QDialog::Accepted;
    bool windowOutlivedTheBox = false;
    QTimer::singleShot(0, &dialog, [&] {
        QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No, &dialog);
        QTimer::singleShot(0, &box, [] { std::raise(SIGTERM); });
        answer = box.exec();
        windowOutlivedTheBox = window.isVisible();
    });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(answer, QMessageBox::No);
    EXPECT_TRUE(windowOutlivedTheBox);
    QCoreApplication::processEvents();
    EXPECT_FALSE(window.isVisible());
}

TEST(EndingSignalsTest, ADialogThatStaysDoesNotKeepTheMainWindow)
{
    class Stubborn : public QDialog
    {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    };
    QWidget window;
    window.show();
    Stubborn dialog;
    dialog.setModal(true);
    dialog.show();
    closeWithDialogs(window);
    EXPECT_FALSE(window.isVisible());
}

} // namespace
} // namespace lumen
