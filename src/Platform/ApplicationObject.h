// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QPointer>

namespace Platform {

/// The only `Object` of the running application: created at the first call with the application as
/// its parent, and created again after another application object has replaced the first. Used
/// only on the main thread.
template<typename Object>
Object& applicationObject()
{
    static QPointer<Object> object;
    if (!object) // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the application owns the object
        object = new Object(QCoreApplication::instance());
    return *object;
}

} // namespace Platform
