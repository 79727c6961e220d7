// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QJsonDocument>
#include <QString>
#include <QStringList>

namespace lumen {

/// A JSON file, or a failure with the line where it breaks off. NotFound when it is not there.
Result<QJsonDocument> readJsonFile(const QString& file);

/// One book a file: {"book": "Genesis", "chapters": [{"chapter": 1, "verses": [{"verse": 1,
/// "text": "..."}]}]}.
VersionResult readBookJsonFiles(const QStringList& files);
/// True for a file of that shape.
bool looksLikeBookJson(const QString& file);

/// OSIS turned into JSON: osis / osisText / div / chapter / verse, with "-osisID" and "text". A
/// list of one is the item itself. A verse without text has no words.
VersionResult readNestedJsonFile(const QString& file);

/// All verses in one array, in the order of the English numbering. The array may hold more entries
/// than verses: an entry that is an empty list of characters ("[]") is no verse.
VersionResult readFlatJsonFile(const QString& file);

} // namespace lumen
