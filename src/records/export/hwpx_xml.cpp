// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/export/hwpx_xml.h"

#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

void writeAttributes(QXmlStreamWriter& xml, HwpxAttributes attributes)
{
    for (const HwpxAttribute& attribute : attributes)
        xml.writeAttribute(attribute.key.toString(), attribute.value);
}

} // namespace

void beginElement(QXmlStreamWriter& xml, QStringView name, HwpxAttributes attributes)
{
    xml.writeStartElement(name.toString());
    writeAttributes(xml, attributes);
}

void writeElement(QXmlStreamWriter& xml, QStringView name, HwpxAttributes attributes)
{
    xml.writeEmptyElement(name.toString());
    writeAttributes(xml, attributes);
}

void beginPart(QXmlStreamWriter& xml, QStringView root, HwpxAttributes attributes)
{
    xml.writeStartDocument(u"1.0"_s, true);
    beginElement(xml, root,
                 {{u"xmlns:ha", u"http://www.hancom.co.kr/hwpml/2011/app"},
                  {u"xmlns:hp", u"http://www.hancom.co.kr/hwpml/2011/paragraph"},
                  {u"xmlns:hs", u"http://www.hancom.co.kr/hwpml/2011/section"},
                  {u"xmlns:hc", u"http://www.hancom.co.kr/hwpml/2011/core"},
                  {u"xmlns:hh", u"http://www.hancom.co.kr/hwpml/2011/head"},
                  {u"xmlns:hv", u"http://www.hancom.co.kr/hwpml/2011/version"},
                  {u"xmlns:opf", u"http://www.idpf.org/2007/opf/"},
                  {u"xmlns:ocf", u"urn:oasis:names:tc:opendocument:xmlns:container"},
                  {u"xmlns:odf", u"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0"}});
    writeAttributes(xml, attributes);
}

bool isXmlLetter(QChar letter)
{
    return letter >= u' ' && letter < QChar(0xFFFE);
}

} // namespace lumen
