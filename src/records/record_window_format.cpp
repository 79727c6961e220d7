// SPDX-License-Identifier: GPL-2.0-or-later
// What the tools of record_window.h do to the box in which the user writes.
#include "platform/controls/twips.h"
#include "records/record_window.h"

#include <QLineEdit>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QToolBar>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Of the title's box, twips. A title of 1,100 is shown smaller than one of 900: it scrolls then.
constexpr int kTitleLeast = 375;
constexpr int kTitleMost = 1000;
constexpr int kTitleMargin = 200;

constexpr std::array kAlignmentTools{u"ID_좌측정렬", u"ID_우측정렬", u"ID_중앙정렬"};

void showText(ComboBox& combo, const QString& text)
{
    const QSignalBlocker quiet(combo);
    combo.setCurrentIndex(combo.findItem(text));
    combo.setEditText(text);
}

QString contentOf(const QWidget* control)
{
    if (const auto* box = qobject_cast<const RichTextBox*>(control))
        return box->Text();
    if (const auto* line = qobject_cast<const QLineEdit*>(control))
        return line->text();
    return {};
}

} // namespace

RichTextBox* RecordWindow::activeBox() const
{
    return qobject_cast<RichTextBox*>(focusWidget());
}

void RecordWindow::makeCurrent(RichTextBox& box)
{
    m_current = &box;
    Proc선택해제();
}

// Boxes of the same text count as one and keep their selections.
void RecordWindow::Proc선택해제()
{
    for (RichTextBox* box : boxes)
        if (box != m_current && box->SelLength() > 0 && box->Text() != m_current->Text())
            box->setSelLength(0);
}

void RecordWindow::ProcUpdateToolBar()
{
    const RichTextBox* const box = activeBox();
    if (box == nullptr || m_isLoading)
        return;
    for (const QStringView id : {u"ID_복사", u"ID_잘라내기"})
        atbar.tool(id).setEnabled(box->SelLength() > 0);
    atbar.tool(u"ID_굵게").setChecked(box->SelBold().value_or(false));
    atbar.tool(u"ID_기울임꼴").setChecked(box->SelItalic().value_or(false));
    atbar.tool(u"ID_밑줄").setChecked(box->SelUnderline().value_or(false));
    const std::optional<int> alignment = box->SelAlignment();
    for (int i = 0; i < static_cast<int>(kAlignmentTools.size()); ++i)
        atbar.tool(kAlignmentTools[static_cast<std::size_t>(i)]).setChecked(alignment == i);
    if (const auto name = box->SelFontName())
        showText(atbar.tool(u"ID_서체").combo(), *name);
    if (const auto size = box->SelFontSize())
        showText(atbar.tool(u"ID_크기").combo(), QString::number(static_cast<int>(*size)));
    const std::optional<RgbLong> color = box->selColor();
    for (const ColorTool& tool : kColorTools)
        atbar.tool(tool.id).setChecked(color == tool.color);
}

void RecordWindow::chooseFont()
{
    const QString name = atbar.tool(u"ID_서체").combo().Text().trimmed();
    if (m_isLoading || m_current == nullptr || name.isEmpty())
        return;
    m_current->setSelFontName(name);
    m_current->setFocus();
}

void RecordWindow::chooseSize(bool keepsSelection)
{
    const double points = atbar.tool(u"ID_크기").combo().Text().toDouble();
    if (m_isLoading || m_current == nullptr || points <= 0)
        return;
    m_current->setSelFontSize(std::min(points, 999.0));
    m_current->setFocus();
    if (m_current != boxes[kTitleText])
        return;
    const int length = m_current->SelLength();
    Form_Resize();
    m_current->setSelLength(keepsSelection ? length : m_current->SelLength());
}

void RecordWindow::popUpColors()
{
    const QToolBar* const bar = atbar.bar(kFormatBar);
    const QWidget* const button = bar->widgetForAction(atbar.tool(u"ID_Color").action());
    const QPoint below(0, button->height());
    atbar.popUp(u"ID_mnColor", button->mapToGlobal(below));
}

// Verses go where the content of the active control is that of a box.
void RecordWindow::showInsertionState()
{
    const QWidget* const active = focusWidget();
    const bool isText = qobject_cast<const RichTextBox*>(active) != nullptr ||
                        qobject_cast<const QLineEdit*>(active) != nullptr;
    const QString content = contentOf(active);
    atbar.tool(u"ID_성구삽입")
        .setEnabled(isText && std::ranges::any_of(boxes, [&content](const RichTextBox* box) {
                        return box->Text() == content;
                    }));
}

void RecordWindow::Form_Resize()
{
    if (isMinimized() || m_isLoading)
        return;
    RichTextBox& title = *boxes[kTitleText];
    int height = kTitleLeast;
    if (!title.Text().isEmpty()) {
        const int measured = title.textHeight();
        height = measured <= kTitleMost ? measured + kTitleMargin : kTitleMost;
    }
    title.setFixedHeight(toPixels(std::max(height, kTitleLeast)));
}

void RecordWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    Form_Resize();
}

} // namespace lumen
