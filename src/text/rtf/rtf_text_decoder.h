// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <array>

namespace lumen {

/// Turns the text bytes of an RTF document into text, byte by byte, since a pair may be spread over
/// two escapes. Documents are of code page 949 unless their head names another page.
class RtfTextDecoder
{
public:
    /// \param codePage  a Windows code page; those without a table of their own count as 1252.
    void setCodePage(int codePage);
    /// The charset of the current font, -1 when its entry tells none.
    void setCharset(int charset) { m_charset = charset; }

    /// Appends what the byte completes; a lead byte waits for its trail byte.
    void add(unsigned char byte, QString& text);
    /// Ends a pair that was cut, as U+FFFD.
    void flush(QString& text);
    bool isWaiting() const { return m_lead != 0; }

private:
    bool readsPairs() const;
    bool addTrail(unsigned char byte, QString& text);
    void addCutLead(unsigned char lead, QString& text) const;

    bool m_korean = true;
    int m_charset = -1;
    unsigned char m_lead = 0;
    std::array<char16_t, 256> m_single{};
};

} // namespace lumen
