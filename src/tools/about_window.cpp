// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/about_window.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 28;          // pixels
constexpr double kTitleFactor = 2.2; // of the text size
constexpr int kSmallestWidth = 400;  // pixels

QLabel* titleLabel()
{
    auto* label = named<QLabel>(u"lblTitle", u"Lumenscript");
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * kTitleFactor);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QString aboutText()
{
    return u"판 %1\n\n성경 읽기와 연구를 위한 작업대\n\n"
           "GNU 일반 공중 사용 허가서 2판 또는 그 이후 판을 따르는 자유 소프트웨어입니다.\n"
           "성경 본문과 참고 자료의 출처는 도움말의 역본 설명에 적혀 있습니다."_s.arg(
               QCoreApplication::applicationVersion());
}

} // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent)
{
    setObjectName(u"frmAbout"_s);
    setWindowTitle(u"루멘 스크립트에 대하여"_s);
    setMinimumWidth(kSmallestWidth);
    auto* text = named<QLabel>(u"lblText");
    text->setText(aboutText());
    text->setWordWrap(true);
    progressBar->setRange(0, 100);
    progressBar->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(titleLabel());
    layout->addWidget(text);
    layout->addSpacing(kMargin / 2);
    layout->addWidget(progressBar);
    layout->addWidget(cmdOK, 0, Qt::AlignRight);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void frmAbout::showSplash()
{
    setWindowFlags(Qt::SplashScreen);
    cmdOK->hide();
    progressBar->setValue(0);
    progressBar->show();
    show();
    paintNow();
}

void frmAbout::setProgress(int percent)
{
    progressBar->setValue(percent);
    paintNow();
}

void frmAbout::hideSplash()
{
    hide();
    setWindowFlags(Qt::Dialog);
    progressBar->hide();
    cmdOK->show();
}

void frmAbout::paintNow()
{
    if (isVisible())
        repaint();
}

} // namespace lumen
