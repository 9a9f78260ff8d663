#include "data/pack/metafile_device.h"

#include <QGradient>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <cmath>

namespace cserko {
namespace {

constexpr double kTolerance = 0.75;   // metafile units a kept outline may stray from the exact one
constexpr int kFarthest = 32767;      // coordinates are signed 16-bit words
constexpr size_t kMostPoints = 65535; // counts are unsigned 16-bit words
constexpr int kFewestBands = 2;       // of a gradient, from its beginning to its end
constexpr int kMostBands = 12;
constexpr double kBandWidth = kMetafileSide / 24.0; // about; a small thing needs fewer
constexpr double kNothing = 1.0;                    // square units: less of a path than that is not seen

QColor mixed(const QColor& above, QRgb ground) {
  const double share = above.alphaF();
  const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(share * a + (1 - share) * b)); };
  return QColor(mix(above.red(), qRed(ground)), mix(above.green(), qGreen(ground)), mix(above.blue(), qBlue(ground)));
}

double box_area(const QPainterPath& path) {
  const QRectF box = path.boundingRect();
  return box.width() * box.height();
}

// The colour at a place between the beginning (0) and the end (1).
QColor colour_at(const QGradientStops& stops, double place) {
  if (place <= stops.first().first) return stops.first().second;
  for (qsizetype i = 1; i < stops.size(); ++i) {
    const auto& [from, before] = stops[i - 1];
    const auto& [to, behind] = stops[i];
    if (place > to || to <= from) continue;
    const double share = (place - from) / (to - from);
    const auto between = [share](float a, float b) { return static_cast<float>((1 - share) * a + share * b); };
    return QColor::fromRgbF(between(before.redF(), behind.redF()), between(before.greenF(), behind.greenF()),
                            between(before.blueF(), behind.blueF()), between(before.alphaF(), behind.alphaF()));
  }
  return stops.last().second;
}

// Where a gradient is further on than a place: a half plane behind a line, or all outside a circle. `far` is a length
// that reaches over everything that is drawn.
QPainterPath beyond(const QGradient& gradient, double place, double far) {
  QPainterPath path;
  if (gradient.type() == QGradient::LinearGradient) {
    const auto& line = static_cast<const QLinearGradient&>(gradient);
    const QLineF axis(line.start(), line.finalStop());
    const QLineF ahead = QLineF(axis.pointAt(place), axis.pointAt(place) + axis.p2() - axis.p1()).unitVector();
    const QPointF along = (ahead.p2() - ahead.p1()) * far, across(-along.y(), along.x());
    const QPointF from = ahead.p1();
    path.addPolygon(QPolygonF({from + across, from + across + along, from - across + along, from - across}));
    path.closeSubpath();
    return path;
  }
  const auto& round = static_cast<const QRadialGradient&>(gradient);
  path.setFillRule(Qt::OddEvenFill);
  path.addRect(QRectF(round.center() - QPointF(far, far), round.center() + QPointF(far, far)));
  path.addEllipse(round.center(), place * round.radius(), place * round.radius());
  return path;
}

} // namespace

