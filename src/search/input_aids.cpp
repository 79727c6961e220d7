// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/input_aids.h"

#include "platform/dialogs/modal.h"
#include "search/keyboard/key_maps.h"
#include "search/keyboard/keyboard_window.h"
#include "search/original/parsing_panel.h"
#include "search/verses/easy_panel.h"
#include "search/verses/power_panel.h"
#include "search/wizard/parsing_wizard.h"

namespace lumen {
namespace {

// A version of the Greek text has its font in the box.
OriginalLanguage languageOf(const QLineEdit& box)
{
    return box.font().family() == languageFont(OriginalLanguage::Greek) ? OriginalLanguage::Greek
                                                                        : OriginalLanguage::Hebrew;
}

} // namespace

InputAids::InputAids(Services& services, QWidget& window, EasyPanel& easy, PowerPanel& power,
                     ParsingPanel& parsing)
    : m_services(services), m_window(window), m_parsing(parsing),
      m_powerBox(new FocusMark({power.txPSearch1, power.txPSearch2, power.txPSearch3}, &power))
{
    QObject::connect(easy.cmdKeyboard, &QPushButton::clicked, &window,
                     [this, &easy] { openKeyboard(*easy.tx검색, languageOf(*easy.tx검색)); });
    QObject::connect(power.cmdPKeyboard, &QPushButton::clicked, &window,
                     [this] { openKeyboard(*m_powerBox->box(), languageOf(*m_powerBox->box())); });
    for (int condition = 0; condition < kConditionCount; ++condition) {
        QObject::connect(parsing.cmdInput(condition), &QPushButton::clicked, &window,
                         [this, condition] {
                             openKeyboard(*m_parsing.txHGSearch(condition),
                                          m_parsing.isHebrew() ? OriginalLanguage::Hebrew
                                                               : OriginalLanguage::Greek);
                         });
        QObject::connect(parsing.cmdSetParsing(condition), &QPushButton::clicked, &window,
                         [this, condition] { cmdSetParsing_Click(condition); });
    }
}

void InputAids::openKeyboard(QLineEdit& box, OriginalLanguage language)
{
    frmHeGrkInput keyboard(m_services, box, language, &m_window);
    if (m_services.modal.run(keyboard) == QDialog::Accepted)
        box.setFocus();
}

void InputAids::cmdSetParsing_Click(int condition)
{
    frmParsingWiz wizard(&m_window);
    wizard.setTestament(m_parsing.isHebrew() ? Testament::Old : Testament::New);
    m_services.modal.run(wizard);
    // A cancelled wizard leaves the condition empty.
    m_parsing.setPattern(condition, wizard.code());
}

} // namespace lumen
