// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/SecretLayout.h"

#include "Model/UnicodeText.h"
#include "Services/LineBreaks.h"
#include "Services/SecretText.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace {

/// The lengths of the balanced lines of `secret` if lines may begin only at `starts`; empty if the
/// secret does not fit on the lines, or if `starts` is empty.
std::vector<qsizetype> lineLengths(const QString& secret, std::vector<qsizetype> starts,
                                   const QFont& font, double width)
{
    if (starts.empty() || width <= 0)
        return {};
    const QFontMetricsF metrics(font);
    starts.push_back(secret.size());
    std::vector<double> edges{0};
    for (std::size_t i = 1; i < starts.size(); ++i) {
        // The piece shares the characters of the secret.
        const auto piece
            = QString::fromRawData(secret.constData() + starts[i - 1], starts[i] - starts[i - 1]);
        edges.push_back(edges.back() + metrics.horizontalAdvance(piece));
    }
    std::vector<qsizetype> lengths;
    qsizetype start = 0;
    for (const std::size_t end : LineBreaks::balancedLines(edges, width)) {
        lengths.push_back(starts[end] - start);
        start = starts[end];
    }
    return lengths;
}

/// Breaks `secret`, the only block of the document, into lines. Qt's own layout breaks lines where
/// Unicode allows this, and fills each line before the next one.
class BalancedLayout final : public QAbstractTextDocumentLayout
{
public:
    using QAbstractTextDocumentLayout::QAbstractTextDocumentLayout;

    /// Qt Quick draws the lines of the block itself and does not call this function.
    void draw(QPainter* /*painter*/, const PaintContext& /*context*/) override {}

    [[nodiscard]] int hitTest(const QPointF& point, Qt::HitTestAccuracy /*accuracy*/) const override
    {
        const QTextLayout* const layout = document()->firstBlock().layout();
        int i = 0;
        while (i < layout->lineCount() - 1 && point.y() >= layout->lineAt(i).rect().bottom())
            ++i;
        return layout->lineCount() > 0 ? layout->lineAt(i).xToCursor(point.x()) : 0;
    }

    [[nodiscard]] int pageCount() const override { return 1; }
    [[nodiscard]] QSizeF documentSize() const override { return m_size; }
    [[nodiscard]] QRectF frameBoundingRect(QTextFrame* /*frame*/) const override
    {
        return {{}, m_size};
    }
    [[nodiscard]] QRectF blockBoundingRect(const QTextBlock& /*block*/) const override
    {
        return {{}, m_size};
    }

protected:
    void documentChanged(int /*from*/, int /*removed*/, int /*added*/) override;

private:
    QSizeF m_size;
};

void BalancedLayout::documentChanged(int /*from*/, int /*removed*/, int /*added*/)
{
    QTextBlock block = document()->firstBlock();
    const QFont font = document()->defaultFont();
    const double width = document()->textWidth();
    QString secret = block.text();
    auto lengths = lineLengths(secret, LineBreaks::wordStarts(secret), font, width);
    if (lengths.empty())
        lengths = lineLengths(secret, UnicodeText::graphemeStarts(secret), font, width);

    block.clearLayout();
    QTextLayout& layout = *block.layout();
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    layout.setTextOption(option);
    layout.setFont(font);
    layout.beginLayout();
    double y = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        if (lengths.empty()) {
            line.setLineWidth(width);
        } else {
            // A column has at least one character.
            const auto number = static_cast<std::size_t>(line.lineNumber());
            const qsizetype length = lengths.at(std::min(number, lengths.size() - 1));
            for (int columns = static_cast<int>(length); columns > 0; --columns) {
                line.setNumColumns(columns);
                if (line.textLength() <= length)
                    break;
            }
        }
        line.setPosition({(width - line.naturalTextWidth()) / 2, y});
        y += line.height();
    }
    layout.endLayout();
    SecretText::wipe(secret);
    m_size = {width, y};
    Q_EMIT documentSizeChanged(m_size);
}

/// The width and the height of `text` on one line.
QSizeF lineSize(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return {line.horizontalAdvance(), line.height()};
}

} // namespace

void SecretLayout::setDocument(QQuickTextDocument* document)
{
    m_document = document;
    QTextDocument* const text = document->textDocument();
    text->setDocumentLayout(std::make_unique<BalancedLayout>(text).release()); // takes ownership
}

int SecretLayout::fittingSize(const QString& secret, const QFont& font, int smallest, double width)
{
    // Before its first layout, the item has no width. Each smaller size would load another font.
    if (secret.isEmpty() || width <= 0)
        return font.pixelSize();
    for (const auto& starts :
         {LineBreaks::wordStarts(secret), UnicodeText::graphemeStarts(secret)}) {
        QFont smaller = font;
        for (int size = font.pixelSize(); size >= smallest; --size) {
            smaller.setPixelSize(size);
            if (!lineLengths(secret, starts, smaller, width).empty())
                return size;
        }
    }
    return 0;
}

double SecretLayout::neededHeight(const GeneratorSettings& settings, const QFont& shortFont,
                                  const QFont& longFont, double width)
{
    using enum LineBreaks::SecretLength;
    const QString separator
        = settings.mode == GeneratorMode::passphrase ? settings.separator : QString();
    double height = 0;
    for (const auto length : {atMostLimit, aboveLimit}) {
        // Only now, because the first use of a font takes 6 ms with 2,000 font faces.
        if (!LineBreaks::canOccur(length, settings))
            continue;
        const QFont& font = length == atMostLimit ? shortFont : longFont;
        const QSizeF column = lineSize(QStringLiteral("0"), font);
        const QSizeF gap = lineSize(separator, font);
        const int lines = LineBreaks::linesNeeded(
            length, settings, static_cast<qsizetype>(width / column.width()),
            static_cast<qsizetype>(std::ceil(gap.width() / column.width())));
        height = std::max(height, lines * std::max(column.height(), gap.height()));
    }
    return height;
}
