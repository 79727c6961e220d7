// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/check_data.h"
#include "jet/data_control.h"
#include "panel/panel_host.h"
#include "panel/reference_panel.h"
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/test_services.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <memory>
#include <utility>

namespace lumen {

/// A stored column: scrambled text, Null for a null string.
inline QVariant scrambled(const QString& text)
{
    return text.isNull() ? QVariant() : QVariant(DES::ScrambleField(text));
}

inline ColumnDef memoColumn(const QString& name)
{
    return ColumnDef{name, FieldType::Memo, 0};
}

/// One tab in the panel of a reader that stands where a test puts it.
template <typename Tab>
class PanelTabFixture : public testing::Test
{
protected:
    /// To be called when the modules are written.
    void open()
    {
        CheckData(world.state, world.files, world.jet);
        auto made = std::make_unique<Tab>(PanelHost{.services = world.services,
                                                    .state = world.state,
                                                    .reader = reader,
                                                    .dacRefTab = dacRefTab});
        tab = made.get();
        panel.onStatus = [this](const QString& text) { status = text; };
        panel.addTab(std::move(made));
        panel.resize(900, 400);
        showActive(panel);
        panel.sst관주사전->selectCaption(tab->caption().toString());
        panel.toggle();
        QCoreApplication::processEvents(); // lays the page out
    }

    void goTo(int book, int chapter, int verse)
    {
        reader.goTo(book, chapter, verse);
        panel.showPlace();
    }

    TestServices world;
    FakeReader reader;
    DataControl dacRefTab{world.jet};
    QString status;
    Tab* tab = nullptr;
    ReferencePanel panel{world.services};
};

} // namespace lumen
