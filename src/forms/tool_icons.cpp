// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/tool_icons.h"

#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/colors.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
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

struct ToolIcon
{
    QStringView tool;
    QStringView icon;
};

constexpr std::array kToolIcons{
    ToolIcon{u"ID_AddBookmark", u"bookmark"},
    ToolIcon{u"ID_Panel", u"panel"},
    ToolIcon{u"ID_QuickMove", u"quick-move"},
    ToolIcon{u"ID_UnicodeCopy", u"copy-unicode"},
    ToolIcon{u"ID_검색", u"search"},
    ToolIcon{u"ID_다음장", u"next-chapter"},
    ToolIcon{u"ID_닫기", u"close"},
    ToolIcon{u"ID_목차", u"help"},
    ToolIcon{u"ID_복사", u"copy"},
    ToolIcon{u"ID_본문추출", u"extract"},
    ToolIcon{u"ID_붙여넣기", u"paste"},
    ToolIcon{u"ID_붙이기", u"paste"},
    ToolIcon{u"ID_이전장", u"previous-chapter"},
    ToolIcon{u"ID_잘라내기", u"cut"},
    ToolIcon{u"ID_테이블형식", u"table-view"},
    ToolIcon{u"ID_텍스트형식", u"text-view"},
    ToolIcon{u"ID_환경설정", u"preferences"},
};

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

void setToolIcons(const ActiveToolBars& bars)
{
    const QPalette look = QGuiApplication::palette();
    const bool dark = isDark(look);
    for (const ToolIcon& row : kToolIcons)
        if (Tool tool = bars.tool(row.tool); tool.exists())
            tool.setIcon(dark ? iconOn(look.color(QPalette::Window), row.icon)
                              : iconNamed(row.icon));
}

QIcon programIcon()
{
    return iconNamed(u"lumenscript");
}

} // namespace lumen
