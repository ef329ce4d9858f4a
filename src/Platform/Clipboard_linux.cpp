// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ApplicationObject.h"
#include "Platform/Clipboard.h"

#include <QByteArray>
#include <QClipboard>
#include <QCryptographicHash>
#include <QEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace Platform::Clipboard {

namespace {

std::unique_ptr<QMimeData> secretContents(const QString& text)
{
    auto contents = std::make_unique<QMimeData>();
    contents->setText(text);
    // Clipboard managers do not store contents that offer this type with this value.
    contents->setData(QStringLiteral("x-kde-passwordManagerHint"), QByteArrayLiteral("secret"));
    return contents;
}

bool isX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

QByteArray hash(const QString& text)
{
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
}

/// Counts the changes of the clipboard. X11 and Wayland have no counter, and
/// QClipboard::dataChanged is emitted more than once for some changes and also without a change.
/// The owner of the contents is reliable, so a change is a write through this class, or the loss of
/// the contents that it wrote.
class CountedClipboard final : public QObject
{
public:
    explicit CountedClipboard(QObject* parent)
        : QObject(parent)
    {
        connect(m_clipboard, &QClipboard::dataChanged, this, [this] { handleDataChange(); });
        m_clearAgainTimer.setSingleShot(true);
        connect(&m_clearAgainTimer, &QTimer::timeout, this, [this] { clearAgain(); });
    }

    [[nodiscard]] std::int64_t changeCount() const { return m_changeCount; }

    void setSecret(const QString& text)
    {
        stopWaitingForReturn();
        auto contents = secretContents(text);
        replaceContents(contents.get());
        m_secretHash = hash(text);
        m_clipboard->setMimeData(contents.release());
    }

    void clear()
    {
        if (m_contents && !isX11() && !QGuiApplication::focusWindow()) {
            // Compositors let a window change the clipboard only while it has the keyboard focus,
            // and some restore a copy of their own once the offered contents are gone. So the
            // contents remain on offer, but empty.
            m_contents->clear();
            m_emptiedContents = m_contents;
            replaceContents(nullptr);
        } else {
            emptyClipboard();
        }
        startWaitingForReturn();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ApplicationActivate:
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
            // The timer runs after Qt has handled the event, because the request to the compositor
            // carries the event's serial number.
            m_clearAgainTimer.start();
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void replaceContents(QMimeData* contents)
    {
        m_contents = contents;
        m_ownsContents = contents != nullptr;
        ++m_changeCount;
    }

    void emptyClipboard()
    {
        replaceContents(nullptr);
        if (isX11()) {
            // Clipboard managers restore their copy to a clipboard without an owner.
            m_clipboard->setMimeData(std::make_unique<QMimeData>().release());
        } else {
            // Compositors restore the last text, which is the empty one now.
            m_clipboard->setText(QStringLiteral(""));
            m_clipboard->clear();
        }
    }

    void handleDataChange()
    {
        if (m_ownsContents && (!m_contents || m_clipboard->mimeData() != m_contents))
            replaceContents(nullptr);
    }

    void startWaitingForReturn()
    {
        if (!m_secretHash.isEmpty())
            QCoreApplication::instance()->installEventFilter(this);
    }

    void stopWaitingForReturn()
    {
        QCoreApplication::instance()->removeEventFilter(this);
        m_secretHash.clear();
    }

    void clearAgain()
    {
        if (m_secretHash.isEmpty())
            return;
        if (isSecretStillThere())
            emptyClipboard();
        else
            stopWaitingForReturn();
    }

    /// Whether the clipboard still offers the emptied contents, or the secret was restored to it.
    [[nodiscard]] bool isSecretStillThere() const
    {
        if (m_clipboard->ownsClipboard())
            return m_emptiedContents && m_clipboard->mimeData() == m_emptiedContents;
        return hash(m_clipboard->text()) == m_secretHash;
    }

    QClipboard* const m_clipboard = QGuiApplication::clipboard();
    std::int64_t m_changeCount = 0;
    /// The contents that this class wrote. Only the address is used.
    QPointer<QMimeData> m_contents;
    bool m_ownsContents = false;
    /// The contents that this class wrote and then emptied while they remained on offer.
    QPointer<const QMimeData> m_emptiedContents;
    /// Identifies the secret that was written last, without keeping the secret.
    QByteArray m_secretHash;
    QTimer m_clearAgainTimer;
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
