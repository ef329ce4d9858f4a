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
    // Not another form of the text, but the mark by which clipboard managers know to leave it.
    contents->setData(QStringLiteral("x-kde-passwordManagerHint"), QByteArrayLiteral("secret"));
    return contents;
}

bool isX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

QByteArray fingerprint(const QString& text)
{
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
}

/// Neither X11 nor Wayland counts the changes of the clipboard, and Qt tells of some of them more
/// than once, and of changes that are none. What can be relied on is whose contents it holds. So a
/// change is what is written through here, and every loss of it.
class CountedClipboard final : public QObject
{
public:
    explicit CountedClipboard(QObject* parent)
        : QObject(parent)
    {
        connect(m_clipboard, &QClipboard::dataChanged, this, [this] { noticeLoss(); });
        m_soon.setSingleShot(true);
        connect(&m_soon, &QTimer::timeout, this, [this] { clearAgain(); });
    }

    [[nodiscard]] std::int64_t changeCount() const { return m_changeCount; }

    void setSecret(const QString& text)
    {
        stopWatching();
        auto contents = secretContents(text);
        replaceContents(contents.get());
        m_written = fingerprint(text);
        m_clipboard->setMimeData(contents.release());
    }

    void clear()
    {
        if (m_contents && !isX11() && !QGuiApplication::focusWindow()) {
            // Without the keyboard, compositors refuse a change, and some put back their own copy
            // when what was offered is gone. So it stays, with nothing left of it.
            m_contents->clear();
            m_hollow = m_contents;
            replaceContents(nullptr);
        } else {
            empty();
        }
        watchForReturn();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ApplicationActivate:
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
            // Later, when Qt has taken note of this event: a compositor asks for its number.
            m_soon.start();
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
        m_holdsOurs = contents != nullptr;
        ++m_changeCount;
    }

    void empty()
    {
        replaceContents(nullptr);
        if (isX11()) {
            // Left to nobody, it would be filled again by managers that keep a copy.
            m_clipboard->setMimeData(std::make_unique<QMimeData>().release());
        } else {
            // What a compositor puts back is the last text that there was.
            m_clipboard->setText(QStringLiteral(""));
            m_clipboard->clear();
        }
    }

    void noticeLoss()
    {
        if (m_holdsOurs && (!m_contents || m_clipboard->mimeData() != m_contents))
            replaceContents(nullptr);
    }

    void watchForReturn()
    {
        if (!m_written.isEmpty())
            QCoreApplication::instance()->installEventFilter(this);
    }

    void stopWatching()
    {
        QCoreApplication::instance()->removeEventFilter(this);
        m_written.clear();
    }

    void clearAgain()
    {
        if (m_written.isEmpty())
            return;
        if (isStillThere())
            empty();
        else
            stopWatching();
    }

    /// Whether it was hollowed out only, or brought back.
    [[nodiscard]] bool isStillThere() const
    {
        if (m_clipboard->ownsClipboard())
            return m_hollow && m_clipboard->mimeData() == m_hollow;
        return fingerprint(m_clipboard->text()) == m_written;
    }

    QClipboard* const m_clipboard = QGuiApplication::clipboard();
    std::int64_t m_changeCount = 0;
    /// What the clipboard holds of ours. Compared, never looked into.
    QPointer<QMimeData> m_contents;
    bool m_holdsOurs = false;
    /// What it offers of ours without anything in it.
    QPointer<const QMimeData> m_hollow;
    /// Tells what was written last from all else, without keeping it.
    QByteArray m_written;
    QTimer m_soon;
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
