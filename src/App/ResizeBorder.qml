// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick

// The edges and corners by which a window without a frame is resized.
Item {
    id: root

    readonly property int breadth: 5
    readonly property int cornerLength: 10
    required property Window window

    Repeater {
        // Corners come last, and so lie above the edges.
        model: [Qt.TopEdge, Qt.BottomEdge, Qt.LeftEdge, Qt.RightEdge, Qt.TopEdge | Qt.LeftEdge, Qt.TopEdge | Qt.RightEdge, Qt.BottomEdge | Qt.LeftEdge, Qt.BottomEdge | Qt.RightEdge]

        MouseArea {
            readonly property bool onBottom: modelData & Qt.BottomEdge
            readonly property bool corner: onSide && (onTop || onBottom)
            readonly property bool onSide: onLeft || onRight
            readonly property bool onLeft: modelData & Qt.LeftEdge
            required property int modelData
            readonly property bool onRight: modelData & Qt.RightEdge
            readonly property bool onTop: modelData & Qt.TopEdge

            cursorShape: {
                if (corner)
                    return onLeft === onTop ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor;
                return onSide ? Qt.SizeHorCursor : Qt.SizeVerCursor;
            }
            height: corner ? root.cornerLength : onSide ? root.height : root.breadth
            width: corner ? root.cornerLength : onSide ? root.breadth : root.width
            x: onRight ? root.width - width : 0
            y: onBottom ? root.height - height : 0

            onPressed: {
                root.window.startSystemResize(modelData);
                // From here on the pointer is the window manager's, which need not tell of its
                // release.
                enabled = false;
                enabled = true;
            }
        }
    }
}
