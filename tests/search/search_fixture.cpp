// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_fixture.h"

#include "canon/canon_table.h"
#include "data/check_data.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// 600 verses in twelve chapters of Genesis: "n<word>" stands in the first so many verses.
constexpr int kGenesisVerses = 600;
constexpr int kVersesPerChapter = 50;

QString genesisText(int number)
{
    QString text = u"태초에 %1번째 말씀"_s.arg(number);
    const auto upTo = [&](int last, const QString& word) {
        if (number <= last)
            text += u' ' + word;
    };
    upTo(50, u"오십"_s);
    upTo(51, u"오십일"_s);
    upTo(100, u"백절"_s);
    upTo(501, u"오백일절"_s);
    if (number % 3 == 0)
        text += u" 셋째"_s;
    if (number % 5 == 0)
        text += u" 다섯째"_s;
    return text;
}

MadeBible koreanBible()
{
    MadeBible bible;
    for (int number = 1; number <= kGenesisVerses; ++number)
        bible << madeVerse(0, (number - 1) / kVersesPerChapter + 1,
                           (number - 1) % kVersesPerChapter + 1, genesisText(number));
    for (int book = 1; book < kBookCount; ++book)
        bible << madeVerse(book, 1, 1, u"은혜와 평강이 "_s + bookName(book))
              << madeVerse(book, 1, 2, u"평강이 있을지어다 "_s + bookName(book));
    return bible;
}

} // namespace

SearchFixture::SearchFixture()
{
    korean = koreanBible();
    kjv = {madeVerse(0, 1, 1, u"In the beginning was grace, and grace it was"_s),
           madeVerse(0, 1, 2, u"Grace and peace; the end's mark is [x] 100% a|b *"_s),
           madeVerse(0, 1, 3, u"And it was so"_s)};
    hebrew = {madeVerse(0, 1, 1, u"abc def"_s), madeVerse(0, 1, 2, u"ghi abc"_s)};
    writeVersion(test.folders.data(u"101.dts"_s), u"개역한글"_s, korean);
    writeVersion(test.folders.data(u"201.dts"_s), u"KJV"_s, kjv);
    writeVersion(test.folders.data(u"301.dts"_s), u"BHS"_s, hebrew);
}

frm성서검색& SearchFixture::open()
{
    CheckData(test.state, test.files, test.jet);
    window.emplace(test.services, test.state, reader);
    window->Form_Load();
    window->show();
    // Keys of tools work in the active window only.
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(&*window))
        qFatal("the window was never active");
    return *window;
}

void SearchFixture::openParsing()
{
    open();
    QTest::keyClick(&*window, Qt::Key_3, Qt::ControlModifier);
}

void SearchFixture::click(const QString& button)
{
    QTest::mouseClick(&control<QAbstractButton>(button), Qt::LeftButton);
}

void SearchFixture::type(QLineEdit& box, const QString& text)
{
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Delete);
    for (const QChar unit : text) {
        if (unit.unicode() > 0x20 && unit.unicode() < 0x7F) {
            QTest::keyClick(&box, unit.toLatin1());
            continue;
        }
        QInputMethodEvent committed;
        committed.setCommitString(QString(unit));
        QCoreApplication::sendEvent(&box, &committed);
    }
}

void SearchFixture::typeAndEnter(const QString& boxName, const QString& text)
{
    type(box(boxName), text);
    QTest::keyClick(&box(boxName), Qt::Key_Return);
}

void SearchFixture::pick(const QString& comboName, int index)
{
    ComboBox& list = combo(comboName);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int step = 0; step < index; ++step)
        QTest::keyClick(&list, Qt::Key_Down);
}

void SearchFixture::contextMenu(QWidget& widget)
{
    const QPoint place = widget.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &event);
}

void SearchFixture::expectMissing(const QString& module)
{
    test.messages.expect(u"Lumenscript"_s,
                         u"데이터베이스 파일을 찾을 수 없습니다.\n"_s + test.folders.data(module),
                         16);
}

void SearchFixture::expectNoDisc()
{
    test.messages.expect(u"CD 삽입 후 재실행 요망"_s,
                         u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s, 48);
}

QStringList SearchFixture::column(int col)
{
    QStringList cells;
    for (int row = 1; row < window->hflex결과->Rows(); ++row)
        cells << window->hflex결과->TextMatrix(row, col);
    return cells;
}

QStringList SearchFixture::allReferences()
{
    QStringList all;
    ComboBox& pages = combo(u"cb페이지"_s);
    for (int page = 0; page < pages.ListCount(); ++page) {
        pages.setListIndex(page);
        all << references();
    }
    return all;
}

} // namespace lumen
