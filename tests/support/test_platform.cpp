// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/test_platform.h"

using namespace Qt::StringLiterals;

namespace lumen {

Result<Done> RecordingShell::open(const QString& target)
{
    opened << target;
    if (failure)
        return *failure;
    return Done{};
}

void MemoryClipboard::set(const ClipboardContent& value)
{
    content = value;
    ++setCount;
}

int TestFonts::AddFontResource(const QString& path)
{
    added << path;
    return facesPerFile;
}

Result<Done> RecordingHelp::showIndex()
{
    return note(u"index"_s);
}

Result<Done> RecordingHelp::showSearch()
{
    return note(u"search"_s);
}

Result<Done> RecordingHelp::note(const QString& page)
{
    asked << page;
    if (failure)
        return *failure;
    return Done{};
}

} // namespace lumen
