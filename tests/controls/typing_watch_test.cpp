// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/typing_watch.h"
#include "support/active_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <functional>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// Tells when it is about to close or has become another state.
class EndingWindow : public QWidget
{
public:
    std::function<void()> onEnd;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        onEnd();
        QWidget::closeEvent(event);
    }
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::WindowStateChange && isMinimized())
            onEnd();
        QWidget::changeEvent(event);
    }
};

/// A window with boxes for a line and for a text, and a button that doesn't take the focus, as
/// those of the tool bars. "사" is written, "랑" is being composed.
class TypingWatchTest : public testing::Test
{
protected:
    TypingWatchTest()
    {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* widget : std::initializer_list<QWidget*>{&line, &text, &button, &other})
            layout->addWidget(widget);
        button.setFocusPolicy(Qt::NoFocus);
        window.onEnd = [this] { saved = written(); };
        showActive(window);
    }
    ~TypingWatchTest() override
    {
        for (QWidget* widget : std::initializer_list<QWidget*>{&line, &text, &button, &other})
            widget->setParent(nullptr);
    }

    static void compose(QWidget& box, const QString& syllable)
    {
        QInputMethodEvent event(syllable, {});
        QCoreApplication::sendEvent(&box, &event);
    }

    QString written() const { return line.text() + text.toPlainText(); }

    EndingWindow window;
    QString saved; ///< what a window would save when it ends
    QLineEdit line;
    QPlainTextEdit text;
    QPushButton button;
    QLineEdit other;
    TypingWatch watch{*QCoreApplication::instance()};
};

TEST_F(TypingWatchTest, WhateverComesFindsTheSyllableInItsBox)
{
    const struct
    {
        const char* name;
        std::function<void()> act;
    } events[] = {
        {"a button", [this] { QTest::mouseClick(&button, Qt::LeftButton); }},
        {"the wheel",
         [this] {
             QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
             QCoreApplication::sendEvent(&button, &wheel);
         }},
        {"a key of a menu",
         [this] {
             const QShortcut shortcut(Qt::CTRL | Qt::Key_F, &window);
             QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
         }},
        {"another box", [this] { other.setFocus(); }},
        {"disabled", [this] { QApplication::focusWidget()->setEnabled(false); }},
        {"minimised", [this] { window.setWindowState(Qt::WindowMinimized); }},
        {"closed", [this] { window.close(); }},
    };
    for (QWidget* box : std::initializer_list<QWidget*>{&line, &text})
        for (const auto& [name, act] : events) {
            SCOPED_TRACE(name);
            SCOPED_TRACE(box->metaObject()->className());
            box->setEnabled(true);
            window.setWindowState(Qt::WindowNoState);
            showActive(window);
            line.clear();
            text.clear();
            box->setFocus();
            compose(*box, u"사"_s);
            QInputMethodEvent done;
            done.setCommitString(u"사"_s);
            QCoreApplication::sendEvent(box, &done);
            compose(*box, u"라"_s);
            compose(*box, u"랑"_s);
            saved = u"사랑"_s;
            act();
            EXPECT_EQ(saved, u"사랑"_s);
            EXPECT_EQ(written(), u"사랑"_s);
            QTest::mouseClick(&other, Qt::LeftButton);
            EXPECT_EQ(written(), u"사랑"_s) << "once";
        }
    EXPECT_EQ(other.text(), QString());
}

TEST_F(TypingWatchTest, TypingOnKeepsComposing)
{
    line.setFocus();
    compose(line, u"라"_s);
    QTest::mouseMove(&button);
    QCoreApplication::processEvents();
    compose(line, u"랑"_s);
    EXPECT_EQ(line.text(), QString());
    watch.commit();
    EXPECT_EQ(line.text(), u"랑"_s);
}

} // namespace
} // namespace lumen
