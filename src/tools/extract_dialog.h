// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tools/verse_range_dialog.h"

#include <QRadioButton>

namespace lumen {

/// Takes a verse range out of a version, to the clipboard or to a text file.
class dlog성서추출 : public VerseRangeDialog
{
public:
    dlog성서추출(Services& services, const AppState& state, QWidget* parent = nullptr);

    void Form_Load() override;
    void done(int result) override;

    QRadioButton* opt클립보드 = named<QRadioButton>(u"opt클립보드", u"클립보드로(&P)");
    QRadioButton* OptFile = named<QRadioButton>(u"OptFile", u"텍스트 파일로(&F)");

protected:
    void deliver(const QString& text, const ExtractRange& range) override;

private:
    /// False when the user stopped it or it failed.
    bool writeFile(const QString& text, const ExtractRange& range);
};

} // namespace lumen
