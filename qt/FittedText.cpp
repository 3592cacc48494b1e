#include "qt/FittedText.h"

#include <QFontMetricsF>
#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <vector>

namespace talvex {
namespace {

constexpr char16_t kThinSpace = u'\u2009';
constexpr double kThinSpaceShown = 0.75;      // of its width
constexpr double kLeastGap = 0.2;             // of the size of the type
constexpr double kSmallestText = 7.0 / 13.0;  // of the size that the field has

bool isGap(QChar character) { return character == u' ' || character == kThinSpace; }

// Nothing follows the last group.
QString withoutLastGap(QString text) {
    while (!text.isEmpty() && isGap(text.back())) {
        text.chop(1);
    }
    return text;
}

// The room that a character takes. Only gaps give way.
struct Width {
    double least;
    double widest;
};

Width widthOf(QChar character, double advance, double size) {
    if (!isGap(character)) {
        return {.least = advance, .widest = advance};
    }
    const double widest = character == kThinSpace ? kThinSpaceShown * advance : advance;
    return {.least = std::min(widest, kLeastGap * size), .widest = widest};
}

// From 0, each at its least, to 1, each as wide as it may be.
double shareOfStretch(const std::vector<Width>& widths, double room) {
    double spare = room;
    double stretch = 0.0;
    for (const Width& width : widths) {
        spare -= width.least;
        stretch += width.widest - width.least;
    }
    return spare >= stretch ? 1.0 : std::max(0.0, spare / stretch);
}

}  // namespace

FittedText::FittedText(const QFont& font, const QString& text, double room)
    : font_(font), text_(withoutLastGap(text)) {
    const auto smallest = std::lround(kSmallestText * font_.pixelSize());
    measure(room);
    while (width_ > room && font_.pixelSize() > smallest) {
        font_.setPixelSize(font_.pixelSize() - 1);
        measure(room);
    }
}

void FittedText::measure(double room) {
    const QRawFont rawFont = QRawFont::fromFont(font_);
    const QList<quint32> glyphs = rawFont.glyphIndexesForString(text_);
    glyphs_.clear();
    if (glyphs.size() != text_.size() || glyphs.contains(0)) {
        width_ = QFontMetricsF(font_).horizontalAdvance(text_);
        return;
    }
    const QList<QPointF> advances =
        rawFont.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances);
    std::vector<Width> widths;
    for (qsizetype place = 0; place < text_.size(); ++place) {
        widths.push_back(widthOf(text_[place], advances[place].x(), font_.pixelSize()));
    }
    const double share = shareOfStretch(widths, room);
    QList<QPointF> positions;
    width_ = 0.0;
    for (const Width& width : widths) {
        positions.push_back(QPointF(width_, 0.0));
        width_ += width.least + share * (width.widest - width.least);
    }
    glyphs_.setRawFont(rawFont);
    glyphs_.setGlyphIndexes(glyphs);
    glyphs_.setPositions(positions);
}

void FittedText::paint(QPainter& painter, const QPointF& place) const {
    if (glyphs_.isEmpty()) {
        painter.setFont(font_);
        painter.drawText(place, text_);
    } else {
        painter.drawGlyphRun(place, glyphs_);
    }
}

}  // namespace talvex
