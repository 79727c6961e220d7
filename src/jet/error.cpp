// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/error.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct ErrorText
{
    int number = 0;
    QStringView text;
};

constexpr std::array kErrorTexts{
    ErrorText{ErrorNumber::kFileInUse, u"사용 중인 데이터베이스 파일입니다."},
    ErrorText{ErrorNumber::kInvalidPattern, u"검색 문자열의 형식이 잘못되었습니다."},
    ErrorText{ErrorNumber::kInvalidArgument, u"인수가 올바르지 않습니다."},
    ErrorText{ErrorNumber::kTableExists, u"같은 이름의 테이블이 이미 있습니다."},
    ErrorText{ErrorNumber::kNoSuchIndex, u"테이블에 그런 인덱스가 없습니다."},
    ErrorText{ErrorNumber::kNoIndexSet, u"검색에 사용할 인덱스가 지정되지 않았습니다."},
    ErrorText{ErrorNumber::kUpdateWithoutEdit,
              u"편집을 시작하지 않은 레코드는 저장할 수 없습니다."},
    ErrorText{ErrorNumber::kNoCurrentRecord, u"현재 레코드가 없습니다."},
    ErrorText{ErrorNumber::kDuplicateKey, u"같은 키를 가진 레코드가 이미 있습니다."},
    ErrorText{ErrorNumber::kFileNotFound, u"데이터베이스 파일을 찾을 수 없습니다."},
    ErrorText{ErrorNumber::kReadOnly, u"읽기 전용이므로 고칠 수 없습니다."},
    ErrorText{ErrorNumber::kWrongPassword, u"데이터베이스의 암호가 올바르지 않습니다."},
    ErrorText{ErrorNumber::kAlreadyInUse, u"데이터베이스를 다른 곳에서 사용하고 있습니다."},
    ErrorText{ErrorNumber::kCorrupt, u"데이터베이스 파일이 손상되었습니다."},
    ErrorText{ErrorNumber::kCancelled, u"데이터베이스 가져오기를 그만두었습니다."},
    ErrorText{ErrorNumber::kUnknownColumn, u"쿼리에 나온 필드를 찾을 수 없습니다."},
    ErrorText{ErrorNumber::kCriterionSyntax, u"쿼리 식에 구문 오류가 있습니다."},
    ErrorText{ErrorNumber::kUnknownTable, u"테이블을 찾을 수 없습니다."},
    ErrorText{ErrorNumber::kBracketSyntax, u"이름의 대괄호가 올바르지 않습니다."},
    ErrorText{ErrorNumber::kFromSyntax, u"FROM 절에 구문 오류가 있습니다."},
    ErrorText{ErrorNumber::kStaleBookmark, u"책갈피가 더 이상 유효하지 않습니다."},
    ErrorText{ErrorNumber::kTextTooLong, u"필드의 크기보다 긴 문자열입니다."},
    ErrorText{ErrorNumber::kRecordDeleted, u"삭제된 레코드입니다."},
    ErrorText{ErrorNumber::kWriteFailed, u"디스크에 쓸 수 없습니다. 남은 공간을 확인하십시오."},
    ErrorText{ErrorNumber::kDestinationExists, u"같은 이름의 데이터베이스가 이미 있습니다."},
    ErrorText{ErrorNumber::kNoSuchItem, u"그런 이름이나 번호의 항목이 없습니다."},
    ErrorText{ErrorNumber::kRequiredEmpty, u"꼭 필요한 필드가 비어 있습니다."},
    ErrorText{ErrorNumber::kNotADatabase, u"알 수 없는 형식이거나 손상된 데이터베이스입니다."},
    ErrorText{ErrorNumber::kOpenElsewhere, u"열려 있는 데이터베이스는 압축할 수 없습니다."},
    ErrorText{ErrorNumber::kObjectClosed, u"이미 닫힌 데이터베이스나 레코드세트입니다."},
    ErrorText{ErrorNumber::kConversion, u"필드의 형식에 맞지 않는 값입니다."},
};

} // namespace

JetError::JetError(int number, QString text)
    : m_number(number), m_text(std::move(text)),
      m_utf8(QByteArray::number(number) + ' ' + m_text.toUtf8())
{
}

JetError jetError(int number, const QString& detail)
{
    const auto found =
        std::find_if(kErrorTexts.begin(), kErrorTexts.end(),
                     [number](const ErrorText& entry) { return entry.number == number; });
    const QString text =
        found == kErrorTexts.end() ? u"데이터베이스 오류입니다."_s : found->text.toString();
    return {number, detail.isEmpty() ? text : text + u"\n"_s + detail};
}

} // namespace lumen
