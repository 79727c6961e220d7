// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

namespace lumen {

/// One part of a document that is a ZIP file.
struct ZipPart
{
    QByteArray name;
    QByteArray content;
    bool compressed = true;
};

/// The parts as a ZIP file, in their order; "" when it could not be made.
QByteArray zipPackage(const QList<ZipPart>& parts);

} // namespace lumen
