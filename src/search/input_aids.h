// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "search/focus_mark.h"
#include "search/original/original_query.h"

namespace lumen {

class EasyPanel;
class ParsingPanel;
class PowerPanel;

/// The buttons of the search window that help with the original languages: the keyboard for a text
/// box and the wizard for a parsing pattern, each shown modally over the window.
class InputAids
{
public:
    InputAids(Services& services, QWidget& window, EasyPanel& easy, PowerPanel& power,
              ParsingPanel& parsing);

private:
    void openKeyboard(QLineEdit& box, OriginalLanguage language);
    void cmdSetParsing_Click(int condition);

    Services& m_services;
    QWidget& m_window;
    ParsingPanel& m_parsing;
    FocusMark* m_powerBox; ///< of the power search, owned by its panel
};

} // namespace lumen
