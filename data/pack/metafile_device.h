// A paint device that turns whatever is painted on it into solid polygons for a metafile.
#pragma once

#include "data/pack/wmf_writer.h"

#include <QPaintDevice>
#include <QString>
#include <memory>

namespace cserko {

/// Paint on it with a QPainter over the square 0..kMetafileSide, then take the shapes. Only opaque solid colours can be
/// kept. A translucent colour becomes the one that it makes with what lies under it, or with white paper; a linear or
/// radial gradient becomes a few bands. The first thing painted with anything else is told by `refusal()`.
class MetafileDevice : public QPaintDevice {
 public:
  MetafileDevice();
  ~MetafileDevice() override;

  QPaintEngine* paintEngine() const override;

  const std::vector<FilledShape>& shapes() const;
  /// The box around all shapes, in metafile units.
  QRect bounds() const;
  /// Why the picture cannot be kept; empty when all is well.
  QString refusal() const;
  /// Whether a gradient was cut into bands, so that the picture is less than what was painted.
  bool banded() const;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
};

} // namespace cserko
