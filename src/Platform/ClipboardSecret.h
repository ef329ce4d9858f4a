// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMimeData>
#include <QString>

namespace Platform {

/// Offers a secret as plain text, and overwrites the secret when the offer ends.
class ClipboardSecret final : public QMimeData
{
public:
    explicit ClipboardSecret(const QString& secret)
        : m_text(secret.toUtf8())
    {
        // Clipboard managers do not store contents that offer this format with this value. The
        // format is the first, because Weston keeps a copy of the first format only.
        setData(QStringLiteral("x-kde-passwordManagerHint"), QByteArrayLiteral("secret"));
        setData(QStringLiteral("text/plain"), m_text);
    }
    ~ClipboardSecret() override { clear(); }

    /// Overwrites the secret. The offer remains, without contents.
    void clear()
    {
        QMimeData::clear(); // The formats share the bytes of the text.
        // QByteArray::fill is not inline, so the compiler does not optimise the writes away.
        m_text.fill('\0');
        m_text.clear();
    }

private:
    QByteArray m_text;
    Q_DISABLE_COPY_MOVE(ClipboardSecret)
};

} // namespace Platform
