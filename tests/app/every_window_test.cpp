// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/windows.h"
#include "data/settings.h"
#include "forms/startup_progress.h"
#include "panel/hymnal/hymn_search_dialog.h"
#include "platform/controls/colors.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/grid/grid_delegate.h"
#include "reader/bible_window.h"
#include "records/record_profile.h"
#include "records/search/record_search_window.h"
#include "search/keyboard/keyboard_window.h"
#include "search/verses/book_selection_dialog.h"
#include "search/wizard/parsing_wizard.h"
#include "support/test_services.h"
#include "support/tiny_data.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTextBlock>
#include <QToolButton>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr double kReadable = 4.5;

class NoSplash : public StartupProgress
{
public:
    void showSplash() override {}
    void setProgress(int) override {}
    void hideSplash() override {}
};

QWidgetList visibleWindows()
{
    QWidgetList found = QApplication::topLevelWidgets();
    found.removeIf([](const QWidget* window) { return !window->isVisible(); });
    return found;
}

using Look = std::function<void(QWidget& window)>;

QString nameOf(const QWidget& widget)
{
    return widget.window()->objectName() + u' ' + widget.objectName() + u' ' +
           QString::fromLatin1(widget.metaObject()->className());
}

/// All windows of the program, each shown and handed to a look.
class EveryWindowTest : public testing::Test
{
protected:
    EveryWindowTest()
    {
        windows.setReader(reader);
        EXPECT_TRUE(reader.Form_Load(splash));
        reader.show();
    }
    ~EveryWindowTest() override
    {
        reader.close();
        QApplication::setPalette(m_before);
    }

    void lookAtReader(const Look& look)
    {
        if (!reader.atbar.tool(u"ID_Panel").checked())
            reader.atbar.tool(u"ID_Panel").action()->trigger();
        QApplication::processEvents();
        for (const auto tool : {u"ID_텍스트형식", u"ID_테이블형식"}) {
            reader.atbar.tool(tool).action()->trigger();
            look(reader);
        }
        for (QAction* const tab : reader.atbar.menu(u"ID_PanelTab")->actions()) {
            tab->trigger();
            look(reader);
        }
    }
    void lookAtDialogs(const Look& look)
    {
        services.modal.expect([&](QDialog& palette) { look(palette); });
        reader.atbar.tool(u"ID_Palette").action()->trigger();
        for (const WindowId dialog :
             {WindowId::Extract, WindowId::Preferences, WindowId::UserVersionPreferences,
              WindowId::About, WindowId::MailSettings}) {
            services.modal.expect([&](QDialog& shown) {
                look(shown);
                shown.reject();
            });
            windows.open(dialog);
        }
        QLineEdit box;
        frmHeGrkInput keyboard(services.services, box, OriginalLanguage::Hebrew);
        frmParsingWiz wizard;
        dlog책별선택 books(services.services);
        dlog찬송가검색 hymns(services.services, services.state, &reader);
        RecordSearchWindow sermons(record_profile::kSermon, services.services, services.state);
        RecordSearchWindow days(record_profile::kQuietTime, services.services, services.state);
        sermons.Form_Load();
        days.Form_Load();
        for (QWidget* window :
             std::initializer_list<QWidget*>{&keyboard, &wizard, &books, &hymns, &sermons, &days}) {
            window->show();
            look(*window);
            window->close();
        }
    }
    void lookAtAll(const Look& look)
    {
        lookAtReader(look);
        for (const WindowId window :
             {WindowId::Search, WindowId::Sermons, WindowId::QuietTime, WindowId::Illustrations,
              WindowId::AddressBook, WindowId::SendSermon, WindowId::Map}) {
            const QWidgetList before = visibleWindows();
            windows.open(window);
            QWidget* shown = nullptr;
            for (QWidget* const top : visibleWindows())
                if (!before.contains(top))
                    shown = top;
            ASSERT_NE(shown, nullptr) << static_cast<int>(window);
            for (QTabWidget* const tabs : shown->findChildren<QTabWidget*>())
                for (int tab = 0; tab < tabs->count(); ++tab) {
                    tabs->setCurrentIndex(tab);
                    look(*shown);
                }
            look(*shown);
        }
        lookAtDialogs(look);
    }