class MetafileDevice::Engine : public QPaintEngine {
 public:
  Engine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState&) override {} // each shape asks the painter's state when it is painted

  void drawPath(const QPainterPath& path) override {
    if (state->brush().style() != Qt::NoBrush) add(state->transform().map(path), state->brush(), path.boundingRect());
    if (state->pen().style() != Qt::NoPen) add(stroke_of(path), state->pen().brush(), path.boundingRect());
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
  bool banded_ = false;

 private:
  struct Ground {
    QPainterPath path;
    QRgb colour;
  };

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

  // `object` is the box around what is painted, in its own units: what some gradients are measured by.
  void add(QPainterPath path, const QBrush& brush, const QRectF& object) {
    if (brush.gradient()) return add_bands(path, brush, object);
    if (brush.style() != Qt::SolidPattern) return refuse("holds a pattern");
    add_colour(path, brush.color());
  }

  // A gradient as bands, each over the rest of the one before, so that no gap shows between them.
  void add_bands(const QPainterPath& path, const QBrush& brush, const QRectF& object) {
    const QGradient& gradient = *brush.gradient();
    const bool known = gradient.type() == QGradient::LinearGradient || gradient.type() == QGradient::RadialGradient;
    if (!known || gradient.spread() != QGradient::PadSpread || gradient.stops().isEmpty())
      return refuse("holds a gradient of a rare kind");
    QTransform to_paper = brush.transform() * state->transform();
    if (gradient.coordinateMode() == QGradient::ObjectMode)
      to_paper = brush.transform() * QTransform(object.width(), 0, 0, object.height(), object.x(), object.y()) *
                 state->transform();
    else if (gradient.coordinateMode() != QGradient::LogicalMode)
      return refuse("holds a gradient of a rare kind");
    if (!to_paper.isInvertible()) return refuse("holds a gradient without an extent");
    const QRectF reach = to_paper.inverted().mapRect(path.boundingRect());
    const double far = 4 * (std::abs(reach.x()) + std::abs(reach.y()) + reach.width() + reach.height() + 1);
    banded_ = true;
    // Translucent bands must not be mixed with each other: all of them are mixed with what is there now.
    const std::vector<Ground> grounds = grounds_;
    const double longer = std::max(path.boundingRect().width(), path.boundingRect().height());
    const int bands = std::clamp(static_cast<int>(longer / kBandWidth), kFewestBands, kMostBands);
    for (int band = 0; band < bands; ++band) {
      const double from = static_cast<double>(band) / bands;
      const QPainterPath part = band == 0 ? path : path.intersected(to_paper.map(beyond(gradient, from, far)));
      mix_with(grounds, part, colour_at(gradient.stops(), from + 0.5 / bands));
    }
  }

  void add_colour(const QPainterPath& path, const QColor& colour) {
    mix_with(std::vector<Ground>(grounds_), path, colour);
  }

  // A translucent colour becomes the solid one that it makes with its ground: once for each thing that lies under it,
  // from the lowest, white paper, to the highest.
  void mix_with(const std::vector<Ground>& grounds, const QPainterPath& path, QColor colour) {
    colour.setAlphaF(static_cast<float>(colour.alphaF() * state->opacity()));
    if (colour.alpha() <= 0) return;
    if (colour.alpha() == 255) return add_solid(path, colour);
    size_t lowest = grounds.size();
    while (lowest > 0 && box_area(path.subtracted(grounds[lowest - 1].path)) >= kNothing) --lowest;
    if (lowest == 0) add_solid(path, mixed(colour, qRgb(255, 255, 255)));
    for (size_t i = std::max<size_t>(lowest, 1) - 1; i < grounds.size(); ++i) {
      const QPainterPath part = path.intersected(grounds[i].path);
      if (box_area(part) >= kNothing) add_solid(part, mixed(colour, grounds[i].colour));
    }
  }

  void add_solid(const QPainterPath& path, const QColor& colour) {
    FilledShape shape{colour.rgb(), path.fillRule() == Qt::WindingFill ? FillRule::winding : FillRule::odd_even, {}};
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
    if (shape.polygons.empty()) return;
    forget_what_is_hidden_by(path);
    shapes_.push_back(std::move(shape));
    grounds_.push_back({path, colour.rgb()});
  }

  // Bands that nobody will see: a gradient is often painted over with the same outline.
  void forget_what_is_hidden_by(const QPainterPath& path) {
    if (!banded_) return;
    const QRectF box = path.boundingRect();
    for (size_t i = grounds_.size(); i-- > 0;) {
      if (!box.contains(grounds_[i].path.boundingRect())) continue;
      if (box_area(grounds_[i].path.subtracted(path)) >= kNothing) continue;
      grounds_.erase(grounds_.begin() + static_cast<std::ptrdiff_t>(i));
      shapes_.erase(shapes_.begin() + static_cast<std::ptrdiff_t>(i));
    }
  }

  std::vector<Ground> grounds_; // the paths of shapes_, the lowest first
};

MetafileDevice::MetafileDevice() : engine_(std::make_unique<Engine>()) {}
MetafileDevice::~MetafileDevice() = default;

QPaintEngine* MetafileDevice::paintEngine() const { return engine_.get(); }
const std::vector<FilledShape>& MetafileDevice::shapes() const { return engine_->shapes_; }
QString MetafileDevice::refusal() const { return engine_->refusal_; }
bool MetafileDevice::banded() const { return engine_->banded_; }

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
