// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Renders an SVG drawing to a square PNG picture, at build time and with the renderer that the
// program itself draws with: RenderIcon DRAWING PICTURE SIZE

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv)
{
    const int size = argc == 4 ? QString::fromLocal8Bit(argv[3]).toInt() : 0;
    if (size <= 0) {
        std::cerr << "Usage: RenderIcon DRAWING PICTURE SIZE\n";
        return EXIT_FAILURE;
    }
    const QString drawing = QString::fromLocal8Bit(argv[1]);
    const QString picture = QString::fromLocal8Bit(argv[2]);

    QSvgRenderer renderer(drawing);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();

    if (!renderer.isValid() || !image.save(picture, "PNG", 0)) {
        std::cerr << "Cannot render " << argv[1] << " to " << argv[2] << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
