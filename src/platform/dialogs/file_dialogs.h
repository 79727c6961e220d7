// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"

#include <QString>

#include <optional>

class QWidget;

namespace lumen {

struct SaveRequest
{
    QString title;
    QString filter;           ///< "텍스트 파일 (*.txt)|*.txt"
    QString defaultExtension; ///< ".txt"
    QString name;
    QString folder{}; ///< native; where it is "" or gone, the user's documents
};

/// The common dialogs: a native path or a colour, nothing when the user cancelled.
class FileDialogs
{
public:
    virtual ~FileDialogs() = default;
    /// Asks no question about an existing file: the caller does, in its own words.
    virtual std::optional<QString> save(QWidget* parent, const SaveRequest& request) = 0;
    virtual std::optional<RgbLong> color(QWidget* parent, RgbLong color) = 0;
};

} // namespace lumen
