// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/preferences_dialog.h"

#include "data/version_font.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "panel/panel_tab.h"
#include "platform/dialogs/file_dialogs.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/files/fonts.h"
#include "platform/registry/registry_store.h"
#include "tools/messages.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

dlog환경설정::dlog환경설정(Services& services, ReaderPlace& reader, QWidget* parent)
    : QDialog(parent), m_services(services), m_reader(reader)
{
    setObjectName(u"dlog환경설정"_s);
    setWindowTitle(u"환경 설정"_s);
    for (const QString& family : m_services.fonts.families())
        cb본문서체->AddItem(family);
    layOut();
    wire();

    const ReaderSettings settings = readReaderSettings(m_services.registry, kPanelTabCount);
    showFont(settings.MainFont);
    showColors(settings.colors);
    showOptions(settings.copy);
}

std::array<dlog환경설정::ColorRow, 6> dlog환경설정::colorRows() const
{
    return {{{cmd기본역본, pic기본역본},
             {cmd대역본1, pic대역본1},
             {cmd대역본2, pic대역본2},
             {cmd대역본3, pic대역본3},
             {cmd구분색, pic구분색},
             {cmd바탕색, pic바탕색}}};
}

void dlog환경설정::layOut()
{
    auto* general = new QWidget;
    auto* font = new QFormLayout;
    font->addRow(u"본문 서체(&F)"_s, cb본문서체);
    auto* colors = new QGroupBox(u"색"_s);
    auto* grid = new QGridLayout(colors);
    int row = 0;
    for (const auto& [button, picture] : colorRows()) {
        grid->addWidget(button, row, 0);
        grid->addWidget(picture, row++, 1);
    }
    grid->setColumnStretch(1, 1);
    auto* generalLayout = new QVBoxLayout(general);
    generalLayout->addLayout(font);
    generalLayout->addWidget(colors);

    auto* copy = new QWidget;
    auto* copyLayout = new QVBoxLayout(copy);
    for (QCheckBox* box :
         {chkCopyAddIndex, chkAddVersion, chkFullName, chkSep, chkParenthesis, chkCrLf})
        copyLayout->addWidget(box);
    copyLayout->addStretch();

    auto* pages = named<QTabWidget>(u"tabPages");
    pages->addTab(general, u"일반"_s);
    pages->addTab(copy, u"본문 복사"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmd초기값);
    buttons->addStretch();
    for (QPushButton* button : {cmd확인, cmd취소, cmdApply})
        buttons->addWidget(button);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages, 1);
    layout->addLayout(buttons);
    cmd확인->setDefault(true);
}

void dlog환경설정::wire()
{
    for (const auto& [button, picture] : colorRows()) {
        PictureBox* const box = picture;
        connect(button, &QPushButton::clicked, this, [this, box] { chooseColor(*box); });
        box->onClick = [this, box] { chooseColor(*box); };
    }
    connect(chkCopyAddIndex, &QCheckBox::toggled, this, [this] { enableDependentBoxes(); });
    connect(cmd초기값, &QPushButton::clicked, this, [this] { cmd초기값_Click(); });
    connect(cmdApply, &QPushButton::clicked, this, [this] { save(); });
    connect(cmd확인, &QPushButton::clicked, this, [this] {
        save();
        accept();
    });
    connect(cmd취소, &QPushButton::clicked, this, &QDialog::reject);
    // Its caption is fixed and has no letter to mark.
    cmdApply->setShortcut(Qt::ALT | Qt::Key_A);
}

void dlog환경설정::chooseColor(PictureBox& box)
{
    if (const auto color = m_services.fileDialogs.color(this, box.BackColor()))
        box.setBackColor(*color);
}

void dlog환경설정::showFont(const QString& font)
{
    // A font that is not installed here any more stays the user's choice.
    if (cb본문서체->findItem(font) < 0)
        cb본문서체->AddItem(font);
    cb본문서체->setListIndex(cb본문서체->findItem(font));
}

void dlog환경설정::showColors(const ReaderColors& colors)
{
    pic기본역본->setBackColor(colors.DefVerColor);
    pic대역본1->setBackColor(colors.verColors[0]);
    pic대역본2->setBackColor(colors.verColors[1]);
    pic대역본3->setBackColor(colors.verColors[2]);
    pic구분색->setBackColor(colors.AltColor);
    pic바탕색->setBackColor(colors.BackColor);
}

ReaderColors dlog환경설정::shownColors() const
{
    return {pic기본역본->BackColor(),
            {pic대역본1->BackColor(), pic대역본2->BackColor(), pic대역본3->BackColor()},
            pic구분색->BackColor(),
            pic바탕색->BackColor()};
}

void dlog환경설정::showOptions(const CopyOptions& options)
{
    chkCopyAddIndex->setChecked(options.addIndex);
    chkAddVersion->setChecked(options.addVersion);
    chkFullName->setChecked(options.fullName);
    chkSep->setChecked(options.formalSep);
    chkParenthesis->setChecked(options.parenthesis);
    chkCrLf->setChecked(options.crLf);
    enableDependentBoxes();
}

CopyOptions dlog환경설정::shownOptions() const
{
    return {chkCopyAddIndex->isChecked(), chkAddVersion->isChecked(),  chkFullName->isChecked(),
            chkSep->isChecked(),          chkParenthesis->isChecked(), chkCrLf->isChecked()};
}

void dlog환경설정::enableDependentBoxes()
{
    // The ticks stay for the next time.
    for (QCheckBox* box : {chkAddVersion, chkFullName, chkParenthesis, chkSep, chkCrLf})
        box->setEnabled(chkCopyAddIndex->isChecked());
}

void dlog환경설정::cmd초기값_Click()
{
    showFont(defaultFontSettings().mainFont);
    showColors(kDefaultColors);
    showOptions(CopyOptions{});
}

void dlog환경설정::save()
{
    ReaderSettings settings;
    settings.MainFont = cb본문서체->Text();
    settings.colors = shownColors();
    settings.copy = shownOptions();
    saveSettings(m_services.registry, readerTable(), settings, Writer::Preferences);
    if (!m_services.registry.flush())
        m_services.messages.show(this, messages::kSettingsNotSaved);
    guarded(m_services, this, [this] { m_reader.applySettings(); });
}

} // namespace lumen
