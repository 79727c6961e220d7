// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/data_store.h"
#include "records/record_manager.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

namespace lumen {

/// What a window would hold: the texts that were shown or typed.
class FakeBoxes : public RecordBoxes
{
public:
    QString plainText(int text) const override { return plain[static_cast<std::size_t>(text)]; }
    QString rtf(int text) const override { return formatted[static_cast<std::size_t>(text)]; }
    QString category() const override { return categoryText; }
    QDate preachedDay() const override { return preached; }
    QDate writtenDay() const override { return written; }

    std::array<QString, kRecordTexts> plain;
    std::array<QString, kRecordTexts> formatted;
    QString categoryText;
    QDate preached{2003, 5, 1}; // a picker always shows a day
    QDate written{2003, 5, 1};
};

/// The RTF that the tests use for a text.
inline QString rtfOf(const QString& text)
{
    return QStringLiteral("{\\rtf1 ") + text + QLatin1Char('}');
}

/// A manager over databases of a first start, with a hand that types into its boxes.
class RecordFixture : public testing::Test
{
protected:
    explicit RecordFixture(const RecordProfile& of = record_profile::kSermon) : profile(of)
    {
        EXPECT_TRUE(createUserDatabases(services.state.AppPath, services.files, services.drives,
                                        QDate(2003, 5, 1)));
    }

    /// As a start of the program does after whatever happened before.
    RecordManager& open()
    {
        manager.emplace(profile, services.services, services.state, boxes);
        manager->open();
        show();
        return *manager;
    }
    void show()
    {
        const RecordValues& values = manager->values();
        for (std::size_t i = 0; i < boxes.plain.size(); ++i) {
            boxes.formatted[i] = values.rtf[i].value_or(QString());
            QString text = boxes.formatted[i];
            boxes.plain[i] =
                text.startsWith(QLatin1String("{\\rtf1 ")) ? text.mid(7).chopped(1) : text;
        }
        boxes.categoryText = values.category.value_or(QString());
        boxes.preached = values.preached.value_or(QDate(2003, 5, 1));
        boxes.written = values.written.value_or(QDate(2003, 5, 1));
    }
    void type(RecordPart part, const QString& text)
    {
        const auto at = static_cast<std::size_t>(part);
        boxes.plain[at] = text;
        boxes.formatted[at] = rtfOf(text);
        manager->changed(part);
    }
    void move(RecordMove where)
    {
        ASSERT_EQ(manager->move(where), SaveOutcome::Stored);
        show();
    }
    /// Records with these titles, the first one being that of the first start; ends on the last.
    void make(const QStringList& titles)
    {
        for (const QString& title : titles) {
            if (title != titles.front()) {
                ASSERT_EQ(manager->addNew(), SaveOutcome::Stored);
                show();
            }
            type(RecordPart::Title, title);
            ASSERT_EQ(manager->save(), SaveOutcome::Stored);
        }
    }
    QString title() const { return boxes.plain[0]; }
    void wait(int ms) { services.clock.time = services.clock.time.addMSecs(ms); }

    /// The values of a column in the order of the records, as another reader of the file sees them.
    QVariantList column(const QString& name)
    {
        const auto database = services.jet.OpenDatabase(manager->data().DatabaseName);
        const auto rows = database->OpenRecordset(profile.source());
        QVariantList values;
        for (; !rows->Eof(); rows->MoveNext())
            values << rows->Fields(name).Value();
        return values;
    }

    const RecordProfile& profile;
    TestServices services;
    FakeBoxes boxes;
    std::optional<RecordManager> manager;
};

} // namespace lumen
