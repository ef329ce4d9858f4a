// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// Text without markup that screen readers read.
PlainText {
    Accessible.name: text
    Accessible.role: Accessible.StaticText
}
