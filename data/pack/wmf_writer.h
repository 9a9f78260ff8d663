// Writes Windows metafiles of solid polygons, the form in which the pack keeps its pictures.
#pragma once

#include "data/pack/polygon.h"

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <vector>

namespace cserko {

/// Side of the picture's square in metafile units.
inline constexpr int kMetafileSide = 6400;

enum class FillRule { odd_even = 1, winding = 2 };

/// One filled figure: its polygons belong together and are filled by one rule.
struct FilledShape {
  QRgb color = 0;
  FillRule rule = FillRule::odd_even;
  std::vector<GridPolygon> polygons;
};

/// The whole metafile, placeable header included, that draws the shapes in order. The picture is the area from 0, 0 to
/// `size`, in metafile units; its sides are below 32768.
QByteArray write_metafile(const std::vector<FilledShape>& shapes, QSize size = {kMetafileSide, kMetafileSide});

} // namespace cserko
