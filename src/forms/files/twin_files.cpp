// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/files/twin_files.h"

#include "data/app_state.h"
#include "data/compact_and_backup.h"
#include "data/module_path.h"
#include "forms/services.h"
#include "jet/engine.h"
#include "platform/dialogs/message_boxes.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// %1 is a line for each of them.
constexpr MessageText kTwins{u"같은 이름의 자료",
                             u"이름이 같은 자료 파일이 둘 이상 있습니다. 앞의 것만 쓰고 나머지는 "
                             u"그대로 둡니다.\r\n%1\r\n쓰지 않을 파일은 다른 폴더로 옮기십시오.",
                             48};

QString folded(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QStringList twinsOf(const QFileInfo& used)
{
    QStringList twins = used.dir().entryList(QDir::Files | QDir::Hidden, QDir::Name);
    twins.removeIf([&used](const QString& name) {
        return name == used.fileName() || folded(name) != folded(used.fileName());
    });
    return twins;
}

} // namespace

void tellTwinFiles(Services& services, const AppState& state)
{
    QStringList lines;
    for (const UserFile& file : user_file::kAll) {
        const QString path = joinedPath(state.AppPath, u"\\Data"_s + file.name.toString());
        const QFileInfo used(services.jet.paths().nativePath(path));
        if (const QStringList twins = twinsOf(used); used.isFile() && !twins.isEmpty())
            lines << used.filePath() + u" / "_s + twins.join(u", "_s);
    }
    if (!lines.isEmpty())
        services.messages.show(nullptr, kTwins, {lines.join(u"\r\n"_s)});
}

} // namespace lumen
