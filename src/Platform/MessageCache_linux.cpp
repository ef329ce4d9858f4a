// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/MessageCache.h"

#include <array>
#include <cstddef>
#include <string>

#include <dbus/dbus.h>

namespace {

/// libdbus 1.14 and 1.16 keep up to 5 messages, and free messages of more than 10 KiB.
constexpr std::size_t capacity = 5;
constexpr std::size_t largestKeptMessage = 10'240;

} // namespace

void Platform::MessageCache::wipe()
{
    const std::string text(largestKeptMessage, '0');
    const char* const characters = text.c_str();
    std::array<DBusMessage*, capacity> messages{};
    for (DBusMessage*& message : messages) {
        message = ::dbus_message_new(DBUS_MESSAGE_TYPE_SIGNAL); // takes a message from the cache
        if (!message)
            continue;
        DBusMessageIter arguments;
        ::dbus_message_iter_init_append(message, &arguments);
        ::dbus_message_iter_append_basic(&arguments, DBUS_TYPE_STRING,
                                         static_cast<const void*>(&characters));
    }
    for (DBusMessage* const message : messages) {
        if (message)
            ::dbus_message_unref(message);
    }
}
