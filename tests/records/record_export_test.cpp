// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/rich_text_box.h"
#include "records/export/record_export.h"
#include "records/record_fixture.h"
#include "text/codepage949.h"
#include "text/rtf/rtf_reader.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// Signs that each of the formats gives a meaning, and letters of many scripts.
const QString kHardText = u"{가}\\<b>&漢字 \u05D0\u05D1 \U0001F600"_s;

/// Exports of a record whose texts need care.
class RecordExportTest : public RecordFixture
{
protected:
    RecordExportTest()
        : RecordFixture(record_profile::kSermon),
          record(profile, services.services, services.state, boxes, nullptr)
    {
        boxes.plain = {u"제목"_s, u"말씀\n둘째 줄"_s, kHardText, u"기도"_s, u"요약"_s};
        RichTextBox writer;
        for (std::size_t i = 0; i < boxes.plain.size(); ++i) {
            writer.setText(boxes.plain[i]);
            writer.selectAll();
            writer.setSelBold(true);
            boxes.formatted[i] = writer.TextRTF();
        }
        boxes.categoryText = u"기타"_s;
        record.onWritten = [this](const QString& path, bool written) {
            if (!written)
                failed << path;
        };
    }

    QString file(const QString& name) const { return services.folders.root() + u'/' + name; }
    static QByteArray read(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    /// What a program of the system makes of a file; nothing where it is not installed.
    static std::optional<QString> outputOf(const QString& program, const QStringList& arguments)
    {
        if (QStandardPaths::findExecutable(program).isEmpty())
            return {};
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    RecordExport record;
    QStringList failed;
};

TEST_F(RecordExportTest, TheOldFilesHoldTheComposedRecord)
{
    boxes.plain[2] = u"본문 漢字"_s;
    const QString body = u"[설교일] 2003-05-01      [작성일] 2003-05-01 \n\n[설교 제목] \n제목 "
                         u"\n[말씀]\n말씀둘째 줄 \n"
                         "[설교 본문]\n본문 漢字 \n[기도]\n기도 \n[설교 요약]\n요약"_s;
    services.fileDialogs.answerSave(file(u"a"_s));
    record.ProcHWP로추출();
    EXPECT_EQ(rtfToPlainText(read(file(u"a.hwp"_s)), LastPar::EndsDocument).toStdString(),
              body.toStdString());
    services.fileDialogs.answerSave(file(u"b.RTF"_s));
    record.ProcRTF로추출();
    EXPECT_EQ(rtfToPlainText(read(file(u"b.RTF.rtf"_s)), LastPar::EndsDocument), body)
        << "the extension counts as it is written";
    services.fileDialogs.answerSave(file(u"c.txt"_s));
    record.Proc텍스트파일로추출();
    EXPECT_EQ(read(file(u"c.txt"_s)), toCodePage949(QString(body).replace(u'\n', u"\r\n"_s)));
    EXPECT_EQ(services.fileDialogs.saveRequests[0].title, u"HWP Format으로 추출"_s);
    EXPECT_EQ(services.fileDialogs.saveRequests[2].filter, u"텍스트 파일(*.txt)|*.txt"_s);

    services.fileDialogs.answerSave(file(u"c.txt"_s));
    services.messages.expect(
        u"확인"_s, u"해당 이름의 파일이 이미 존재합니다. 이를 겹쳐쓰기 할까요?"_s, 52, Answer::No);
    record.Proc텍스트파일로추출();
    services.fileDialogs.answerSave({});
    record.ProcRTF로추출();
    EXPECT_EQ(failed, QStringList());
    services.fileDialogs.answerSave(file(u"no/such/folder/d.rtf"_s));
    record.ProcRTF로추출();
    EXPECT_EQ(failed, QStringList{file(u"no/such/folder/d.rtf"_s)});
}

TEST_F(RecordExportTest, SignsOfTheFormatSpoilTheComposedTextAsTheyAlwaysDid)
{
    boxes.plain[2] = u"a{b}\\par c"_s;
    services.fileDialogs.answerSave(file(u"a.txt"_s));
    record.Proc텍스트파일로추출();
    EXPECT_TRUE(read(file(u"a.txt"_s)).contains("ab\r\nc"));
}

TEST_F(RecordExportTest, ThePageTakesTheTextsOneAfterTheOther)
{
    boxes.plain[0] = u" 말씀내용 <b> "_s;
    services.fileDialogs.answerSave(file(u"page.htm"_s));
    services.messages.expect(u"HTML로 저장 완료"_s, u"HTML 파일로 저장이 완료되었습니다."_s, 48);
    record.saveAsPage();
    const SaveRequest request = services.fileDialogs.saveRequests.constFirst();
    EXPECT_EQ(request.name, u"말씀내용 <b>.htm"_s);
    EXPECT_TRUE(QDir(request.folder).exists());
    EXPECT_TRUE(request.folder.endsWith(u"/HTML"_s));
    const QByteArray bytes = read(file(u"page.htm"_s));
    const QString page = fromCodePage949(bytes);
    EXPECT_TRUE(page.contains(u"<TITLE> 말씀<BR>둘째 줄 <b> </TITLE>"_s)) << "replaced in turn";
    EXPECT_TRUE(page.contains(u"{가}\\<b>&漢字 &#1488;&#1489; &#128512;"_s));
    EXPECT_TRUE(page.contains(u"charset=euc-kr"_s));
    EXPECT_EQ(page.count(u"<TR>"_s), 8);
    EXPECT_TRUE(page.contains(u">2003-05-01</FONT></TD>"_s));
    EXPECT_EQ(page.count(u"\r\n"_s), page.count(u'\n'));
}

TEST_F(RecordExportTest, TheWordProcessorGetsTheSelectionOrAll)
{
    RichTextBox box;
    box.setTextRTF(u"{\\rtf1 one {\\b two} three}"_s);
    box.select(4, 3);
    services.messages.expectAny(u"선택 부분 추출 확인"_s, 51, Answer::Yes);
    record.ProcMS워드로추출(&box);
    EXPECT_EQ(rtfToPlainText(services.shell.documents.last()), u"two"_s);
    EXPECT_EQ(services.clipboard.content.plain, u"one two three"_s);
    services.messages.expectAny(u"선택 부분 추출 확인"_s, 51, Answer::No);
    record.ProcMS워드로추출(&box);
    EXPECT_TRUE(rtfToPlainText(services.shell.documents.last()).startsWith(u"[설교일]"_s));
    services.messages.expectAny(u"선택 부분 추출 확인"_s, 51, Answer::Cancel);
    record.ProcMS워드로추출(&box);
    EXPECT_EQ(services.shell.documents.size(), 2);
    services.shell.wordProcessor = false;
    services.messages.expect(u"MS 워드 미설치"_s, u"MS 워드가 설치되어 있지 않습니다."_s, 16);
    record.ProcMS워드로추출(&box);
}

TEST_F(RecordExportTest, OurOwnFilesHoldEveryLetter)
{
    services.fileDialogs.answerSave(file(u"a.odt"_s));
    record.saveAsOdt();
    EXPECT_EQ(services.fileDialogs.saveRequests[0].name, u"제목.odt"_s);
    if (const auto content = outputOf(u"unzip"_s, {u"-p"_s, file(u"a.odt"_s), u"content.xml"_s})) {
        QXmlStreamReader xml(*content);
        QString text;
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::Characters)
                text += xml.text();
        EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
        EXPECT_TRUE(text.contains(kHardText)) << text.toStdString();
        EXPECT_TRUE(text.contains(u"둘째 줄"_s));
        EXPECT_TRUE(content->contains(u"fo:font-weight=\"700\""_s) ||
                    content->contains(u"fo:font-weight=\"bold\""_s));
    }
    services.fileDialogs.answerSave(file(u"a.pdf"_s));
    record.saveAsPdf();
    EXPECT_TRUE(read(file(u"a.pdf"_s)).startsWith("%PDF"));
    if (const auto text = outputOf(u"pdftotext"_s, {file(u"a.pdf"_s), u"-"_s})) {
        // Where letters stand tells how wide a blank is, which is guessed in reading.
        const QString letters = QString(*text).remove(QRegularExpression(u"\\s"_s));
        EXPECT_TRUE(letters.contains(u"{가}\\<b>&漢字"_s)) << text->toStdString();
        EXPECT_TRUE(letters.contains(u"둘째줄"_s)) << text->toStdString();
        EXPECT_TRUE(letters.contains(u"설교본문"_s)) << text->toStdString();
    }
    EXPECT_EQ(failed, QStringList());
}

/// Reads a part through to its end; `onElement` sees each of its elements.
void readXml(const QString& part, const std::function<void(QXmlStreamReader&)>& onElement)
{
    QXmlStreamReader xml(part);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement)
            onElement(xml);
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

QString attribute(const QXmlStreamReader& xml, const QString& name)
{
    return xml.attributes().value(name).toString();
}

TEST_F(RecordExportTest, TheHangulWordProcessorGetsItsOwnFormat)
{
    boxes.plain[0] = u"\x01제목"_s;
    boxes.formatted[3] = u"{\\rtf1\\pard\\qc\\b one\\b0\\tab two\\line three\\par"
                         "\\trowd\\cellx2000\\cellx4000\\pard\\intbl A1\\cell B1\\cell\\row"
                         "\\trowd\\cellx2000\\cellx4000\\pard\\intbl A2\\cell B2\\cell\\row"
                         "\\pard end\\par}"_s;
    services.fileDialogs.answerSave(file(u"a.hwpx"_s));
    record.saveAsHwpx();
    EXPECT_EQ(failed, QStringList());
    // What tells the kind of a file stands where it can be read without unpacking.
    EXPECT_EQ(read(file(u"a.hwpx"_s)).mid(30, 27), "mimetypeapplication/hwp+zip");
    if (!outputOf(u"unzip"_s, {u"-t"_s, file(u"a.hwpx"_s)}))
        GTEST_SKIP() << "unzip is not installed";
    const auto part = [this](const QString& name) {
        return *outputOf(u"unzip"_s, {u"-p"_s, file(u"a.hwpx"_s), name});
    };
    QStringList listed;
    readXml(part(u"META-INF/container.xml"_s), [&](QXmlStreamReader& xml) {
        if (xml.name() == u"rootfile")
            listed << attribute(xml, u"full-path"_s);
    });
    readXml(part(listed.value(0)), [&](QXmlStreamReader& xml) {
        if (xml.name() == u"item")
            listed << attribute(xml, u"href"_s);
    });
    EXPECT_EQ(listed.size(), 4);
    for (const QString& name : listed + QStringList{u"version.xml"_s, u"META-INF/manifest.xml"_s})
        readXml(part(name), [](QXmlStreamReader&) {});

    QMap<QString, QStringList> letters;
    QMap<QString, QString> paragraphs;
    QString id;
    readXml(part(u"Contents/header.xml"_s), [&](QXmlStreamReader& xml) {
        if (xml.name() == u"charPr" || xml.name() == u"paraPr")
            id = attribute(xml, u"id"_s);
        letters[id] << xml.name().toString();
        if (xml.name() == u"align")
            paragraphs[id] = attribute(xml, u"horizontal"_s);
    });
    QStringList texts;
    QStringList cells;
    QStringList bold;
    QMap<QString, QString> alignments;
    QString run;
    QString paragraph;
    readXml(part(u"Contents/section0.xml"_s), [&](QXmlStreamReader& xml) {
        if (xml.name() == u"p")
            paragraph = attribute(xml, u"paraPrIDRef"_s);
        else if (xml.name() == u"run")
            run = attribute(xml, u"charPrIDRef"_s);
        else if (xml.name() == u"cellAddr")
            cells << texts.last() + attribute(xml, u"colAddr"_s) + attribute(xml, u"rowAddr"_s);
        if (xml.name() != u"t")
            return;
        ASSERT_TRUE(letters.contains(run) && paragraphs.contains(paragraph));
        QString text;
        while (xml.readNext() != QXmlStreamReader::EndElement || xml.name() != u"t") {
            if (xml.isCharacters())
                text += xml.text();
            else if (xml.isStartElement())
                text += u'/' + xml.name().toString();
        }
        texts << text;
        alignments[text] = paragraphs[paragraph];
        if (letters[run].contains(u"bold"_s))
            bold << text;
    });
    EXPECT_TRUE(texts.contains(kHardText)) << texts.join(u'|').toStdString();
    EXPECT_TRUE(bold.contains(kHardText));
    EXPECT_TRUE(bold.contains(u"one"_s));
    EXPECT_TRUE(texts.contains(u"/tabtwo/lineBreakthree"_s)) << texts.join(u'|').toStdString();
    EXPECT_FALSE(bold.contains(u"/tabtwo/lineBreakthree"_s));
    EXPECT_EQ(alignments[u"one"_s], u"CENTER"_s);
    EXPECT_EQ(alignments[u"end"_s], u"LEFT"_s);
    EXPECT_EQ(cells, (QStringList{u"A100"_s, u"B110"_s, u"A201"_s, u"B211"_s}));
}

} // namespace
} // namespace lumen
