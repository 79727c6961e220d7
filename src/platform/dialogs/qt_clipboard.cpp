// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

using namespace Qt::StringLiterals;

namespace lumen {

void QtClipboard::set(const ClipboardContent& content)
{
    auto data = std::make_unique<QMimeData>();
    if (!content.plain.isEmpty())
        data->setText(content.plain);
    if (!content.html.isEmpty())
        data->setHtml(content.html);
    // Word processors ask for one or the other.
    if (!content.rtf.isEmpty()) {
        data->setData(u"text/rtf"_s, content.rtf);
        data->setData(u"application/rtf"_s, content.rtf);
    }
    QGuiApplication::clipboard()->setMimeData(data.release());
}

QString QtClipboard::plainText() const
{
    return QGuiApplication::clipboard()->text();
}

} // namespace lumen
