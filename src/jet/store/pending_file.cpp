// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/pending_file.h"

#include "jet/error.h"

#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

PendingFile::PendingFile(const QString& destination)
    : m_destination(destination), m_file(destination)
{
    if (m_file.error() != 0)
        throwFailure();
}

void PendingFile::takeName(Existing existing)
{
    // Not every file system knows RENAME_NOREPLACE, so the destination is looked up.
    if (existing == Existing::Refuse && QFileInfo::exists(m_destination))
        throw jetError(ErrorNumber::kDestinationExists, m_destination);
    if (!m_file.takeName())
        throwFailure();
}

void PendingFile::throwFailure() const
{
    throw jetError(ErrorNumber::kWriteFailed,
                   m_destination + u": "_s + qt_error_string(m_file.error()));
}

} // namespace lumen
