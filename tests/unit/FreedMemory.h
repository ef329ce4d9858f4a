// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

/// Looks into every block of memory that this executable gives back, for text that should not be in
/// there any more. One at a time.
class FreedMemory final
{
public:
    /// Looks for `text`, of 64 characters at most, from now on.
    explicit FreedMemory(QStringView text);
    ~FreedMemory();

    /// How many blocks held it.
    [[nodiscard]] int finds() const;

private:
    Q_DISABLE_COPY_MOVE(FreedMemory)
};
