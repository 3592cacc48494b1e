#include "qt/rich_text.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <vector>

#include "qt/conversions.h"

namespace talvex {
namespace {

// Characters that follow one another with the same attributes.
struct Piece {
    QString text;
    NSTextAttributes attributes;
};

std::vector<Piece> piecesOf(const NSAttributedString& text) {
    std::vector<Piece> pieces;
    for (std::size_t place = 0; place < text.string.size(); ++place) {
        const NSTextAttributes& attributes = text.attributes[place];
        if (pieces.empty() || !(pieces.back().attributes == attributes)) {
            pieces.push_back({.text = {}, .attributes = attributes});
        }
        pieces.back().text += QChar(text.string[place]);
    }
    return pieces;
}

QFont fontOf(const Piece& piece, double scale) {
    NSFont font = piece.attributes.font;
    font.size *= scale;
    return toQFont(font);
}

double widthOf(const std::vector<Piece>& pieces, double scale) {
    double width = 0.0;
    for (const Piece& piece : pieces) {
        width += QFontMetricsF(fontOf(piece, scale)).horizontalAdvance(piece.text);
    }
    return width;
}

constexpr double kRaise = 0.36;  // of the body font's size
constexpr double kLower = 0.18;

double offsetOf(const NSTextAttributes& attributes, double bodySize) {
    return attributes.superscript > 0   ? -kRaise * bodySize
           : attributes.superscript < 0 ? kLower * bodySize
                                        : 0.0;
}

// How much smaller the text has to be to fit.
double fittingScale(const std::vector<Piece>& pieces, double width) {
    constexpr double kSmallest = 0.6;
    double scale = 1.0;
    while (scale > kSmallest && widthOf(pieces, scale) > width) {
        scale -= 0.05;
    }
    return scale;
}

void paintPieces(QPainter& painter, const QRectF& rect, const std::vector<Piece>& pieces,
                 NSTextAlignment alignment) {
    if (pieces.empty()) {
        return;
    }
    const double scale = fittingScale(pieces, rect.width());
    double bodySize = 0.0;
    for (const Piece& piece : pieces) {
        bodySize = std::max(bodySize, piece.attributes.font.size * scale);
    }
    NSFont bodyFont = pieces.front().attributes.font;
    bodyFont.size = bodySize;
    const double capHeight = QFontMetricsF(toQFont(bodyFont)).capHeight();
    const double baseline = std::round(rect.center().y() + capHeight / 2.0);
    double x = alignment == NSTextAlignment::left
                   ? rect.left()
                   : rect.center().x() - widthOf(pieces, scale) / 2.0;
    for (const Piece& piece : pieces) {
        const QFont font = fontOf(piece, scale);
        painter.setFont(font);
        painter.drawText(QPointF(x, baseline + offsetOf(piece.attributes, bodySize)), piece.text);
        x += QFontMetricsF(font).horizontalAdvance(piece.text);
    }
}

}  // namespace

void paintCentered(QPainter& painter, const QRectF& rect, const NSAttributedString& text) {
    paintPieces(painter, rect, piecesOf(text), NSTextAlignment::center);
}

void paintLeft(QPainter& painter, const QRectF& rect, const NSAttributedString& text) {
    paintPieces(painter, rect, piecesOf(text), NSTextAlignment::left);
}

}  // namespace talvex
