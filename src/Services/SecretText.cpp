// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Services/SecretText.h"

#include "Platform/ProcessMemory.h"

#include <span>

void SecretText::wipe(QString& text)
{
    // To write into shared characters would make a copy of them.
    if (!text.isDetached())
        return;
    Platform::ProcessMemory::wipe(std::as_writable_bytes(std::span(text.begin(), text.end())));
    text.clear();
}
