// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/canon_table.h"
#include "data/app_state.h"
#include "forms/services.h"
#include "jet/data_control.h"

#include <QString>

#include <functional>
#include <optional>

namespace lumen {

class TextControl;

/// The entry that the record stands on as RTF, code page 949 not yet applied.
QString composeStrongEntry(Recordset& entry, Testament testament);

/// Looks Strong's numbers up and shows their entries in a text box of the host.
class StrongEntry
{
public:
    StrongEntry(Services& services, const AppState& state, TextControl& text);

    /// Shows the entry of a number, or that there is none. Throws JetError.
    void Proc스트롱사전표시(double number, Testament testament);
    /// Frees the dictionary.
    void close() { m_dictionary.Close(); }

    /// The number of the entry on show as the dictionary has it; nothing when none was found.
    std::function<void(const std::optional<QString>& number)> onShown;

private:
    bool find(double number, Testament testament);

    Services& m_services;
    const AppState& m_state;
    TextControl& m_text;
    DataControl m_dictionary;
};

} // namespace lumen
