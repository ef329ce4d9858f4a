// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/Controls/AccessibleItem.h"

#include <QQuickItem>
#include <QScopedValueRollback>
#include <QVariant>

namespace {

constexpr auto textFieldClass = "QQuickTextField";
constexpr auto popupClass = "QQuickPopupItem";

/// The popup that the item draws; null for other items.
const QObject* popupOf(const QObject* item)
{
    return item->inherits(popupClass) ? item->parent() : nullptr;
}

} // namespace

QAccessibleInterface* AccessibleItem::create(const QString& className, QObject* object)
{
    static bool isCreating = false;
    if (isCreating)
        return nullptr;
    if (className != QLatin1String("QQuickAbstractButton")
        && className != QLatin1String(textFieldClass) && className != QLatin1String(popupClass)) {
        return nullptr;
    }
    // Qt asks this function for every base class; the nested request reaches Qt Quick's factory.
    // Qt's cache then holds both descriptions of the object and uses the later one.
    const QScopedValueRollback creating(isCreating, true);
    QAccessibleInterface* const base = QAccessible::queryAccessibleInterface(object);
    return base ? new AccessibleItem(base) : nullptr;
}

QString AccessibleItem::text(QAccessible::Text kind) const
{
    const QString text = m_base->text(kind);
    const QObject* const popup = popupOf(object());
    return kind == QAccessible::Name && text.isEmpty() && popup
               ? popup->property("title").toString()
               : text;
}

QAccessible::State AccessibleItem::state() const
{
    QAccessible::State state = m_base->state();
    if (const auto* const item = qobject_cast<QQuickItem*>(object()); item && !item->isEnabled())
        state.disabled = true;
    if (const QObject* const popup = popupOf(object()))
        state.modal = popup->property("modal").toBool();
    return state;
}

void* AccessibleItem::interface_cast(QAccessible::InterfaceType type)
{
    if (object()->inherits(textFieldClass)) {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
    }
    return m_base->interface_cast(type);
}

QString AccessibleItem::attributes(int /*offset*/, int* start, int* end) const
{
    // Qt Quick reports an empty range, of which Orca 43 reads no text.
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleItem::replaceText(int start, int end, const QString& text)
{
    QString edited = object()->property("text").toString();
    object()->setProperty("text", edited.replace(start, end - start, text));
}
