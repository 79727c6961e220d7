// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/fault_texts.h"

#include <new>

namespace lumen {

using namespace Qt::StringLiterals;

QString faultText(const QJsonParseError& error)
{
    switch (error.error) {
    case QJsonParseError::UnterminatedObject:
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::UnterminatedString:
        return u"닫히지 않은 괄호나 따옴표가 있습니다."_s;
    case QJsonParseError::MissingNameSeparator:
    case QJsonParseError::MissingValueSeparator:
        return u"쌍점이나 쉼표가 빠졌습니다."_s;
    case QJsonParseError::IllegalUTF8String:
        return u"UTF-8이 아닌 글자가 있습니다."_s;
    case QJsonParseError::GarbageAtEnd:
        return u"끝난 뒤에 다른 글이 있습니다."_s;
    case QJsonParseError::DeepNesting:
    case QJsonParseError::DocumentTooLarge:
        return u"너무 크거나 너무 깊습니다."_s;
    default:
        return u"값이 잘못되었습니다."_s;
    }
}

QString faultText(const QXmlStreamReader& xml)
{
    switch (xml.error()) {
    case QXmlStreamReader::PrematureEndOfDocumentError:
        return u"XML이 도중에 끝납니다."_s;
    case QXmlStreamReader::NotWellFormedError:
        return u"XML의 짝이 맞지 않거나 잘못된 표지가 있습니다."_s;
    case QXmlStreamReader::CustomError: // which a reader of ours has raised
        return xml.errorString();
    default:
        return u"XML이 잘못되었습니다."_s;
    }
}

QString faultText(const QFileDevice& file)
{
    switch (file.error()) {
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError:
        return u"파일을 열 수 없습니다."_s;
    case QFileDevice::ResourceError:
        return u"디스크에 자리가 없습니다."_s;
    default:
        return u"파일을 읽거나 쓸 수 없습니다."_s;
    }
}

QString faultText(const std::exception& error)
{
    if (dynamic_cast<const std::bad_alloc*>(&error))
        return u"메모리가 모자랍니다."_s;
    return u"프로그램의 오류입니다 (%1)."_s.arg(QString::fromUtf8(error.what()));
}

} // namespace lumen
