// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/startup.h"
#include "app/world.h"
#include "forms/tool_icons.h"
#include "platform/log.h"

#include <QApplication>
#include <QCommandLineParser>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"lumenscript"_s);
    QApplication::setApplicationVersion(QStringLiteral(LUMEN_VERSION));
    QApplication::setDesktopFileName(u"lumenscript"_s);
    QApplication::setWindowIcon(lumen::programIcon());
    lumen::setUpLogging();

    QCommandLineParser parser;
    parser.setApplicationDescription(u"성경 연구 작업대"_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(app);

    lumen::World world(lumen::findDriveFolders());
    return lumen::Main(world);
}
