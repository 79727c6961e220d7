// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/startup_progress.h"
#include "platform/controls/named.h"

#include <QDialog>
#include <QProgressBar>
#include <QPushButton>

namespace lumen {

/// The about box, which is also the splash window of the start: as the one it has a button, as the
/// other a progress bar.
class frmAbout : public QDialog, public StartupProgress // no Q_OBJECT: nothing here emits
{
public:
    explicit frmAbout(QWidget* parent = nullptr);

    /// The splash window. Nothing runs events while the program starts, so each step is painted at
    /// once.
    void showSplash() override;
    void setProgress(int percent) override;
    void hideSplash() override;

    QProgressBar* progressBar = named<QProgressBar>(u"StartupProgress", u"시작하는 중");
    QPushButton* cmdOK = named<QPushButton>(u"cmdOK", u"확인(&O)");

private:
    void paintNow();
};

} // namespace lumen
