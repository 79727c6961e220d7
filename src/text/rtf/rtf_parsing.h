// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

// Of rtf_parser.cpp and rtf_parser_words.cpp only.

#include "text/rtf/rtf_content_builder.h"
#include "text/rtf/rtf_control_words.h"
#include "text/rtf/rtf_picture_reader.h"
#include "text/rtf/rtf_text_decoder.h"

#include <QHash>

#include <optional>
#include <string_view>
#include <vector>

namespace lumen::rtf_parsing {

enum class Destination : quint8 { Body, Fonts, Colors, Picture, Skipped };

struct GroupState
{
    RtfCharStyle style;
    RtfParagraphStyle paragraph;
    Destination destination = Destination::Body;
    int unicodeSkip = 1;
    bool inTable = false;
    // Of the group itself, not taken over by those within it.
    qsizetype start = 0;
    bool holdsPicture = false;
};

// A control word as it stands in the input.
struct ControlWord
{
    std::string_view name;
    std::optional<int> parameter;
};

/// One pass over a document: groups and words on the one side, what the words do on the other.
class Parser
{
public:
    explicit Parser(QByteArrayView bytes) : m_bytes(bytes), m_builder(bytes.size()) {}

    RtfContent run();

private:
    void readText();
    void readControl();
    void readHexByte();
    void readSymbol(char symbol);
    ControlWord readControlWord();

    void openGroup();
    void closeGroup();

    void apply(const ControlWord& word);
    void applyDocument(const RtfControlWord& row, int parameter);
    void applyTable(const RtfControlWord& row, int parameter);
    void applyCharacter(const RtfControlWord& row, std::optional<int> parameter);
    void applyParagraph(const RtfControlWord& row, int parameter);
    void applyTableRow(const RtfControlWord& row, int parameter);
    void addUnicode(int number);
    void enterPictureGroup();
    void leavePictureGroup(const GroupState& closed);
    void skip(bool isLost);

    void addByte(unsigned char byte);
    void addUnit(char16_t unit);
    void addColorByte(unsigned char byte);
    void takeDecoded();
    void flushText();
    void finishFont();
    void setStyle(const RtfCharStyle& style);
    void endParagraph();

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
    bool m_ended = false;
    RtfContentBuilder m_builder;

    GroupState m_state;
    std::vector<GroupState> m_groups;
    qsizetype m_deeperGroups = 0;
    bool m_starred = false;
    int m_skip = 0;

    RtfTextDecoder m_decoder;
    QString m_decoded;
    QHash<int, int> m_charsets;
    RtfFont m_font;
    QString m_fontName;
    bool m_inFont = false;
    RgbLong m_color = 0;
    bool m_hasColor = false;
    int m_defaultFont = 0;

    RtfPictureReader m_pictureReader;
    std::optional<RtfPicture> m_picture; ///< read, waiting for the end of its outermost group
    int m_pictureGroups = 0;             ///< open ones
    RtfRow m_row;
    RtfCell m_cell;
};

} // namespace lumen::rtf_parsing
