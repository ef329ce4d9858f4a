// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

/// The sent D-Bus messages that the process keeps in order to reuse their memory. The messages to
/// screen readers contain secrets.
namespace Platform::MessageCache {

/// Overwrites and frees the messages that are no longer in use.
void wipe();

} // namespace Platform::MessageCache
