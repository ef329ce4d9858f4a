# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""A stand-in for the settings that a desktop hands out through its portal.

Run as a program it serves them on the session bus. It answers every line that it reads from
standard input, `namespace key type value`, once the change has been announced on the bus.
"""

import os
import subprocess
import sys

APPEARANCE = "org.freedesktop.appearance"

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.portal.Settings"

INTROSPECTION = f"""
<node>
  <interface name="{INTERFACE}">
    <method name="Read">
      <arg type="s" name="namespace" direction="in"/>
      <arg type="s" name="key" direction="in"/>
      <arg type="v" name="value" direction="out"/>
    </method>
    <method name="ReadOne">
      <arg type="s" name="namespace" direction="in"/>
      <arg type="s" name="key" direction="in"/>
      <arg type="v" name="value" direction="out"/>
    </method>
    <method name="ReadAll">
      <arg type="as" name="namespaces" direction="in"/>
      <arg type="a{{sa{{sv}}}}" name="value" direction="out"/>
    </method>
    <signal name="SettingChanged">
      <arg type="s" name="namespace"/>
      <arg type="s" name="key"/>
      <arg type="v" name="value"/>
    </signal>
    <property name="version" type="u" access="read"/>
  </interface>
</node>
"""


class Portal:
    """The portal as a process of its own, on the session bus of this one."""

    def __init__(self):
        self._process = None

    def start(self):
        """Returns once the portal answers. A closed portal can be started again."""
        self._process = subprocess.Popen(
            [sys.executable, "-B", os.path.abspath(__file__)],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        try:
            self._expect("ready")
        except AssertionError:
            self.close()
            raise

    def set(self, namespace, key, number):
        """Changes a number and returns once the signal is on the bus."""
        self._process.stdin.write(f"{namespace} {key} u {number}\n")
        self._process.stdin.flush()
        self._expect("set")

    def close(self):
        if self._process is not None:
            self._process.communicate()  # the end of its input ends it
            self._process = None

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *_):
        self.close()

    def _expect(self, answer):
        line = self._process.stdout.readline().strip()
        if line != answer:
            raise AssertionError(f"the portal answers {line!r} instead of {answer!r}")


def serve():
    """Serves the settings until the end of standard input; returns the exit status."""
    from gi.repository import Gio, GLib

    settings = {
        APPEARANCE: {
            "color-scheme": GLib.Variant("u", 0),
            "reduced-motion": GLib.Variant("u", 0),
        }
    }
    # Nothing may wait in a buffer, where the loop does not see it.
    commands = os.fdopen(sys.stdin.fileno(), "rb", buffering=0, closefd=False)
    loop = GLib.MainLoop()
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    status = 0

    def say(word):
        print(word, flush=True)

    def wanted(namespace, patterns):
        return not patterns or any(
            pattern in ("", namespace)
            or (pattern.endswith("*") and namespace.startswith(pattern[:-1]))
            for pattern in patterns
        )

    known = set()

    def ask_bus(method, sender):
        (number,) = bus.call_sync(
            "org.freedesktop.DBus",
            "/org/freedesktop/DBus",
            "org.freedesktop.DBus",
            method,
            GLib.Variant("(s)", (sender,)),
            GLib.VariantType("(u)"),
            Gio.DBusCallFlags.NONE,
            -1,
            None,
        )
        return number

    def knows(sender):
        """Looks at a process the first time, which one that hides does not allow."""
        if sender in known:
            return True
        process = ask_bus("GetConnectionUnixProcessID", sender)
        if os.stat(f"/proc/{process}/root", follow_symlinks=False).st_uid == ask_bus(
            "GetConnectionUnixUser", sender
        ):
            known.add(sender)
        return sender in known

    def answer(_bus, sender, _path, _interface, method, parameters, invocation):
        if not knows(sender):
            invocation.return_dbus_error(
                "org.freedesktop.DBus.Error.AccessDenied", "Portal operation not allowed"
            )
            return
        if method == "ReadAll":
            (patterns,) = parameters.unpack()
            chosen = {name: keys for name, keys in settings.items() if wanted(name, patterns)}
            invocation.return_value(GLib.Variant("(a{sa{sv}})", (chosen,)))
            return
        namespace, key = parameters.unpack()
        value = settings.get(namespace, {}).get(key)
        if value is None:
            invocation.return_dbus_error(
                "org.freedesktop.portal.Error.NotFound", "Requested setting not found"
            )
            return
        if method == "Read":
            # The older of the two methods wraps its value twice, everywhere.
            value = GLib.Variant("v", value)
        invocation.return_value(GLib.Variant("(v)", (value,)))

    def property_value(*_):
        return GLib.Variant("u", 2)

    def change(_channel, condition):
        line = commands.readline() if condition & GLib.IOCondition.IN else b""
        if not line:
            loop.quit()
            return GLib.SOURCE_REMOVE
        namespace, key, kind, text = line.decode().strip().split(maxsplit=3)
        value = GLib.Variant.parse(GLib.VariantType(kind), text, None, None)
        settings.setdefault(namespace, {})[key] = value
        bus.emit_signal(
            None, PATH, INTERFACE, "SettingChanged", GLib.Variant("(ssv)", (namespace, key, value))
        )
        bus.flush_sync()
        say("set")
        return GLib.SOURCE_CONTINUE

    def lost(*_):
        nonlocal status
        status = 1
        loop.quit()

    interface = Gio.DBusNodeInfo.new_for_xml(INTROSPECTION).interfaces[0]
    bus.register_object(PATH, interface, answer, property_value, None)
    GLib.io_add_watch(
        commands.fileno(), GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP, change
    )
    Gio.bus_own_name_on_connection(
        bus, NAME, Gio.BusNameOwnerFlags.DO_NOT_QUEUE, lambda *_: say("ready"), lost
    )
    loop.run()
    return status


if __name__ == "__main__":
    sys.exit(serve())
