// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/qt_file_dialogs.h"

#include <QColor>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace lumen {

QStringList nameFilters(const QString& filter)
{
    QStringList result;
    const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // The label often names the pattern already; the toolkit wants it in brackets.
        const QString patterns = QString(parts[i + 1]).replace(u';', u' ');
        const qsizetype bracket = parts[i].indexOf(u'(');
        const QString label = bracket < 0 ? parts[i] : parts[i].first(bracket);
        result << label.trimmed() + u" ("_s + patterns + u')';
    }
    return result;
}

QString withExtension(const QString& path, const QString& extension)
{
    if (extension.isEmpty() || !QFileInfo(path).suffix().isEmpty())
        return path;
    return path + (extension.startsWith(u'.') ? extension : u'.' + extension);
}

std::optional<QString> QtFileDialogs::save(QWidget* parent, const SaveRequest& request)
{
    const bool hasFolder = !request.folder.isEmpty() && QFileInfo(request.folder).isDir();
    const QString folder =
        hasFolder ? request.folder
                  : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(parent, request.title, folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(nameFilters(request.filter));
    dialog.selectFile(request.name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return withExtension(dialog.selectedFiles().constFirst(), request.defaultExtension);
}

std::optional<RgbLong> QtFileDialogs::color(QWidget* parent, RgbLong color)
{
    const QColor before(redPart(color), greenPart(color), bluePart(color));
    const QColor chosen = QColorDialog::getColor(before, parent, u"색 선택"_s);
    if (!chosen.isValid())
        return {};
    return RGB(chosen.red(), chosen.green(), chosen.blue());
}

} // namespace lumen
