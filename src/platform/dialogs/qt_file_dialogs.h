// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/file_dialogs.h"

#include <QStringList>

namespace lumen {

/// The desktop's dialogs for saving a file and choosing a colour.
class QtFileDialogs : public FileDialogs
{
public:
    std::optional<QString> save(QWidget* parent, const SaveRequest& request) override;
    std::optional<RgbLong> color(QWidget* parent, RgbLong color) override;
};

/// "텍스트 파일 (*.txt)|*.txt" as the toolkit wants it, a filter an item: "텍스트 파일 (*.txt)".
QStringList nameFilters(const QString& filter);
/// The chosen name with the default extension when it has none of its own.
QString withExtension(const QString& path, const QString& extension);

} // namespace lumen
