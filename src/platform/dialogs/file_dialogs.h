// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
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
};

/// The common dialogs: a native path or a colour, nothing when the user cancelled.
class FileDialogs
{
public:
    virtual ~FileDialogs() = default;
    /// Asks no question about an existing file: the caller does, in its own words.
    virtual std::optional<QString> save(QWidget* parent, const SaveRequest& request) = 0;
    /// `color` and the answer are RGB longs, red in the low byte.
    virtual std::optional<int> color(QWidget* parent, int color) = 0;
};

} // namespace lumen
