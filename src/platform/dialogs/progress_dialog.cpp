// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/progress_dialog.h"

#include "platform/dialogs/modal.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kBarWidth = 320; // pixels

} // namespace

dlog진행정도::dlog진행정도(Modal& modal, const QString& caption, int minimum, int maximum,
                           QWidget* owner)
    : QDialog(owner), m_modal(modal)
{
    setObjectName(u"dlog진행정도"_s);
    setWindowTitle(caption);
    setModal(true);
    bar->setAccessibleName(caption);
    bar->setMinimumWidth(kBarWidth);
    bar->setRange(minimum, maximum);
    bar->setValue(minimum);
    auto* column = new QVBoxLayout(this);
    column->addWidget(bar);
    show();
    // The work that follows lets no events run by itself, and without them nothing is painted.
    m_modal.letEventsRun();
}

void dlog진행정도::setValue(int value)
{
    if (value == bar->value())
        return;
    bar->setValue(value);
    m_modal.letEventsRun();
}

} // namespace lumen
