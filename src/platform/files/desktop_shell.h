// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/files/shell.h"
#include "platform/path_resolver.h"

#include <QTemporaryDir>

#include <memory>

namespace lumen {

/// Opens files and pages with the programs that the desktop has set for them. Invalid for any
/// address but http and https, System when the desktop has no program.
class DesktopShell : public Shell
{
public:
    explicit DesktopShell(const PathResolver& paths) : m_paths(paths) {}
    Result<Done> open(const QString& target) override;
    /// LibreOffice Writer, else what the desktop opens RTF files with.
    bool hasWordProcessor() const override;
    Result<Done> openInWordProcessor(const QByteArray& rtf) override;

private:
    const PathResolver& m_paths;
    /// What word processors were given; it goes with the program.
    std::unique_ptr<QTemporaryDir> m_handedOver;
    int m_handed = 0;
};

} // namespace lumen
