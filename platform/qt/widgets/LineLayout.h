#pragma once

#include <QPalette>
#include <QRect>
#include <QTextLayout>
#include <string_view>

#include "host/editing/EditHistory.h"

class QPainter;

namespace kel::qt {

/// What an input method is composing, shown in front of the selection.
struct Composition {
    QString text;
    QList<QTextLayout::FormatRange> formats;  ///< counted from its own start
    int caret = 0;
    bool caretShown = true;
};

/// A line of text laid out, with what is being composed in it. Positions are those of the text.
class LineLayout {
public:
    /// Characters that no font has a picture of are blanks. `at` is where the composition stands.
    void lay(std::u16string_view text, const QFont& font, Qt::LayoutDirection emptyDirection,
             const Composition& composition, std::size_t at);

    /// As it is displayed.
    QString text() const { return Layout_.text(); }
    int width() const { return Width_; }
    int ascent() const { return Ascent_; }
    bool isRightToLeft() const;
    /// Of the caret's left edge, from that of the text.
    int xOf(std::size_t position) const;
    std::size_t positionAt(int x) const;

    void paint(QPainter& painter, const QPoint& corner, const Selection& selection, const QPalette& palette,
               const QRect& clip) const;
    void paintCaret(QPainter& painter, const QPoint& corner, std::size_t position, int width) const;

private:
    int toLaidOut(std::size_t position) const;

    QTextLayout Layout_;
    std::size_t ComposedAt_ = 0;
    int ComposedLength_ = 0;
    int ComposedCaret_ = 0;
    int Width_ = 0;
    int Ascent_ = 0;
};

}  // namespace kel::qt