    TestServices services;
    TinyData data{services};
    NoSplash splash;
    Windows windows{services.services, services.state};
    frm성서 reader{services.services, services.state, windows};

private:
    QPalette m_before = QGuiApplication::palette();
};

struct Scheme
{
    const char* name;
    QRgb window, base, alternate, text, button, highlight, highlighted;
};
std::ostream& operator<<(std::ostream& out, const Scheme& scheme)
{
    return out << scheme.name;
}

QPalette paletteOf(const Scheme& scheme)
{
    QPalette look(QColor::fromRgb(scheme.button), QColor::fromRgb(scheme.window));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        look.setColor(role, QColor::fromRgb(scheme.text));
    look.setColor(QPalette::Base, QColor::fromRgb(scheme.base));
    look.setColor(QPalette::AlternateBase, QColor::fromRgb(scheme.alternate));
    look.setColor(QPalette::Highlight, QColor::fromRgb(scheme.highlight));
    look.setColor(QPalette::HighlightedText, QColor::fromRgb(scheme.highlighted));
    return look;
}

void expectReadable(const QColor& ground, const QColor& text, const QString& where)
{
    EXPECT_GE(contrast(ground, text), kReadable)
        << where.toStdString() << ": " << text.name().toStdString() << " on "
        << ground.name().toStdString();
}

void expectReadableCells(const FlexGrid& grid)
{
    const auto& painter = static_cast<const GridDelegate&>(*grid.itemDelegate());
    QStyleOptionViewItem option;
    option.palette = grid.palette();
    for (int row = 0; row < grid.model()->rowCount(); ++row)
        for (int col = 0; col < grid.model()->columnCount(); ++col) {
            const QModelIndex cell = grid.model()->index(row, col);
            expectReadable(painter.ground(option, cell), painter.textColor(option, cell),
                           nameOf(grid));
        }
}

void expectReadableText(const QTextEdit& box)
{
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            QTextCharFormat format = at.fragment().charFormat();
            const int start = at.fragment().position() - block.position();
            for (const auto& shown : block.layout()->formats())
                if (shown.start <= start && start < shown.start + shown.length)
                    format.merge(shown.format);
            const QPalette& look = box.palette();
            const auto color = [](const QBrush& brush, const QColor& otherwise) {
                return brush.style() == Qt::NoBrush ? otherwise : brush.color();
            };
            expectReadable(color(format.background(), look.color(QPalette::Base)),
                           color(format.foreground(), look.color(QPalette::Text)),
                           nameOf(box) + at.fragment().text());
        }
}

class SchemeTest : public EveryWindowTest, public testing::WithParamInterface<Scheme>
{
};

TEST_P(SchemeTest, EveryTextCanBeReadAtOnce)
{
    // The windows that stand already follow; the colours are those of a fresh program.
    QApplication::setPalette(paletteOf(GetParam()));
    QApplication::processEvents();
    EXPECT_EQ(reader.palette().color(QPalette::Window), QColor::fromRgb(GetParam().window));
    EXPECT_EQ(isDark(reader.txCont->palette()), GetParam().text != 0xff000000);
    int cells = 0;
    lookAtAll([&](QWidget& window) {
        QList<QWidget*> controls = window.findChildren<QWidget*>();
        for (QWidget* const control : controls) {
            if (!control->isVisible())
                continue;
            for (const auto group : {QPalette::Active, QPalette::Inactive})
                for (const auto& [ground, text] :
                     {std::pair{QPalette::Base, QPalette::Text},
                      {QPalette::Window, QPalette::WindowText},
                      {QPalette::Button, QPalette::ButtonText},
                      {QPalette::Highlight, QPalette::HighlightedText}})
                    expectReadable(control->palette().color(group, ground),
                                   control->palette().color(group, text), nameOf(*control));
            if (const auto* const grid = dynamic_cast<FlexGrid*>(control)) {
                expectReadableCells(*grid);
                cells += grid->Rows();
            } else if (const auto* const box = qobject_cast<QTextEdit*>(control)) {
                expectReadableText(*box);
            }
        }
    });
    EXPECT_GT(cells, 30) << "the chapter was there";
}

