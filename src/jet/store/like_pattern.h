// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumen {

/// A compiled LIKE pattern: "*" any run, "?" one character, "#" a digit, "[a-z]" and "[!a-z]" one
/// character in or not in a list, "[]" nothing. Characters are code points; texts come as UTF-8.
class LikePattern
{
public:
    /// Folded ignores the case of ASCII letters.
    enum class Case { Exact, Folded };

    /// Error 93 for a list without its end and for a range that runs downward.
    LikePattern(QStringView pattern, Case sensitivity);

    bool matches(std::string_view text) const;

    /// The text that a pattern without a wildcard stands for.
    std::optional<QString> exactText() const;
    /// The literal text in front of the first wildcard.
    QString literalPrefix() const;
    /// True for a literal prefix and a single "*" behind it.
    bool isPrefixOnly() const { return m_shape == Shape::Prefix; }

private:
    enum class Shape { Everything, Exact, Prefix, Suffix, Contains, General };
    enum class Kind { Literal, AnyOne, Digit, List };

    struct Element
    {
        Kind kind = Kind::Literal;
        std::string literal; ///< UTF-8
        bool negated = false;
        std::vector<std::pair<char32_t, char32_t>> ranges;
    };

    /// What stands between two "*": a fixed number of characters.
    struct Segment
    {
        std::vector<Element> elements;
        std::size_t characters = 0;
        std::size_t anchor = 0;       ///< the element with the longest literal
        std::size_t beforeAnchor = 0; ///< characters in front of it
        bool hasAnchor = false;
    };

    void read(const std::u32string& pattern);
    std::size_t readList(const std::u32string& pattern, std::size_t open);
    void addLiteral(char32_t character);
    void addElement(Element element);
    void finish();
    Shape shape() const;
    static void chooseAnchor(Segment& segment);
    static bool isLiteral(const Segment& segment);

    bool matchesGeneral(std::string_view text) const;
    bool listHolds(const Element& element, char32_t character) const;
    std::optional<std::size_t> elementEnd(const Element& element, std::string_view text,
                                          std::size_t at) const;
    std::optional<std::size_t> segmentEnd(const Segment& segment, std::string_view text,
                                          std::size_t at) const;
    std::optional<std::size_t> findSegment(const Segment& segment, std::string_view text,
                                           std::size_t from) const;

    Case m_case;
    Shape m_shape = Shape::General;
    std::vector<Segment> m_segments{Segment{}};
    std::string m_literal; ///< of all shapes but Everything and General
};

/// The smallest text that stands behind all texts with this prefix in code point order; nothing
/// when there is none.
std::optional<QString> endOfPrefix(const QString& prefix);

} // namespace lumen
