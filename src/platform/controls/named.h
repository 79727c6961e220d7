// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QString>
#include <QStringView>

#include <array>
#include <concepts>

namespace lumen {

/// A caption as a screen reader speaks it: without the "&" that marks an access key.
QString spokenCaption(const QString& caption);

/// Makes a control under the name that the program knows it by. The caption is what a button,
/// label or frame shows; for all controls it is the accessible name. The layout that takes the
/// control gives it its parent and owner.
template <std::derived_from<QWidget> T>
T* named(QStringView name, QStringView caption = {})
{
    auto* control = new T;
    const QString text = caption.toString();
    control->setObjectName(name.toString());
    if constexpr (std::derived_from<T, QAbstractButton> || std::derived_from<T, QLabel>)
        control->setText(text);
    else if constexpr (std::derived_from<T, QGroupBox>)
        control->setTitle(text);
    if (!text.isEmpty())
        control->setAccessibleName(spokenCaption(text));
    return control;
}

/// A control array: `count` controls of one name, told apart by a zero-based index. The object
/// name of the first is "chk책명(0)".
template <std::derived_from<QWidget> T, int count>
class ControlArray
{
public:
    explicit ControlArray(QStringView name) : ControlArray(name, [](int) { return QString(); }) {}
    /// `captionOf(index)` gives the caption of each.
    template <std::invocable<int> CaptionOf>
    ControlArray(QStringView name, CaptionOf captionOf)
    {
        for (int index = 0; index < count; ++index) {
            const QString indexed = name.toString() + u'(' + QString::number(index) + u')';
            m_controls[static_cast<std::size_t>(index)] = named<T>(indexed, captionOf(index));
        }
    }

    T* operator()(int index) const { return m_controls.at(static_cast<std::size_t>(index)); }
    static constexpr int size() { return count; }
    auto begin() const { return m_controls.begin(); }
    auto end() const { return m_controls.end(); }

private:
    std::array<T*, static_cast<std::size_t>(count)> m_controls{};
};

} // namespace lumen