INSTANTIATE_TEST_SUITE_P(Desktops, SchemeTest,
                         testing::Values(Scheme{"Light", 0xffefefef, 0xffffffff, 0xfff7f7f7,
                                                0xff000000, 0xffefefef, 0xff2060a0, 0xffffffff},
                                         Scheme{"Dark", 0xff2d2d2d, 0xff1e1e1e, 0xff262626,
                                                0xffe6e6e6, 0xff353535, 0xff15539e, 0xffffffff},
                                         Scheme{"Black", 0xff000000, 0xff000000, 0xff000000,
                                                0xffffffff, 0xff000000, 0xffffff00, 0xff000000}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(EveryWindowTest, EveryControlHasANameAndARole)
{
    lookAtAll([](QWidget& window) {
        for (QWidget* const control : window.findChildren<QWidget*>()) {
            if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus ||
                control->focusProxy() != nullptr)
                continue;
            QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(control);
            ASSERT_NE(spoken, nullptr);
            // What only holds a control's parts is not met by itself.
            const QAccessible::Role role = spoken->role();
            EXPECT_NE(role, QAccessible::NoRole) << nameOf(*control).toStdString();
            if (control->objectName().startsWith(u"qt_") || role == QAccessible::Client)
                continue;
            EXPECT_NE(spoken->text(QAccessible::Name).trimmed(), QString())
                << nameOf(*control).toStdString() << " role " << role;
            // The value in a box would pass for its name.
            if (qobject_cast<QComboBox*>(control)) {
                EXPECT_TRUE(!control->accessibleName().isEmpty() ||
                            !spoken->relations(QAccessible::Label).isEmpty())
                    << nameOf(*control).toStdString();
            }
        }
    });
}

TEST_F(EveryWindowTest, VersesAreSpokenWithTheirNumbersAndLanguages)
{
    reader.atbar.tool(u"ID_대역본1-301").action()->trigger();
    QAccessibleInterface* const page = QAccessible::queryAccessibleInterface(reader.txCont);
    QAccessibleTextInterface* const text = page->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->text(0, text->characterCount()).contains(TinyData::text(101, 0, 1, 2)));
    EXPECT_EQ(page->text(QAccessible::Description),
              u"창세기 1장: 개역한글, 한국어; 대역본1 - BHS, 히브리어"_s);

    reader.atbar.tool(u"ID_테이블형식").action()->trigger();
    QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(reader.hflex본문);
    int hebrew = 0;
    for (int row = 0; row < grid->tableInterface()->rowCount(); ++row) {
        const auto spoken = [&](int col, QAccessible::Text what) {
            return grid->tableInterface()->cellAt(row, col)->text(what);
        };
        const int verse = spoken(1, QAccessible::Name).toInt();
        if (verse == 0)
            continue; // a heading
        EXPECT_EQ(spoken(2, QAccessible::Description), u"%1절, 개역한글, 한국어"_s.arg(verse));
        EXPECT_TRUE(spoken(2, QAccessible::Name).contains(TinyData::text(101, 0, 1, verse)));
        for (const QChar letter : spoken(3, QAccessible::Name))
            hebrew += letter.script() == QChar::Script_Hebrew;
    }
    EXPECT_GT(hebrew, 100) << "not the codes of its font";
}

TEST_F(EveryWindowTest, NoTextIsCut)
{
    lookAtAll([](QWidget& window) {
        QApplication::processEvents();
        for (QWidget* const control : window.findChildren<QWidget*>()) {
            const auto* const label = qobject_cast<QLabel*>(control);
            const bool shows = (label && !dynamic_cast<ElidedLabel*>(control)) ||
                               qobject_cast<QAbstractButton*>(control) ||
                               qobject_cast<QComboBox*>(control);
            if (!control->isVisible() || !shows || control->objectName().startsWith(u"qt_"))
                continue;
            QSize needed = control->minimumSizeHint();
            // Styles would have buttons wider than their texts; keys and books stand close.
            if (const auto* const button = qobject_cast<QAbstractButton*>(control))
                needed = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
            if (const auto* const tool = qobject_cast<QToolButton*>(control);
                tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull())
                continue;
            EXPECT_TRUE(control->width() >= needed.width() && control->height() >= needed.height())
                << nameOf(*control).toStdString() << ' ' << control->width() << 'x'
                << control->height() << " of " << needed.width() << 'x' << needed.height();
        }
    });
}

} // namespace
} // namespace lumen
