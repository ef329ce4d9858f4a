// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// The border of a window with client-side decorations, at which the pointer resizes the window.
MouseArea {
    id: root

    readonly property int edges: edgesAt(mouseX, mouseY)
    required property Window window

    hoverEnabled: true

    containmentMask: QtObject {
        function contains(point: point): bool {
            return root.edgesAt(point.x, point.y) !== 0;
        }
    }
    cursorShape: {
        switch (edges) {
        case Qt.TopEdge | Qt.LeftEdge:
        case Qt.BottomEdge | Qt.RightEdge:
            return Qt.SizeFDiagCursor;
        case Qt.TopEdge | Qt.RightEdge:
        case Qt.BottomEdge | Qt.LeftEdge:
            return Qt.SizeBDiagCursor;
        case Qt.LeftEdge:
        case Qt.RightEdge:
            return Qt.SizeHorCursor;
        default:
            return Qt.SizeVerCursor;
        }
    }

    onPressed: {
        window.startSystemResize(edges);
        // Ends the press: the window manager grabs the pointer and may not report the release.
        enabled = false;
        enabled = true;
    }

    // Edges are 5 pixels wide, and corners 10 pixels, because smaller corners are hard to hit.
    function edgesAt(x: real, y: real): int {
        const vertical = distance => y < distance ? Qt.TopEdge : y >= height - distance ? Qt.BottomEdge : 0;
        const horizontal = distance => x < distance ? Qt.LeftEdge : x >= width - distance ? Qt.RightEdge : 0;
        if (vertical(10) && horizontal(10))
            return vertical(10) | horizontal(10);
        return vertical(5) || horizontal(5);
    }
}
