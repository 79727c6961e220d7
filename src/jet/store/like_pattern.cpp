// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/like_pattern.h"

#include "jet/error.h"
#include "jet/store/byte_search.h"
#include "jet/store/stored_text.h"

namespace lumen {

namespace {

constexpr char32_t kLastCodePoint = 0x10FFFF;
constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kBehindSurrogates = 0xE000;

bool continues(std::string_view text, std::size_t at)
{
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

/// The start of the next character; damaged UTF-8 still moves on by a byte at least.
std::size_t nextCharacter(std::string_view text, std::size_t at)
{
    ++at;
    while (continues(text, at))
        ++at;
    return at;
}

std::optional<std::size_t> forward(std::string_view text, std::size_t at, std::size_t characters)
{
    for (; characters > 0; --characters) {
        if (at >= text.size())
            return std::nullopt;
        at = nextCharacter(text, at);
    }
    return at;
}

std::optional<std::size_t> backward(std::string_view text, std::size_t at, std::size_t characters)
{
    for (; characters > 0; --characters) {
        if (at == 0)
            return std::nullopt;
        --at;
        while (at > 0 && continues(text, at))
            --at;
    }
    return at;
}

std::size_t characterCount(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at = nextCharacter(text, at))
        ++count;
    return count;
}

char32_t characterAt(std::string_view text, std::size_t at)
{
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80)
        return lead;
    char32_t value = lead >= 0xF0 ? lead & 0x07 : lead >= 0xE0 ? lead & 0x0F : lead & 0x1F;
    while (continues(text, ++at))
        value = (value << 6) | (static_cast<unsigned char>(text[at]) & 0x3F);
    return value;
}

std::string toUtf8(char32_t character)
{
    // QString::fromUcs4 takes a leading U+FEFF for a byte order mark and drops it.
    return fromCodePoints({&character, 1}).toUtf8().toStdString();
}

char folded(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

char32_t otherCase(char32_t character)
{
    if (character >= U'a' && character <= U'z')
        return character - U'a' + U'A';
    if (character >= U'A' && character <= U'Z')
        return character - U'A' + U'a';
    return character;
}

} // namespace

LikePattern::LikePattern(QStringView pattern, Case sensitivity) : m_case(sensitivity)
{
    read(pattern.toString().toStdU32String());
    finish();
}

void LikePattern::read(const std::u32string& pattern)
{
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        switch (pattern[i]) {
        case U'*':
            // A run of "*" is one: an empty segment between two matches anywhere.
            if (m_segments.size() == 1 || !m_segments.back().elements.empty())
                m_segments.emplace_back();
            break;
        case U'?':
            addElement({Kind::AnyOne, {}, false, {}});
            break;
        case U'#':
            addElement({Kind::Digit, {}, false, {}});
            break;
        case U'[':
            i = readList(pattern, i);
            break;
        default:
            addLiteral(pattern[i]);
        }
    }
}

std::size_t LikePattern::readList(const std::u32string& pattern, std::size_t open)
{
    const std::size_t close = pattern.find(U']', open);
    if (close == std::u32string::npos)
        throw jetError(ErrorNumber::kInvalidPattern, QString::fromStdU32String(pattern));
    std::u32string_view list(pattern.data() + open + 1, close - open - 1);
    Element element{Kind::List, {}, list.size() > 1 && list.front() == U'!', {}};
    if (element.negated)
        list.remove_prefix(1);
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool isRange = i + 2 < list.size() && list[i + 1] == U'-';
        const char32_t last = isRange ? list[i + 2] : list[i];
        if (last < list[i])
            throw jetError(ErrorNumber::kInvalidPattern, QString::fromStdU32String(pattern));
        element.ranges.emplace_back(list[i], last);
        i += isRange ? 2 : 0;
    }
    const bool single = element.ranges.size() == 1 && !element.negated &&
                        element.ranges[0].first == element.ranges[0].second;
    if (single)
        addLiteral(element.ranges[0].first);
    else if (!element.ranges.empty())
        addElement(std::move(element));
    return close;
}

void LikePattern::addLiteral(char32_t character)
{
    std::string bytes = toUtf8(character);
    if (m_case == Case::Folded)
        bytes[0] = folded(bytes[0]);
    Segment& segment = m_segments.back();
    if (segment.elements.empty() || segment.elements.back().kind != Kind::Literal)
        segment.elements.emplace_back();
    segment.elements.back().literal += bytes;
    ++segment.characters;
}

void LikePattern::addElement(Element element)
{
    m_segments.back().elements.push_back(std::move(element));
    ++m_segments.back().characters;
}

bool LikePattern::isLiteral(const Segment& segment)
{
    return segment.elements.size() == 1 && segment.elements[0].kind == Kind::Literal;
}

void LikePattern::chooseAnchor(Segment& segment)
{
    std::size_t longest = 0;
    std::size_t characters = 0;
    for (std::size_t i = 0; i < segment.elements.size(); ++i) {
        const std::string& literal = segment.elements[i].literal;
        if (literal.size() > longest) {
            longest = literal.size();
            segment.anchor = i;
            segment.beforeAnchor = characters;
            segment.hasAnchor = true;
        }
        characters += literal.empty() ? 1 : characterCount(literal);
    }
}

