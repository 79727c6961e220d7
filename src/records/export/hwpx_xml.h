// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <initializer_list>

class QXmlStreamWriter;

namespace lumen {

/// An attribute of an element: a text or a number.
struct HwpxAttribute
{
    HwpxAttribute(QStringView name, QStringView text) : key(name), value(text.toString()) {}
    HwpxAttribute(QStringView name, qint64 number) : key(name), value(QString::number(number)) {}

    QStringView key;
    QString value;
};
using HwpxAttributes = std::initializer_list<HwpxAttribute>;

/// Begins an element; the caller ends it.
void beginElement(QXmlStreamWriter& xml, QStringView name, HwpxAttributes attributes = {});
/// An element without content.
void writeElement(QXmlStreamWriter& xml, QStringView name, HwpxAttributes attributes = {});
/// Begins a part of a HWPX file: its declaration and its root with the format's namespaces.
void beginPart(QXmlStreamWriter& xml, QStringView root, HwpxAttributes attributes = {});

/// Whether XML has the letter: of the control signs it has only those that end lines and cells,
/// which are elements in these files.
bool isXmlLetter(QChar letter);

} // namespace lumen
