// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Morvane.Views.Controls

// A soft shadow behind and below `parent`. The software renderer has no blur, so translucent boxes of
// growing size lie on each other.
Item {
    id: root

    height: parent.height
    width: parent.width
    y: 4
    z: -1

    Repeater {
        // Menus are built after the first frame and opened later.
        model: root.visible ? 8 : 0

        Box {
            required property int index

            anchors.fill: parent
            color: Theme.shadow
            inset: -2 * index
            radius: ((root.parent as Box)?.radius ?? 0) + 2 * index
        }
    }
}
