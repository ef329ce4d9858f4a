// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ApplicationObject.h"
#include "Platform/Clipboard.h"
#include "Platform/ClipboardSecret.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <memory>

namespace Platform::Clipboard {

namespace {

/// A zero-width space. Diodon 1.13 does not keep blank texts and would keep the secret instead.
constexpr QChar placeholderText(0x200B);

/// Parcellite 1.2 reads the clipboard every 500 ms.
constexpr std::chrono::milliseconds placeholderDuration(600);

bool isX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

/// Counts the changes of the clipboard. X11 and Wayland have no counter, and
/// QClipboard::dataChanged is emitted more than once for some changes and also without a change.
/// The owner of the contents is reliable, so this class counts its own writes and the replacements
/// of the contents that it wrote.
class CountedClipboard final : public QObject
{
public:
    explicit CountedClipboard(QObject* parent)
        : QObject(parent)
    {
        connect(m_clipboard, &QClipboard::dataChanged, this, &CountedClipboard::handleDataChange);
    }

    [[nodiscard]] std::int64_t changeCount() const { return m_changeCount; }

    void setSecret(const QString& text) { offer(text, State::offering); }

    void clear()
    {
        // After a suspension, the program has not yet read the copies of other programs.
        const std::int64_t changeCount = m_changeCount;
        QGuiApplication::sync();
        if (m_changeCount != changeCount)
            return;
        if (isX11()) {
            // Some clipboard managers keep the last text and offer this text when the program ends.
            // The placeholder replaces the secret in these managers.
            offer(QString(placeholderText), State::placeholder);
            QTimer::singleShot(placeholderDuration, this, [this] {
                if (m_state == State::placeholder)
                    emptyClipboard();
            });
        } else if (m_state == State::offering && !QGuiApplication::focusWindow()) {
            // Compositors let a program change the clipboard only while the program has the
            // keyboard focus, and some restore their own copy when the offer ends. So the offer
            // remains, without contents, until the program is active again.
            wipeContents();
            setState(State::emptyOffer);
        } else {
            emptyClipboard();
        }
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ApplicationActivate:
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
            // The timer expires after Qt has handled the event, because the request to the
            // compositor carries the serial number of the event.
            QTimer::singleShot(0, this, &CountedClipboard::withdrawEmptyOffer);
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    enum class State : std::uint8_t {
        idle,        ///< The clipboard holds no contents of this class.
        offering,    ///< The clipboard offers a secret.
        placeholder, ///< The clipboard offers the placeholder, for a short time.
        emptyOffer,  ///< The clipboard offers contents from which the secret was removed.
    };

    void setState(State state)
    {
        m_state = state;
        ++m_changeCount;
        if (state == State::emptyOffer)
            QCoreApplication::instance()->installEventFilter(this);
        else
            QCoreApplication::instance()->removeEventFilter(this);
    }

    void offer(const QString& text, State state)
    {
        wipeContents();
        auto contents = std::make_unique<ClipboardSecret>(text);
        m_contents = contents.get();
        setState(state);
        m_clipboard->setMimeData(contents.release());
    }

    void wipeContents()
    {
        if (m_contents)
            m_contents->clear();
    }

    void emptyClipboard()
    {
        // On Wayland, Qt 6.4 does not delete the contents that it replaces.
        wipeContents();
        setState(State::idle);
        if (isX11()) {
            // Clipboard managers restore their copy if the clipboard has no owner.
            m_clipboard->setMimeData(std::make_unique<QMimeData>().release());
        } else {
            // Compositors restore the last text after `clear`, so the last text must be empty.
            m_clipboard->setText(QStringLiteral(""));
            m_clipboard->clear();
        }
    }

    void withdrawEmptyOffer()
    {
        if (m_state == State::emptyOffer)
            emptyClipboard();
    }

    void handleDataChange()
    {
        if (m_state != State::idle && (!m_contents || m_clipboard->mimeData() != m_contents)) {
            wipeContents();
            setState(State::idle);
        }
    }

    QClipboard* const m_clipboard = QGuiApplication::clipboard();
    State m_state = State::idle;
    std::int64_t m_changeCount = 0;
    /// The contents that this class wrote last. QClipboard owns them.
    QPointer<ClipboardSecret> m_contents;
};

} // namespace

void setSecret(const QString& text)
{
    applicationObject<CountedClipboard>().setSecret(text);
}

void clear()
{
    applicationObject<CountedClipboard>().clear();
}

std::int64_t changeCount()
{
    return applicationObject<CountedClipboard>().changeCount();
}

} // namespace Platform::Clipboard
