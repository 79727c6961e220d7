// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/combo_habits.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QWheelEvent>

#include <algorithm>

namespace lumen {
namespace {

constexpr int kPassedOverRole = Qt::UserRole + 1; // Qt::UserRole holds the item's number
constexpr int kMostItemsShown = 20;
constexpr char kFromListProperty[] = "pickedFromList";

/// Drops a combo's list down below it. The toolkit's other form lays the list over the combo and
/// lets it run over the screen's edges.
class DropDownStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_ComboBox_Popup ? 0
                                         : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

/// Takes keys and wheel of one combo before the combo does.
class ComboHabits : public QObject
{
public:
    explicit ComboHabits(QComboBox& combo) : QObject(&combo), m_combo(combo)
    {
        combo.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            m_combo.setProperty(kFromListProperty, true);
            return false;
        case QEvent::KeyPress:
            return takesKey(static_cast<QKeyEvent&>(*event));
        case QEvent::Wheel:
            return takesWheel(static_cast<QWheelEvent&>(*event));
        default:
            return false;
        }
    }

private:
    bool takesKey(const QKeyEvent& event)
    {
        const bool opens = event.key() == Qt::Key_Space || event.key() == Qt::Key_F4 ||
                           event.modifiers().testFlag(Qt::AltModifier);
        m_combo.setProperty(kFromListProperty, opens);
        if (opens || m_combo.isEditable() || event.modifiers().testFlag(Qt::ControlModifier))
            return false;
        switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_PageUp:
            return walk(m_combo.currentIndex(), -1);
        case Qt::Key_Down:
        case Qt::Key_PageDown:
            return walk(m_combo.currentIndex(), 1);
        case Qt::Key_Home:
            return walk(-1, 1);
        case Qt::Key_End:
            return walk(m_combo.count(), -1);
        default:
            return searches(event.text());
        }
    }

    /// Typed letters lead to the next item that begins with them, one letter again and again
    /// through all of its items.
    bool searches(const QString& letter)
    {
        if (letter.isEmpty() || !letter.front().isPrint())
            return false;
        if (!m_typing.isValid() || m_typing.hasExpired(QApplication::keyboardInputInterval()))
            m_typed.clear();
        m_typing.start();
        m_typed += letter;
        const bool oneLetter = m_typed.count(letter) * letter.size() == m_typed.size();
        const QString& start = oneLetter ? letter : m_typed;
        const int count = m_combo.count();
        const int from = m_combo.currentIndex() + (oneLetter ? 1 : 0);
        for (int step = 0; step < count; ++step) {
            const int index = (std::max(from, 0) + step) % count;
            if (!isPassedOver(index) &&
                m_combo.itemText(index).startsWith(start, Qt::CaseInsensitive)) {
                choose(index);
                break;
            }
        }
        return true;
    }

    bool takesWheel(QWheelEvent& event)
    {
        if (!m_combo.hasFocus()) {
            // What lies around the combo may want to scroll.
            event.ignore();
            return true;
        }
        m_combo.setProperty(kFromListProperty, false);
        event.accept();
        const int turned = event.angleDelta().y();
        return turned == 0 || walk(m_combo.currentIndex(), turned > 0 ? -1 : 1);
    }

    /// Chooses the next item that is not passed over; behind the last one nothing happens.
    bool walk(int from, int step)
    {
        int index = from + step;
        while (index >= 0 && index < m_combo.count() && isPassedOver(index))
            index += step;
        if (index >= 0 && index < m_combo.count())
            choose(index);
        return true;
    }

    bool isPassedOver(int index) const { return m_combo.itemData(index, kPassedOverRole).toBool(); }

    void choose(int index)
    {
        if (index == m_combo.currentIndex())
            return;
        m_combo.setCurrentIndex(index);
        Q_EMIT m_combo.activated(index);
    }

    QComboBox& m_combo;
    QString m_typed; ///< letters in quick succession
    QElapsedTimer m_typing;
};

} // namespace

void keepComboHabits(QComboBox& combo)
{
    combo.setFocusPolicy(Qt::StrongFocus); // not by the wheel
    combo.setMaxVisibleItems(kMostItemsShown);
    auto* style = new DropDownStyle;
    style->setParent(&combo);
    combo.setStyle(style);
    new ComboHabits(combo);
}

void setPassedOver(QComboBox& combo, int index)
{
    combo.setItemData(index, true, kPassedOverRole);
}

bool pickedFromList(const QComboBox& combo)
{
    return combo.property(kFromListProperty).toBool();
}

} // namespace lumen
