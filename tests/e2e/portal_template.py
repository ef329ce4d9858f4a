# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Template for python-dbusmock: the settings interface of xdg-desktop-portal.

Like the portal, the mock inspects a caller's process at the first call and refuses a process that
is not dumpable. The method SetSetting of dbusmock's interface changes a setting.
"""

import os

import dbus.service
from dbusmock import MOCK_IFACE

BUS_NAME = "org.freedesktop.portal.Desktop"
MAIN_OBJ = "/org/freedesktop/portal/desktop"
MAIN_IFACE = "org.freedesktop.portal.Settings"
SYSTEM_BUS = False


def load(mock, _parameters):
    mock.settings = {
        "org.freedesktop.appearance": {
            "color-scheme": dbus.UInt32(0, variant_level=1),
            "reduced-motion": dbus.UInt32(0, variant_level=1),
        }
    }
    mock.known_callers = set()
    mock.AddProperty(MAIN_IFACE, "version", dbus.UInt32(2))


@dbus.service.method(
    MAIN_IFACE, in_signature="as", out_signature="a{sa{sv}}", sender_keyword="sender"
)
def ReadAll(self, namespaces, sender=None):
    check_caller(self, sender)
    return dbus.Dictionary(
        {
            namespace: dbus.Dictionary(values, signature="sv")
            for namespace, values in self.settings.items()
            if is_requested(namespace, namespaces)
        },
        signature="sa{sv}",
    )


@dbus.service.method(MAIN_IFACE, in_signature="ss", out_signature="v", sender_keyword="sender")
def ReadOne(self, namespace, key, sender=None):
    check_caller(self, sender)
    return find_setting(self, namespace, key)


@dbus.service.method(MAIN_IFACE, in_signature="ss", out_signature="v", sender_keyword="sender")
def Read(self, namespace, key, sender=None):
    check_caller(self, sender)
    value = find_setting(self, namespace, key)
    # Read returns a variant that contains a variant; ReadOne returns a variant with the value.
    return type(value)(value, variant_level=2)


@dbus.service.method(MOCK_IFACE, in_signature="ssv")
def SetSetting(self, namespace, key, value):
    self.settings.setdefault(namespace, {})[key] = type(value)(value, variant_level=1)
    self.EmitSignal(MAIN_IFACE, "SettingChanged", "ssv", [namespace, key, value])


def check_caller(mock, sender):
    """Raises an error if the caller's process is not dumpable at the caller's first call."""
    if sender in mock.known_callers:
        return
    bus = mock.connection
    process = bus.call_blocking(
        *("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"),
        *("GetConnectionUnixProcessID", "s", (sender,)),
    )
    # The files in /proc of a process that is not dumpable belong to root.
    owner = os.stat(f"/proc/{process}/root", follow_symlinks=False).st_uid
    if owner != bus.get_unix_user(sender):
        raise dbus.exceptions.DBusException(
            "Portal operation not allowed", name="org.freedesktop.DBus.Error.AccessDenied"
        )
    mock.known_callers.add(sender)


def is_requested(namespace, patterns):
    """Whether a namespace matches a pattern; an empty list or an empty pattern matches all."""
    return not patterns or any(
        pattern in ("", namespace)
        or (pattern.endswith("*") and namespace.startswith(pattern[:-1]))
        for pattern in patterns
    )


def find_setting(mock, namespace, key):
    try:
        return mock.settings[namespace][key]
    except KeyError:
        raise dbus.exceptions.DBusException(
            "Requested setting not found", name="org.freedesktop.portal.Error.NotFound"
        ) from None
