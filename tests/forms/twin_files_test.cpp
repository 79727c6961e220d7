// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/files/twin_files.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(TwinFiles, AreToldTogetherWithTheOneThatIsUsed)
{
    TestServices world;
    const auto make = [&world](const QString& name) {
        QFile file(world.folders.data(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    };
    make(u"myc.mdb"_s);
    make(u"QT.mdb"_s);
    tellTwinFiles(world.services, world.state); // no box

    make(u"qt.MDB"_s);
    make(u"예화.dts"_s.normalized(QString::NormalizationForm_D));
    make(u"예화.dts"_s);
    make(u"myc.mdb.old"_s);
    world.messages.expect(
        u"같은 이름의 자료"_s,
        u"이름이 같은 자료 파일이 둘 이상 있습니다. 앞의 것만 쓰고 나머지는 그대로 둡니다.\r\n"_s +
            world.folders.data(u"QT.mdb"_s) + u" / qt.MDB\r\n"_s +
            world.folders.data(u"예화.dts"_s) + u" / "_s +
            u"예화.dts"_s.normalized(QString::NormalizationForm_D) +
            u"\r\n쓰지 않을 파일은 다른 폴더로 옮기십시오."_s,
        48);
    tellTwinFiles(world.services, world.state);
    world.messages.verify();
}

} // namespace
} // namespace lumen
