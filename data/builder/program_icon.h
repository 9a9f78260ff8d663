// The program's own sign: an ink drop over a hand-drawn line, on a cream card.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainterPath>

namespace cserko {

/// A drop of ink that hangs from its tip, as high as said.
QPainterPath ink_drop(QPointF tip, double height);

/// The sign in a square picture of so many pixels a side. Where it is small the line is left off, and the drop grows.
QImage program_icon(int side);

/// A picture as the bytes of a PNG file. Throws PackError where that cannot be made.
QByteArray png_of(const QImage& image);

} // namespace cserko
