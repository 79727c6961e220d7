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

TEST_F(FormGeometryTest, AWindowOnASecondScreenComesBackThere)
{
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    window.setGeometry(850, 130, 600, 450);
    saveFormGeometry(registry, geometry::kBibleSearch, window);
    QWidget next;
    Proc시동크기위치설정(registry, geometry::kBibleSearch, next);
    EXPECT_EQ(next.geometry(), QRect(850, 130, 600, 450));
    saveFormPosition(registry, geometry::kExtract, window);
    restorePosition(registry, geometry::kExtract, next);
    EXPECT_EQ(next.pos(), QPoint(850, 130));
    window.move(1600, 130); // where a third one was
    saveFormGeometry(registry, geometry::kBibleSearch, window);
    Proc시동크기위치설정(registry, geometry::kBibleSearch, next);
    EXPECT_EQ(next.geometry(), QRect(100, 130, 600, 450));
}

TEST_F(FormGeometryTest, AWindowOfALargerScreenComesBackWhollyVisible)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QRect& former : {QRect(500, 600, 700, 500), QRect(1200, 900, 1900, 1000),
                                QRect(-3, 700, 500, 450), QRect(700, 30, 600, 450)}) {
        window.setGeometry(former);
        saveFormGeometry(registry, geometry::kBibleSearch, window);
        QWidget next;
        Proc시동크기위치설정(registry, geometry::kBibleSearch, next);
        const QRect place = next.geometry();
        EXPECT_TRUE(screen.contains(place) ||
                    QGuiApplication::screens().back()->availableGeometry().contains(place))
            << place.x() << ' ' << place.y() << ' ' << place.width() << ' ' << place.height();
    }
}

TEST_F(FormGeometryTest, AMaximisedWindowComesBackSoAndRestoresToWhereItStood)
{
    Proc시동크기위치설정(registry, geometry::kBibleSearch, window);
    window.setGeometry(40, 30, 500, 450);
    window.show();
    window.showMaximized();
    ASSERT_TRUE(window.isMaximized());
    saveFormGeometry(registry, geometry::kBibleSearch, window);
    for (int start = 0; start < 2; ++start) {
        QWidget again;
        Proc시동크기위치설정(registry, geometry::kBibleSearch, again);
        again.show();
        EXPECT_TRUE(again.isMaximized());
        saveFormGeometry(registry, geometry::kBibleSearch, again);
    }
    QWidget next;
    Proc시동크기위치설정(registry, geometry::kBibleSearch, next);
    next.show();
    next.showNormal();
    EXPECT_EQ(next.geometry(), QRect(40, 30, 500, 450));
    saveFormGeometry(registry, geometry::kBibleSearch, next);
    QWidget last;
    Proc시동크기위치설정(registry, geometry::kBibleSearch, last);
    EXPECT_FALSE(last.isMaximized());
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
