// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFileDevice>
#include <QJsonParseError>
#include <QString>
#include <QXmlStreamReader>

#include <exception>

namespace lumen {

/// What is wrong with a source, in Korean: the toolkit's own texts are English.
QString faultText(const QJsonParseError& error);
QString faultText(const QXmlStreamReader& xml);
QString faultText(const QFileDevice& file);
/// What kept a module from being made when something was thrown.
QString faultText(const std::exception& error);

} // namespace lumen
