// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A modal dialog in the middle of the window, over a scrim.
T.Dialog {
    id: control

    readonly property FocusReturn focusReturn: FocusReturn {
    }

    anchors.centerIn: parent
    closePolicy: T.Popup.CloseOnEscape
    focus: true
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: Theme.scaled(300)
    modal: true
    padding: 20

    T.Overlay.modal: Box {
        color: Theme.scrim
    }

    onAboutToShow: focusReturn.remember(parent)
    onClosed: focusReturn.giveBack()

    background: Box {
        borderColor: Theme.divider
        color: Theme.surface
        radius: Theme.boxRadius

        Shadow {
        }
    }
}