LikePattern::Shape LikePattern::shape() const
{
    // A letter for each segment: empty, literal or anything else.
    std::string kinds;
    for (const Segment& segment : m_segments)
        kinds += segment.elements.empty() ? 'e' : isLiteral(segment) ? 'l' : 'x';
    struct Known
    {
        std::string_view kinds;
        Shape shape;
    };
    constexpr Known kKnown[] = {{"e", Shape::Exact},       {"l", Shape::Exact},
                                {"ee", Shape::Everything}, {"le", Shape::Prefix},
                                {"el", Shape::Suffix},     {"ele", Shape::Contains}};
    for (const Known& known : kKnown)
        if (kinds == known.kinds)
            return known.shape;
    return Shape::General;
}

void LikePattern::finish()
{
    for (Segment& segment : m_segments)
        chooseAnchor(segment);
    m_shape = shape();
    if (m_shape == Shape::General)
        return;
    for (const Segment& segment : m_segments)
        if (isLiteral(segment))
            m_literal = segment.elements[0].literal;
}

bool LikePattern::matches(std::string_view text) const
{
    thread_local std::string buffer;
    if (m_case == Case::Folded) {
        buffer.assign(text);
        for (char& byte : buffer)
            byte = folded(byte);
        text = buffer;
    }
    switch (m_shape) {
    case Shape::Everything:
        return true;
    case Shape::Exact:
        return text == m_literal;
    case Shape::Prefix:
        return text.starts_with(m_literal);
    case Shape::Suffix:
        return text.ends_with(m_literal);
    case Shape::Contains:
        return findBytes(text, m_literal, 0) != std::string_view::npos;
    case Shape::General:
        break;
    }
    return matchesGeneral(text);
}

bool LikePattern::listHolds(const Element& element, char32_t character) const
{
    const char32_t other = m_case == Case::Folded ? otherCase(character) : character;
    for (const auto& [first, last] : element.ranges)
        if ((character >= first && character <= last) || (other >= first && other <= last))
            return !element.negated;
    return element.negated;
}

std::optional<std::size_t> LikePattern::elementEnd(const Element& element, std::string_view text,
                                                   std::size_t at) const
{
    if (at >= text.size())
        return std::nullopt;
    switch (element.kind) {
    case Kind::Literal:
        if (text.compare(at, element.literal.size(), element.literal) != 0)
            return std::nullopt;
        return at + element.literal.size();
    case Kind::Digit:
        if (text[at] < '0' || text[at] > '9')
            return std::nullopt;
        return at + 1;
    case Kind::List:
        if (!listHolds(element, characterAt(text, at)))
            return std::nullopt;
        break;
    case Kind::AnyOne:
        break;
    }
    return nextCharacter(text, at);
}

std::optional<std::size_t> LikePattern::segmentEnd(const Segment& segment, std::string_view text,
                                                   std::size_t at) const
{
    for (const Element& element : segment.elements) {
        const auto end = elementEnd(element, text, at);
        if (!end)
            return std::nullopt;
        at = *end;
    }
    return at;
}

/// The end of the first place from `from` on where the segment stands. Jumps from one place of its
/// longest literal to the next.
std::optional<std::size_t> LikePattern::findSegment(const Segment& segment, std::string_view text,
                                                    std::size_t from) const
{
    for (;;) {
        std::size_t start = from;
        if (segment.hasAnchor) {
            const auto earliest = forward(text, from, segment.beforeAnchor);
            if (!earliest)
                return std::nullopt;
            const std::size_t hit =
                findBytes(text, segment.elements[segment.anchor].literal, *earliest);
            if (hit == std::string_view::npos)
                return std::nullopt;
            start = *backward(text, hit, segment.beforeAnchor);
        }
        if (const auto end = segmentEnd(segment, text, start))
            return end;
        if (start >= text.size())
            return std::nullopt;
        from = nextCharacter(text, start);
    }
}

bool LikePattern::matchesGeneral(std::string_view text) const
{
    const auto head = segmentEnd(m_segments.front(), text, 0);
    if (!head)
        return false;
    if (m_segments.size() == 1)
        return *head == text.size();
    std::size_t at = *head;
    // The first place that fits is the best for every segment but the last, which ends the text.
    for (std::size_t i = 1; i + 1 < m_segments.size(); ++i) {
        const auto end = findSegment(m_segments[i], text, at);
        if (!end)
            return false;
        at = *end;
    }
    const Segment& tail = m_segments.back();
    const auto start = backward(text, text.size(), tail.characters);
    return start && *start >= at && segmentEnd(tail, text, *start) == text.size();
}

std::optional<QString> LikePattern::exactText() const
{
    if (m_shape != Shape::Exact)
        return std::nullopt;
    return fromUtf8(m_literal);
}

QString LikePattern::literalPrefix() const
{
    const Segment& first = m_segments.front();
    if (first.elements.empty() || first.elements[0].kind != Kind::Literal)
        return {};
    return fromUtf8(first.elements[0].literal);
}

std::optional<QString> endOfPrefix(const QString& prefix)
{
    std::u32string text = prefix.toStdU32String();
    while (!text.empty() && text.back() >= kLastCodePoint)
        text.pop_back();
    if (text.empty())
        return std::nullopt;
    ++text.back();
    if (text.back() == kFirstSurrogate)
        text.back() = kBehindSurrogates;
    return fromCodePoints(text);
}

} // namespace lumen
