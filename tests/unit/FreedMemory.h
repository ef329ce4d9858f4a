// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

/// Searches every block of memory that this executable frees for a text. Only one object may exist
/// at a time.
class FreedMemory final
{
public:
    /// Searches for `text`, of 64 characters at most, until the object is destroyed.
    explicit FreedMemory(QStringView text);
    ~FreedMemory();

    /// The number of freed blocks that contained the text.
    [[nodiscard]] int matches() const;

    /// Watches the block that contains `address`.
    void watch(const void* address);
    /// Whether the watched block has been freed.
    [[nodiscard]] bool watchedIsFreed() const;

private:
    Q_DISABLE_COPY_MOVE(FreedMemory)
};
