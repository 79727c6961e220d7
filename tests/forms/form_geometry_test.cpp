// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/form_geometry.h"
#include "platform/controls/twips.h"
#include "platform/registry/registry_store.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class FormGeometryTest : public testing::Test
{
protected:
    void store(const QString& name, const QString& text)
    {
        registry.OpenKey(settingsPath(settings_key::kBibleSearch));
        registry.SetValue(name, text, ValueKind::Long);
    }
    QString stored(const QString& name)
    {
        registry.OpenKey(settingsPath(settings_key::kBibleSearch));
        return registry.GetValue(name, ValueKind::Long);
    }

    RegistryStore registry{QString()};
    QWidget window;
};

TEST_F(FormGeometryTest, WhatWasSavedComesBack)
{
    window.setGeometry(40, 30, 500, 450);
    saveFormGeometry(registry, geometry::kBibleSearch, window);
    QWidget next;
    Proc시동크기위치설정(registry, geometry::kBibleSearch, next);
    EXPECT_EQ(next.geometry(), window.geometry());
    EXPECT_EQ(stored(u"Width"_s), QString::number(toTwips(500)));
}

TEST_F(FormGeometryTest, AMaximisedWindowComesBackSoAndRestoresToWhereItStood)
{
    window.setGeometry(40, 30, 500, 450);
    window.show();
    window.showMaximized();
    ASSERT_TRUE(window.isMaximized());
    saveFormGeometry(registry, geometry::kBibleSearch, window);
    QWidget next;
    Proc시동크기위치설정(registry, geometry::kBibleSearch, next);
    next.show();
    EXPECT_TRUE(next.isMaximized());
    next.showNormal();
    EXPECT_EQ(next.geometry(), QRect(40, 30, 500, 450));
    saveFormGeometry(registry, geometry::kBibleSearch, next);
    QWidget third;
    Proc시동크기위치설정(registry, geometry::kBibleSearch, third);
    EXPECT_FALSE(third.isMaximized());
}

TEST_F(FormGeometryTest, AWindowOfFixedSizeKeepsItsSize)
{
    window.setGeometry(70, 60, 321, 123);
    saveFormPosition(registry, geometry::kBibleSearch, window);
    EXPECT_EQ(stored(u"Width"_s), QString());
    QWidget next;
    next.resize(321, 123);
    restorePosition(registry, geometry::kBibleSearch, next);
    EXPECT_EQ(next.pos(), QPoint(70, 60));
    EXPECT_EQ(next.size(), QSize(321, 123));
}

} // namespace
} // namespace lumen
