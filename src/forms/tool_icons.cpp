// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/tool_icons.h"

#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/colors.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QMainWindow>
#include <QPalette>
#include <QPixmap>
#include <QRegularExpression>

#include <array>

// A static library's resources are linked only when they are asked for, outside any namespace.
static void initIconResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTrialSize = 16;
constexpr std::array kIconSizes{16, 24, 32, 48, 64};

QIcon iconNamed(QStringView name)
{
    initIconResources();
    const QIcon icon(u":/icons/%1.svg"_s.arg(name));
    // Without the plug-in the icon counts as one and paints nothing.
    return icon.pixmap(kTrialSize).isNull() ? QIcon() : icon;
}

/// The icon with its lines in colours that can be read on a dark ground.
QIcon iconOn(const QColor& ground, QStringView name)
{
    initIconResources();
    QFile file(u":/icons/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString drawing = QString::fromUtf8(file.readAll());
    static const QRegularExpression line(u"stroke=\"(#[0-9a-f]{6})\""_s);
    qsizetype from = 0;
    for (auto found = line.match(drawing); found.hasMatch(); found = line.match(drawing, from)) {
        const QString color = readableOn(ground, QColor(found.captured(1))).name();
        drawing.replace(found.capturedStart(1), found.capturedLength(1), color);
        from = found.capturedEnd(1);
    }
    QByteArray svg = drawing.toUtf8();
    QIcon icon;
    for (const int size : kIconSizes) {
        QBuffer buffer(&svg);
        QImageReader reader(&buffer, "svg");
        reader.setScaledSize({size, size});
        icon.addPixmap(QPixmap::fromImageReader(&reader));
    }
    return icon;
}

} // namespace

namespace {

void drawIcons(const ActiveToolBars& bars)
{
    const QPalette look = QGuiApplication::palette();
    const bool dark = isDark(look);
    for (const ToolRow& row : bars.rows())
        if (!row.icon.isEmpty())
            bars.tool(row.id).setIcon(dark ? iconOn(look.color(QPalette::Window), row.icon)
                                           : iconNamed(row.icon));
}

} // namespace

void setToolIcons(QMainWindow& window, const ActiveToolBars& bars)
{
    drawIcons(bars);
    onSchemeChange(window, [&bars] { drawIcons(bars); });
}

QIcon programIcon()
{
    return iconNamed(u"lumenscript");
}

} // namespace lumen
