#include "data/pack/metafile_device.h"

#include <QPaintEngine>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <cmath>

namespace cserko {
namespace {

constexpr double kTolerance = 0.75;   // metafile units a kept outline may stray from the exact one
constexpr int kFarthest = 32767;      // coordinates are signed 16-bit words
constexpr size_t kMostPoints = 65535; // counts are unsigned 16-bit words

} // namespace

class MetafileDevice::Engine : public QPaintEngine {
 public:
  Engine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState&) override {} // each shape asks the painter's state when it is painted

  void drawPath(const QPainterPath& path) override {
    if (state->brush().style() != Qt::NoBrush)
      add(state->transform().map(path), state->brush(),
          path.fillRule() == Qt::WindingFill ? FillRule::winding : FillRule::odd_even);
    if (state->pen().style() != Qt::NoPen) add(stroke_of(path), state->pen().brush(), FillRule::winding);
  }

  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
    if (mode != PolylineMode) path.closeSubpath();
    path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    drawPath(path);
  }

  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { refuse("holds a bitmap"); }
  void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
    refuse("holds a bitmap");
  }
  void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override { refuse("holds a bitmap"); }
  void drawTextItem(const QPointF&, const QTextItem&) override { refuse("holds text"); }

  std::vector<FilledShape> shapes_;
  QString refusal_;

 private:
  void refuse(const QString& why) {
    if (refusal_.isEmpty()) refusal_ = why;
  }

  QPainterPath stroke_of(const QPainterPath& path) const {
    const QTransform& transform = state->transform();
    const double scale = std::sqrt(std::abs(transform.determinant()));
    QPen pen = state->pen();
    if (pen.widthF() <= 0) pen.setWidthF(scale > 0 ? 1 / scale : 1);
    QPainterPathStroker stroker(pen);
    if (scale > 0) stroker.setCurveThreshold(0.25 / scale);
    return transform.map(stroker.createStroke(path));
  }

  void add(const QPainterPath& path, const QBrush& brush, FillRule rule) {
    if (brush.style() != Qt::SolidPattern) return refuse("holds a gradient or a pattern");
    const double alpha = brush.color().alphaF() * state->opacity();
    if (alpha <= 0) return;
    if (alpha < 1) return refuse("holds a translucent colour");
    FilledShape shape{brush.color().rgb(), rule, {}};
    size_t points = 0;
    for (const QPolygonF& outline : path.toSubpathPolygons()) {
      const QRectF box = outline.boundingRect();
      if (std::max({-box.left(), -box.top(), box.right(), box.bottom()}) >= kFarthest)
        return refuse("reaches far outside its square");
      GridPolygon polygon = to_grid(outline, kTolerance);
      if (polygon.empty()) continue;
      points += polygon.size();
      shape.polygons.push_back(std::move(polygon));
    }
    if (points > kMostPoints || shape.polygons.size() > kMostPoints) return refuse("has too many points");
    if (!shape.polygons.empty()) shapes_.push_back(std::move(shape));
  }
};

MetafileDevice::MetafileDevice() : engine_(std::make_unique<Engine>()) {}
MetafileDevice::~MetafileDevice() = default;

QPaintEngine* MetafileDevice::paintEngine() const { return engine_.get(); }
const std::vector<FilledShape>& MetafileDevice::shapes() const { return engine_->shapes_; }
QString MetafileDevice::refusal() const { return engine_->refusal_; }

QRect MetafileDevice::bounds() const {
  QRect box;
  for (const FilledShape& shape : shapes())
    for (const GridPolygon& polygon : shape.polygons)
      for (QPoint point : polygon) box |= QRect(point, QSize(1, 1));
  return box;
}

int MetafileDevice::metric(PaintDeviceMetric metric) const {
  constexpr int dpi = 3200;
  switch (metric) {
  case PdmWidth:
  case PdmHeight:
    return kMetafileSide;
  case PdmWidthMM:
  case PdmHeightMM:
    return static_cast<int>(kMetafileSide * 25.4 / dpi);
  case PdmNumColors:
    return 1 << 24;
  case PdmDepth:
    return 24;
  case PdmDpiX:
  case PdmDpiY:
  case PdmPhysicalDpiX:
  case PdmPhysicalDpiY:
    return dpi;
  case PdmDevicePixelRatio:
    return 1;
  case PdmDevicePixelRatioScaled:
    return static_cast<int>(QPaintDevice::devicePixelRatioFScale());
  default:
    return QPaintDevice::metric(metric);
  }
}

} // namespace cserko
