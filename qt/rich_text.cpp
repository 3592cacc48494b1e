#include "qt/rich_text.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <numeric>
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

// A piece in its font, as it goes to the screen. Glyphs are found and measured once; a text that
// the font has no glyphs for is left to the toolkit, which knows other fonts.
class Run {
  public:
    Run(const Piece& piece, double scale) : text_(piece.text), attributes_(piece.attributes) {
        attributes_.font.size *= scale;
        font_ = toQFont(attributes_.font);
        const QRawFont rawFont = QRawFont::fromFont(font_);
        const QList<quint32> glyphs = rawFont.glyphIndexesForString(text_);
        if (glyphs.contains(0)) {
            width_ = QFontMetricsF(font_).horizontalAdvance(text_);
            return;
        }
        QList<QPointF> positions;
        for (const QPointF& advance :
             rawFont.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances)) {
            positions.push_back(QPointF(width_, 0.0));
            width_ += advance.x();
        }
        glyphs_.setRawFont(rawFont);
        glyphs_.setGlyphIndexes(glyphs);
        glyphs_.setPositions(positions);
    }

    [[nodiscard]] double width() const { return width_; }
    [[nodiscard]] double size() const { return attributes_.font.size; }
    [[nodiscard]] const QFont& font() const { return font_; }

    void paint(QPainter& painter, double x, double baseline, double bodySize) const {
        const QPointF place(x, baseline + offset(bodySize));
        if (glyphs_.isEmpty()) {
            painter.setFont(font_);
            painter.drawText(place, text_);
        } else {
            painter.drawGlyphRun(place, glyphs_);
        }
    }

  private:
    [[nodiscard]] double offset(double bodySize) const {
        static constexpr double kRaise = 0.36;
        static constexpr double kLower = 0.18;
        return attributes_.superscript > 0   ? -kRaise * bodySize
               : attributes_.superscript < 0 ? kLower * bodySize
                                             : 0.0;
    }

    QString text_;
    NSTextAttributes attributes_;
    QFont font_;
    QGlyphRun glyphs_;
    double width_ = 0.0;
};

double widthOf(const std::vector<Run>& runs) {
    return std::accumulate(runs.begin(), runs.end(), 0.0,
                           [](double sum, const Run& run) { return sum + run.width(); });
}

// Smaller than the fonts say if the text doesn't fit otherwise.
std::vector<Run> fittingRuns(const std::vector<Piece>& pieces, double factor, double width) {
    constexpr double kSmallest = 0.6;
    std::vector<Run> runs;
    for (double scale = 1.0; runs.empty() || (scale > kSmallest && widthOf(runs) > width);
         scale -= 0.05) {
        runs.clear();
        for (const Piece& piece : pieces) {
            runs.emplace_back(piece, factor * scale);
        }
    }
    return runs;
}

void paintPieces(QPainter& painter, const QRectF& rect, const Scale& scale,
                 const std::vector<Piece>& pieces, NSTextAlignment alignment) {
    if (pieces.empty()) {
        return;
    }
    const std::vector<Run> runs = fittingRuns(pieces, scale.factor(), rect.width());
    const Run& body = *std::max_element(
        runs.begin(), runs.end(),
        [](const Run& left, const Run& right) { return left.size() < right.size(); });
    const double capHeight = QFontMetricsF(body.font()).capHeight();
    const double baseline = std::round(rect.center().y() + capHeight / 2.0);
    double x =
        alignment == NSTextAlignment::left ? rect.left() : rect.center().x() - widthOf(runs) / 2.0;
    for (const Run& run : runs) {
        run.paint(painter, x, baseline, body.size());
        x += run.width();
    }
}

}  // namespace

void paintCentered(QPainter& painter, const QRectF& rect, const Scale& scale,
                   const NSAttributedString& text) {
    paintPieces(painter, rect, scale, piecesOf(text), NSTextAlignment::center);
}

void paintLeft(QPainter& painter, const QRectF& rect, const Scale& scale,
               const NSAttributedString& text) {
    paintPieces(painter, rect, scale, piecesOf(text), NSTextAlignment::left);
}

}  // namespace talvex
