// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/user_version_dialog.h"

#include "data/settings.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/files/fonts.h"
#include "platform/registry/registry_store.h"
#include "tools/messages.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kKoreanSlots = 5;
constexpr int kShownFontName = 14; // letters

constexpr std::array kSizes{u"8",  u"9",  u"10", u"11", u"12", u"14", u"16", u"18",
                            u"20", u"22", u"24", u"26", u"28", u"36", u"48", u"72"};

bool isKoreanSlot(int slot)
{
    return slot <= kKoreanSlots;
}

QString slotCaption(int slot)
{
    const QString purpose = isKoreanSlot(slot) ? u"한글용"_s : u"영문용"_s;
    return u"사용자 역본%1(%2)"_s.arg(slot).arg(purpose);
}

/// A stored value that the list doesn't hold is added, so that saving keeps it.
void showItem(ComboBox& box, const QString& item)
{
    if (box.findItem(item) < 0)
        box.AddItem(item);
    box.setListIndex(box.findItem(item));
}

} // namespace

dlogUserVersionPref::dlogUserVersionPref(Services& services, ReaderPlace& reader, QWidget* parent)
    : QDialog(parent), m_services(services), m_reader(reader)
{
    setObjectName(u"dlogUserVersionPref"_s);
    setWindowTitle(u"사용자 역본 환경 설정"_s);
    fillLists();
    showStored();
    layOut();
    connect(cmdOK, &QPushButton::clicked, this, [this] {
        save();
        accept();
    });
    connect(cmdApply, &QPushButton::clicked, this, [this] { save(); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void dlogUserVersionPref::fillLists()
{
    const QStringList families = m_services.fonts.families();
    for (int index = 0; index < kUserVersionCount; ++index) {
        const int slot = index + 1;
        // The longest name of all fonts would make the dialog wider than a small screen.
        cbFont(index)->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        cbFont(index)->setMinimumContentsLength(kShownFontName);
        cbFont(index)->setAccessibleName(slotCaption(slot) + u" 서체"_s);
        cbSize(index)->setAccessibleName(slotCaption(slot) + u" 크기"_s);
        for (const QString& family : families)
            if (!family.startsWith(u'@'))
                cbFont(index)->AddItem(family);
        // The Korean rows begin with another font than the one that an unset slot is shown in.
        const QString preferred = isKoreanSlot(slot) ? u"굴림체"_s : u"Arial"_s;
        cbFont(index)->setListIndex(cbFont(index)->findItem(preferred));
        for (const char16_t* size : kSizes)
            cbSize(index)->AddItem(QString::fromUtf16(size));
    }
}

void dlogUserVersionPref::showStored()
{
    // The sizes that the text is shown in: a stored one out of all limits isn't.
    const auto shown = GetUserFontSize(m_services.registry);
    m_services.registry.OpenKey(settingsPath(settings_key::kBible));
    for (int index = 0; index < kUserVersionCount; ++index) {
        const QString slot = QString::number(index + 1);
        const QString font = m_services.registry.GetValue(u"UserFont"_s + slot, ValueKind::String);
        if (!font.isEmpty())
            showItem(*cbFont(index), font);
        showItem(*cbSize(index), shown[static_cast<std::size_t>(index)].size);
    }
}

QGroupBox* dlogUserVersionPref::frame(const QString& title, int firstSlot, int lastSlot)
{
    auto* box = new QGroupBox(title);
    auto* grid = new QGridLayout(box);
    for (int slot = firstSlot; slot <= lastSlot; ++slot) {
        auto* label = new QLabel(slotCaption(slot));
        label->setBuddy(cbFont(slot - 1));
        grid->addWidget(label, slot, 0);
        grid->addWidget(cbFont(slot - 1), slot, 1);
        grid->addWidget(cbSize(slot - 1), slot, 2);
    }
    grid->setColumnStretch(1, 1);
    return box;
}

void dlogUserVersionPref::layOut()
{
    auto* frames = new QHBoxLayout;
    frames->addWidget(frame(u"한글 전용 사용자 역본"_s, 1, kKoreanSlots), 0, Qt::AlignTop);
    frames->addWidget(frame(u"영문 전용 사용자 역본"_s, kKoreanSlots + 1, kUserVersionCount), 0,
                      Qt::AlignTop);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {cmdOK, cmdApply, cmdCancel})
        buttons->addWidget(button);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(frames, 1);
    layout->addLayout(buttons);
    cmdOK->setDefault(true);
}

void dlogUserVersionPref::save()
{
    FontSettings fonts;
    for (int index = 0; index < kUserVersionCount; ++index)
        fonts.userFonts[static_cast<std::size_t>(index)] = {cbFont(index)->Text(),
                                                            cbSize(index)->Text()};
    saveSettings(m_services.registry, userFontTable(), fonts, Writer::Preferences);
    if (!m_services.registry.flush())
        m_services.messages.show(this, messages::kSettingsNotSaved);
    guarded(m_services, this, [this] { m_reader.applySettings(); });
}

} // namespace lumen
