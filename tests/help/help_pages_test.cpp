// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/help_menu.h"
#include "reader/reader_tools.h"
#include "search/search_tools.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QXmlStreamReader>

#include <span>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// A page as the links see it.
struct HelpPage
{
    QStringList links; ///< targets in the help itself, with their "#..."
    QSet<QString> anchors;
    QMap<QString, QString> readerKeys; ///< shortcuts told, by tool id
    QMap<QString, QString> searchKeys;
    QString error;
};

QString helpFile(const QString& name)
{
    return QStringLiteral(LUMEN_HELP_FOLDER) + u'/' + name;
}

HelpPage readPage(const QString& name)
{
    HelpPage page;
    QFile file(helpFile(name));
    if (!file.open(QIODevice::ReadOnly)) {
        page.error = u"can't be read"_s;
        return page;
    }
    QXmlStreamReader xml(&file);
    bool inSearchTable = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (attributes.hasAttribute(u"id"_s))
            page.anchors << attributes.value(u"id"_s).toString();
        for (const QString& link : {u"href"_s, u"src"_s})
            if (attributes.hasAttribute(link))
                page.links << attributes.value(link).toString();
        if (xml.name() == u"table")
            inSearchTable = attributes.value(u"class"_s) == u"search";
        if (attributes.hasAttribute(u"data-tool"_s))
            (inSearchTable ? page.searchKeys : page.readerKeys)
                .insert(attributes.value(u"data-tool"_s).toString(),
                        attributes.value(u"data-keys"_s).toString());
    }
    if (xml.hasError())
        page.error = u"line %1: %2"_s.arg(xml.lineNumber()).arg(xml.errorString());
    return page;
}

QStringList pageNames()
{
    return QDir(QStringLiteral(LUMEN_HELP_FOLDER)).entryList({u"*.htm"_s}, QDir::Files);
}

TEST(HelpPagesTest, EveryLinkLeadsSomewhere)
{
    QMap<QString, HelpPage> pages;
    for (const QString& name : pageNames())
        pages.insert(name, readPage(name));
    ASSERT_GE(pages.size(), 10);
    for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
        EXPECT_EQ(page->error.toStdString(), "") << qPrintable(page.key());
        for (const QString& link : page->links) {
            SCOPED_TRACE(qPrintable(page.key() + u" -> "_s + link));
            const QString target = link.section(u'#', 0, 0);
            const QString anchor = link.section(u'#', 1);
            EXPECT_TRUE(QFile::exists(helpFile(target)));
            EXPECT_TRUE(anchor.isEmpty() || pages.value(target).anchors.contains(anchor));
        }
    }
}

TEST(HelpPagesTest, ThePagesThatTheProgramOpensAreThereAndListAllOthers)
{
    for (const QString& name :
         {u"Lumens_Intro.htm"_s, u"HowtoSearchBible.htm"_s, u"index.htm"_s, u"search.htm"_s}) {
        SCOPED_TRACE(qPrintable(name));
        const HelpPage page = readPage(name);
        EXPECT_EQ(page.error.toStdString(), "");
        for (const QString& other : pageNames())
            EXPECT_TRUE(other == name || page.links.contains(other)) << qPrintable(other);
    }
}

TEST(HelpPagesTest, TheSearchPageKnowsAllTopicsOfTheIndex)
{
    const HelpPage search = readPage(u"search.htm"_s);
    for (const QString& topic : readPage(u"index.htm"_s).links)
        EXPECT_TRUE(search.links.contains(topic) || topic == u"search.htm") << qPrintable(topic);
}

void expectKeys(const QMap<QString, QString>& told,
                std::initializer_list<std::span<const ToolRow>> menus)
{
    std::vector<ToolRow> tools(kHelpMenu.begin(), kHelpMenu.end());
    for (const std::span<const ToolRow> menu : menus)
        tools.insert(tools.end(), menu.begin(), menu.end());
    EXPECT_FALSE(told.isEmpty());
    for (auto tool = told.cbegin(); tool != told.cend(); ++tool) {
        SCOPED_TRACE(qPrintable(tool.key()));
        bool found = false;
        for (const ToolRow& row : tools)
            if (row.id == tool.key() && row.shortcut == tool.value())
                found = true;
        EXPECT_TRUE(found) << "the window has no such tool with the keys "
                           << qPrintable(tool.value());
    }
}

TEST(HelpPagesTest, TheShortcutsToldAreThoseOfTheWindows)
{
    const HelpPage page = readPage(u"Shortcuts.htm"_s);
    expectKeys(page.readerKeys, {kReaderFileMenu, editMenuRows(kReaderEditTools), kReaderTools});
    expectKeys(page.searchKeys, {kSearchFileMenu, editMenuRows(kSearchEditTools), kSearchTools});
}

} // namespace
} // namespace lumen
