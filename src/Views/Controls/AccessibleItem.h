// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleInterface>

/// Describes a button, a text field or a popup to screen readers. Adds to the description by Qt
/// Quick the state of disabled buttons, which Qt 6.4 omits, the edit functions and the range of the
/// attributes of text fields, and the names and the modal state of popups.
class AccessibleItem final : public QAccessibleInterface,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface
{
public:
    /// A factory for `QAccessible::installFactory`.
    static QAccessibleInterface* create(const QString& className, QObject* object);

    [[nodiscard]] bool isValid() const override { return m_base->isValid(); }
    [[nodiscard]] QObject* object() const override { return m_base->object(); }
    [[nodiscard]] QWindow* window() const override { return m_base->window(); }
    [[nodiscard]] QAccessibleInterface* focusChild() const override { return m_base->focusChild(); }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        return m_base->childAt(x, y);
    }
    [[nodiscard]] QAccessibleInterface* parent() const override { return m_base->parent(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return m_base->child(index);
    }
    [[nodiscard]] int childCount() const override { return m_base->childCount(); }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return m_base->indexOfChild(child);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override
    {
        m_base->setText(kind, text);
    }
    [[nodiscard]] QRect rect() const override { return m_base->rect(); }
    [[nodiscard]] QAccessible::Role role() const override { return m_base->role(); }
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override
    {
        baseText()->selection(index, start, end);
    }
    [[nodiscard]] int selectionCount() const override { return baseText()->selectionCount(); }
    void addSelection(int start, int end) override { baseText()->addSelection(start, end); }
    void removeSelection(int index) override { baseText()->removeSelection(index); }
    void setSelection(int index, int start, int end) override
    {
        baseText()->setSelection(index, start, end);
    }
    [[nodiscard]] int cursorPosition() const override { return baseText()->cursorPosition(); }
    void setCursorPosition(int position) override { baseText()->setCursorPosition(position); }
    [[nodiscard]] QString text(int start, int end) const override
    {
        return baseText()->text(start, end);
    }
    [[nodiscard]] int characterCount() const override { return baseText()->characterCount(); }
    [[nodiscard]] QRect characterRect(int offset) const override
    {
        return baseText()->characterRect(offset);
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override
    {
        return baseText()->offsetAtPoint(point);
    }
    void scrollToSubstring(int start, int end) override
    {
        baseText()->scrollToSubstring(start, end);
    }
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;

private:
    explicit AccessibleItem(QAccessibleInterface* base)
        : m_base(base)
    {
    }
    ~AccessibleItem() override = default;

    [[nodiscard]] QAccessibleTextInterface* baseText() const { return m_base->textInterface(); }

    /// The description by Qt Quick, which Qt deletes together with this object.
    QAccessibleInterface* m_base;
    Q_DISABLE_COPY_MOVE(AccessibleItem)
};
