// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/keyboard/keyboard_window.h"

#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/message_boxes.h"
#include "search/messages.h"
#include "text/original/original_unicode.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kHebrewKeyPoints = 24;
constexpr int kHebrewTextPoints = 18;
constexpr int kGreekPoints = 20;
constexpr QSize kKeySize{48, 54};   // pixels
constexpr int kWideKeyWidth = 84;   // pixels
constexpr int kSpaceKeyWidth = 300; // pixels
constexpr int kKeyDistance = 3;     // pixels

// The keys of the rows: the upper begins with the last key of the array, the grave accent.
constexpr int kGraveKey = 46;
constexpr int kUpperEnd = 12;
constexpr int kSecondEnd = 25;
constexpr int kThirdEnd = 36;

bool isAsciiLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

} // namespace

frmHeGrkInput::frmHeGrkInput(Services& services, QLineEdit& searchBox, OriginalLanguage language,
                             QWidget* parent)
    : QDialog(parent), m_services(services), m_searchBox(searchBox)
{
    setObjectName(u"frmHeGrkInput"_s);
    setWindowTitle(u"히브리어/헬라어 자판"_s);
    layOut();
    (language == OriginalLanguage::Hebrew ? opHeb : opGrk)->setChecked(true);
    wire();
    changeLanguage();
    txInput->setFocus();
}

void frmHeGrkInput::layOut()
{
    auto* languages = new QHBoxLayout;
    languages->addWidget(opHeb);
    languages->addWidget(opGrk);
    languages->addStretch();
    languages->addWidget(keyConsonants);
    // The signs are typed as ASCII: an input method would get in the way.
    txInput->setAttribute(Qt::WA_InputMethodEnabled, false);

    auto* column = new QVBoxLayout(this);
    column->addLayout(languages);
    column->addWidget(txInput);
    column->addLayout(keyRows());
    column->addLayout(commandRow());
    cmdInput->setDefault(true);
}

QLayout* frmHeGrkInput::keyRows()
{
    for (QPushButton* key : ctKey)
        key->setFixedSize(kKeySize);
    for (QPushButton* key : {cmdKeyTab, cmdKeyCaps, cmdKeyShift, cmdKeyEnter, keyBack})
        key->setFixedSize(kWideKeyWidth, kKeySize.height());
    keySpace->setFixedSize(kSpaceKeyWidth, kKeySize.height());

    cmdKeyCaps->setCheckable(true);

    auto* rows = new QVBoxLayout;
    rows->setSpacing(kKeyDistance);
    const auto addRow = [&](QPushButton* first, int begin, int end, QPushButton* last) {
        auto* row = new QHBoxLayout;
        row->setSpacing(kKeyDistance);
        row->addWidget(first);
        for (int key = begin; key < end; ++key)
            row->addWidget(ctKey(key));
        if (last)
            row->addWidget(last);
        row->addStretch();
        rows->addLayout(row);
    };
    addRow(ctKey(kGraveKey), 0, kUpperEnd, keyBack);
    addRow(cmdKeyTab, kUpperEnd, kSecondEnd, nullptr);
    addRow(cmdKeyCaps, kSecondEnd, kThirdEnd, cmdKeyEnter);
    addRow(cmdKeyShift, kThirdEnd, kGraveKey, nullptr);
    rows->addWidget(keySpace, 0, Qt::AlignHCenter);
    return rows;
}

QLayout* frmHeGrkInput::commandRow()
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* command : {cmdCopy, cmdInput, cmdClose})
        row->addWidget(command);
    return row;
}

