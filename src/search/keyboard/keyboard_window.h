// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "platform/controls/named.h"
#include "search/keyboard/key_maps.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace lumen {

/// The on-screen keyboard for the Hebrew and Greek fonts: shows which key gives which sign, gathers
/// what is typed or clicked and hands it to a search box.
class frmHeGrkInput : public QDialog // no Q_OBJECT: nothing here emits
{
public:
    /// `searchBox` takes the text and the language's font when the user hands it over.
    frmHeGrkInput(Services& services, QLineEdit& searchBox, OriginalLanguage language,
                  QWidget* parent = nullptr);

    ControlArray<QPushButton, kTypingKeyCount> ctKey{u"ctKey"};
    QRadioButton* opHeb = named<QRadioButton>(u"opHeb", u"히브리어(&H)");
    QRadioButton* opGrk = named<QRadioButton>(u"opGrk", u"헬라어(&G)");
    QLineEdit* txInput = named<QLineEdit>(u"txInput", u"입력한 글");
    QPushButton* cmdKeyCaps = named<QPushButton>(u"cmdKeyCaps", u"Caps Lock");
    QPushButton* cmdKeyShift = named<QPushButton>(u"cmdKeyShift", u"Shift");
    QPushButton* cmdKeyEnter = named<QPushButton>(u"cmdKeyEnter", u"Enter");
    QPushButton* cmdKeyTab = named<QPushButton>(u"cmdKeyTab", u"Tab");
    /// Ours: the blank, taking the last character back, and leaving the consonants alone.
    QPushButton* keySpace = named<QPushButton>(u"keySpace", u"빈칸");
    QPushButton* keyBack = named<QPushButton>(u"keyBack", u"지움");
    QPushButton* keyConsonants = named<QPushButton>(u"keyConsonants", u"모음 빼기(&V)");
    QPushButton* cmdCopy = named<QPushButton>(u"cmdCopy", u"복사(&C)");
    QPushButton* cmdInput = named<QPushButton>(u"cmdInput", u"입력(&I)");
    QPushButton* cmdClose = named<QPushButton>(u"cmdClose", u"닫기(&X)");

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    QLayout* keyRows();
    QLayout* commandRow();
    void wire();
    OriginalLanguage language() const;
    void SetupKeyFont();
    void DoKeyMap();
    void changeLanguage();
    bool keyPressed(const QKeyEvent& event, bool onButton);
    void keyReleased(const QKeyEvent& event);
    void insertCharacter(QChar character);
    void takeBack();
    void dropPoints();
    void cmdKeyCaps_Click();
    void cmdKeyShift_Click();
    void cmdCopy_Click();
    void cmdInput_Click();
    bool capsLock() const { return m_realCapsLock != m_capsFlipped; }

    Services& m_services;
    QLineEdit& m_searchBox;
    KeyMaps m_maps = SetupKeyMap();
    // The platform doesn't tell the state of the keys: it is gathered from what is typed.
    bool m_shift = false;
    bool m_realCapsLock = false;
    bool m_capsFlipped = false; ///< by cmdKeyCaps, against the real key
};

} // namespace lumen
