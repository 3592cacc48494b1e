#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QPainter>
#include <QString>

namespace talvex {

// A number on one line of the display. Where its groups don't fit, they close up first; then all of
// it gets smaller. Groups with a thin space between them stand closer than the font has it, so that
// they read as one number.
class FittedText {
  public:
    FittedText(const QFont& font, const QString& text, double room);

    [[nodiscard]] double width() const { return width_; }
    [[nodiscard]] const QFont& font() const { return font_; }
    void paint(QPainter& painter, const QPointF& place) const;

  private:
    void measure(double room);

    QFont font_;
    QString text_;
    QGlyphRun glyphs_;  // empty if the font lacks a character: other fonts have it
    double width_ = 0.0;
};

}  // namespace talvex
