// What the pictures that are drawn by code are painted with: plain shapes, letters, icons. The pen is left off, so that
// only fills count unless a function says otherwise.
#pragma once

#include "data/pack/icon_set.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <functional>

namespace cserko {

void box(QPainter& painter, const QColor& color, double left, double top, double width, double height);
void round_box(QPainter& painter, const QColor& color, const QRectF& place, double radius);
void polygon(QPainter& painter, const QColor& color, const QPolygonF& corners);
void disc(QPainter& painter, const QColor& color, QPointF center, double radius_x, double radius_y);
void shape(QPainter& painter, const QColor& color, const QPainterPath& path);
/// Draws along a path, with round ends and corners.
void stroke(QPainter& painter, const QColor& color, const QPainterPath& path, double width);
/// Draws an icon of the set to fill a square place. Throws PackError for an unknown one.
void icon(QPainter& painter, const IconSet& icons, const QString& name, const QRectF& place);

/// Draws what `draw` draws about the origin somewhere else, turned clockwise by degrees.
void aslant(QPainter& painter, QPointF place, double angle, const std::function<void()>& draw);

/// Draws a word in the round letters of a first reader, centred; `height` is that of a tall letter. The letters are
/// drawn stroke by stroke, so that no font of the machine that builds the pack is seen. Throws PackError for a letter
/// that is not among them.
void word(QPainter& painter, const QString& text, QPointF center, double height, const QColor& color);

/// A letter on a small card about a centre, turned by degrees.
void tile(QPainter& painter, const QString& text, QPointF center, double side, double angle, const QColor& paper);

/// The metafile of what `draw` paints over the area 0, 0 to `size`. Throws PackError, which names `what`, where solid
/// fills cannot keep it.
QByteArray drawn_metafile(const QString& what, QSize size, const std::function<void(QPainter&)>& draw);

} // namespace cserko
