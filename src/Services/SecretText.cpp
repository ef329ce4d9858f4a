// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Services/SecretText.h"

#include "Platform/ProcessMemory.h"

#include <span>

void SecretText::wipe(QString& text)
{
    // Writing to shared characters would first copy them and wipe only the copy.
    if (!text.isDetached())
        return;
    Platform::ProcessMemory::wipe(std::as_writable_bytes(std::span(text.begin(), text.end())));
    text.clear();
}