void frmHeGrkInput::wire()
{
    for (int key = 0; key < kTypingKeyCount; ++key)
        connect(ctKey(key), &QPushButton::clicked, this, [this, key] {
            const KeyMap& map = m_maps[std::size_t(keyState(capsLock(), m_shift))];
            insertCharacter(map[static_cast<std::size_t>(key)].front());
        });
    connect(opHeb, &QRadioButton::toggled, this, [this] { changeLanguage(); });
    connect(cmdKeyCaps, &QPushButton::clicked, this, [this] { cmdKeyCaps_Click(); });
    connect(cmdKeyShift, &QPushButton::clicked, this, [this] { cmdKeyShift_Click(); });
    connect(cmdKeyEnter, &QPushButton::clicked, this, [this] { cmdInput_Click(); });
    connect(cmdKeyTab, &QPushButton::clicked, this, [this] { focusNextChild(); });
    connect(keySpace, &QPushButton::clicked, this, [this] { insertCharacter(u' '); });
    connect(keyBack, &QPushButton::clicked, this, [this] { takeBack(); });
    connect(keyConsonants, &QPushButton::clicked, this, [this] { dropPoints(); });
    connect(cmdCopy, &QPushButton::clicked, this, [this] { cmdCopy_Click(); });
    connect(cmdInput, &QPushButton::clicked, this, [this] { cmdInput_Click(); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);

    for (QPushButton* key : findChildren<QPushButton*>()) {
        const bool isCommand = key == cmdCopy || key == cmdInput || key == cmdClose;
        key->setAutoDefault(isCommand);
        // The keys leave the caret where it is.
        if (!isCommand && key != keyConsonants)
            key->setFocusPolicy(Qt::NoFocus);
    }
    for (QWidget* control : findChildren<QWidget*>())
        control->installEventFilter(this);
}

OriginalLanguage frmHeGrkInput::language() const
{
    return opHeb->isChecked() ? OriginalLanguage::Hebrew : OriginalLanguage::Greek;
}

void frmHeGrkInput::changeLanguage()
{
    SetupKeyFont();
    DoKeyMap();
    keyConsonants->setEnabled(language() == OriginalLanguage::Hebrew);
}

void frmHeGrkInput::SetupKeyFont()
{
    const bool hebrew = language() == OriginalLanguage::Hebrew;
    const QString family = languageFont(language());
    for (QPushButton* key : ctKey)
        key->setFont(QFont(family, hebrew ? kHebrewKeyPoints : kGreekPoints));
    txInput->setFont(QFont(family, hebrew ? kHebrewTextPoints : kGreekPoints));
    txInput->setAlignment((hebrew ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

void frmHeGrkInput::DoKeyMap()
{
    const KeyMap& map = m_maps[std::size_t(keyState(capsLock(), m_shift))];
    for (int key = 0; key < kTypingKeyCount; ++key) {
        const QString& entry = map[static_cast<std::size_t>(key)];
        ctKey(key)->setText(keyCaption(entry, language()));
        ctKey(key)->setToolTip(entry.first(1));
        ctKey(key)->setAccessibleName(keyMeaning(entry.front(), language()));
    }
    cmdKeyCaps->setChecked(capsLock());
    cmdKeyShift->setDown(m_shift);
}

bool frmHeGrkInput::event(QEvent* event)
{
    // A key that is let go in another window isn't told here.
    if (event->type() == QEvent::WindowDeactivate && m_shift) {
        m_shift = false;
        DoKeyMap();
    }
    return QDialog::event(event);
}

bool frmHeGrkInput::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const bool onButton = qobject_cast<QAbstractButton*>(watched) != nullptr;
        if (keyPressed(*static_cast<QKeyEvent*>(event), onButton))
            return true;
    } else if (event->type() == QEvent::KeyRelease) {
        keyReleased(*static_cast<QKeyEvent*>(event));
    }
    return QDialog::eventFilter(watched, event);
}

bool frmHeGrkInput::keyPressed(const QKeyEvent& event, bool onButton)
{
    m_shift = event.key() == Qt::Key_Shift || event.modifiers().testFlag(Qt::ShiftModifier);
    if (event.key() == Qt::Key_CapsLock && !event.isAutoRepeat())
        m_realCapsLock = !m_realCapsLock;
    QChar typed = event.text().size() == 1 ? event.text().front() : QChar();
    // A typed letter tells how the real key stands.
    if (isAsciiLetter(typed))
        m_realCapsLock = typed.isUpper() != m_shift;
    DoKeyMap();

    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool presses = onButton && event.key() == Qt::Key_Space;
    if (isCommand || presses || typed < u' ' || typed > u'~')
        return false;
    if (isAsciiLetter(typed) && m_capsFlipped)
        typed = typed.isUpper() ? typed.toLower() : typed.toUpper();
    insertCharacter(typed);
    return true;
}

void frmHeGrkInput::keyReleased(const QKeyEvent& event)
{
    m_shift = event.key() != Qt::Key_Shift && event.modifiers().testFlag(Qt::ShiftModifier);
    DoKeyMap();
}

void frmHeGrkInput::insertCharacter(QChar character)
{
    txInput->insert(character);
    // Hebrew is stored with its first letter last: each sign goes in at the left of the last one.
    if (language() == OriginalLanguage::Hebrew && txInput->cursorPosition() >= 1)
        txInput->setCursorPosition(txInput->cursorPosition() - 1);
}

void frmHeGrkInput::takeBack()
{
    // The last character typed stands at the caret's right in Hebrew.
    if (txInput->hasSelectedText() || language() == OriginalLanguage::Hebrew)
        txInput->del();
    else
        txInput->backspace();
}

void frmHeGrkInput::dropPoints()
{
    txInput->setText(hebrewConsonants(txInput->text()));
    txInput->setCursorPosition(0);
    txInput->setFocus();
}

void frmHeGrkInput::cmdKeyCaps_Click()
{
    m_capsFlipped = !m_capsFlipped;
    DoKeyMap();
}

void frmHeGrkInput::cmdKeyShift_Click()
{
    m_services.messages.show(this, messages::kShiftKeyOnly);
    DoKeyMap();
}

void frmHeGrkInput::cmdCopy_Click()
{
    const QString text = txInput->text();
    const QString readable =
        language() == OriginalLanguage::Hebrew ? hebrewToUnicode(text) : greekToUnicode(text);
    m_services.clipboard.set({.plain = text, .html = readable.toHtmlEscaped(), .rtf = {}});
}

void frmHeGrkInput::cmdInput_Click()
{
    m_searchBox.setText(txInput->text());
    QFont font = m_searchBox.font();
    font.setFamily(languageFont(language()));
    m_searchBox.setFont(font);
    accept();
}

} // namespace lumen
