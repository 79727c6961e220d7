// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"
#include "forms/services.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/picture_box.h"

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>

#include <array>

namespace lumen {

class ReaderPlace;

/// The main font, the colours of the reader and the options of a verse copy. Nothing is stored
/// before cmd확인 or cmdApply; the reader then takes the settings anew.
class dlog환경설정 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    dlog환경설정(Services& services, ReaderPlace& reader, QWidget* parent = nullptr);

    ComboBox* cb본문서체 = named<ComboBox>(u"cb본문서체", u"본문 서체");

    PictureBox* pic기본역본 = named<PictureBox>(u"pic기본역본", u"기본 역본 색");
    PictureBox* pic대역본1 = named<PictureBox>(u"pic대역본1", u"대역본 1 색");
    PictureBox* pic대역본2 = named<PictureBox>(u"pic대역본2", u"대역본 2 색");
    PictureBox* pic대역본3 = named<PictureBox>(u"pic대역본3", u"대역본 3 색");
    PictureBox* pic구분색 = named<PictureBox>(u"pic구분색", u"구분 색");
    PictureBox* pic바탕색 = named<PictureBox>(u"pic바탕색", u"바탕 색");
    QPushButton* cmd기본역본 = named<QPushButton>(u"cmd기본역본", u"기본 역본(&1)...");
    QPushButton* cmd대역본1 = named<QPushButton>(u"cmd대역본1", u"대역본 1(&2)...");
    QPushButton* cmd대역본2 = named<QPushButton>(u"cmd대역본2", u"대역본 2(&3)...");
    QPushButton* cmd대역본3 = named<QPushButton>(u"cmd대역본3", u"대역본 3(&4)...");
    QPushButton* cmd구분색 = named<QPushButton>(u"cmd구분색", u"구분 색(&5)...");
    QPushButton* cmd바탕색 = named<QPushButton>(u"cmd바탕색", u"바탕 색(&6)...");

    QCheckBox* chkCopyAddIndex =
        named<QCheckBox>(u"chkCopyAddIndex", u"복사할 때 끝에 출처를 붙임(&I)");
    QCheckBox* chkAddVersion = named<QCheckBox>(u"chkAddVersion", u"역본 이름을 표시(&V)");
    QCheckBox* chkFullName = named<QCheckBox>(u"chkFullName", u"책 이름을 줄이지 않음(&N)");
    QCheckBox* chkSep = named<QCheckBox>(u"chkSep", u"콜론 대신 \"장\"과 \"절\"로 적음(&S)");
    QCheckBox* chkParenthesis = named<QCheckBox>(u"chkParenthesis", u"출처를 괄호로 묶음(&B)");
    QCheckBox* chkCrLf = named<QCheckBox>(u"chkCrLf", u"출처 앞에서 줄을 바꿈(&L)");

    QPushButton* cmd확인 = named<QPushButton>(u"cmd확인", u"확인(&O)");
    QPushButton* cmd취소 = named<QPushButton>(u"cmd취소", u"취소(&C)");
    QPushButton* cmdApply = named<QPushButton>(u"cmdApply", u"적 용");
    QPushButton* cmd초기값 = named<QPushButton>(u"cmd초기값", u"초기값(&R)");

private:
    struct ColorRow
    {
        QPushButton* button;
        PictureBox* picture;
    };

    std::array<ColorRow, 6> colorRows() const;
    void layOut();
    void wire();
    void chooseColor(PictureBox& box);
    void showFont(const QString& font);
    void showColors(const ReaderColors& colors);
    void showOptions(const CopyOptions& options);
    ReaderColors shownColors() const;
    CopyOptions shownOptions() const;
    void enableDependentBoxes();
    void cmd초기값_Click();
    void save();

    Services& m_services;
    ReaderPlace& m_reader;
};

} // namespace lumen
