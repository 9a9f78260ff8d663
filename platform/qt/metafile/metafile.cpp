#include "metafile.h"

#include "player.h"
#include "reader.h"

#include <QPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

/// Together they stay below a second, with time left for the record that runs when the budget ends.
constexpr qint64 kMeasureMilliseconds = 120, kPlayMilliseconds = 650;
constexpr int kMostSide = 8192;
constexpr qint64 kMostPixels = 40'000'000;
constexpr double kMostAspect = 64; ///< longer strips are shown as this
constexpr double kDotsPerInch = 96;
constexpr int kTwipsPerInch = 1440; ///< units of a box that does not name its own
constexpr double kUnknownSide = 512;

} // namespace

/// What the state records say about the page, read ahead of playing.
struct WmfSurvey {
  std::optional<QSizeF> window;
  std::optional<QSizeF> viewport;     ///< with its signs
  std::optional<QSizeF> drawn_window; ///< window extent in force at the first drawing record
  std::optional<QPointF> viewport_org;
  int map_mode = WmfState::kAnisotropic; ///< likewise
  bool needs_paper = false;
};

namespace {

double box_units(const WmfHeader& header) { return header.units_per_inch > 0 ? header.units_per_inch : kTwipsPerInch; }

std::optional<QSizeF> extent_of(const WmfRecord& r) {
  if (r.words() < 2 || r.s16(0) == 0 || r.s16(1) == 0) return std::nullopt;
  return QSizeF(r.s16(1), r.s16(0));
}

QSizeF absolute(QSizeF size) { return {std::abs(size.width()), std::abs(size.height())}; }

WmfSurvey survey(WmfReader reader) {
  WmfSurvey result;
  std::optional<QSizeF> window;
  int map_mode = result.map_mode;
  bool drawing = false;
  for (WmfRecord r; reader.next(r);) {
    if (r.function() == wmf::kSetWindowExt) {
      const auto extent = extent_of(r);
      if (extent) window = absolute(*extent);
      if (!result.window) result.window = window;
    } else if (r.function() == wmf::kSetViewportExt) {
      if (!result.viewport) result.viewport = extent_of(r);
    } else if (r.function() == wmf::kSetViewportOrg) {
      if (!result.viewport_org && !drawing) result.viewport_org = QPointF(r.s16(1), r.s16(0));
    } else if (r.function() == wmf::kSetMapMode) {
      map_mode = r.u16(0);
    } else if (is_drawing_record(r.function()) && !drawing) {
      drawing = true;
      result.drawn_window = window;
      result.map_mode = map_mode;
    }
    if (reads_target(r)) result.needs_paper = true;
  }
  return result;
}

/// Logical units an inch of the map modes of fixed measure, 0 for the others.
double units_per_inch(int map_mode) {
  switch (map_mode) {
  case 2:
    return 254;
  case 3:
    return 2540;
  case 4:
    return 100;
  case 5:
    return 1000;
  case WmfState::kTwips:
    return kTwipsPerInch;
  default:
    return 0;
  }
}

bool touches(const QRectF& page, const QRectF& drawn) {
  return drawn.left() < page.right() && drawn.right() > page.left() && drawn.top() < page.bottom() &&
         drawn.bottom() > page.top();
}

/// The drawn bounds as a page: never without area.
QRectF page_of_bounds(QRectF bounds) {
  if (bounds.width() <= 0) bounds.adjust(-0.5, 0, 0.5, 0);
  if (bounds.height() <= 0) bounds.adjust(0, -0.5, 0, 0.5);
  return bounds;
}

QSizeF with_limited_aspect(QSizeF size) {
  const double width = std::max(size.width(), size.height() / kMostAspect);
  const double height = std::max(size.height(), size.width() / kMostAspect);
  const double least = std::min(width, height);
  return least >= 1 ? QSizeF(width, height) : QSizeF(width, height) / least;
}

} // namespace

bool Metafile::lay_out_page(const WmfHeader& header, const WmfSurvey& found) {
  const double fixed = units_per_inch(found.map_mode);
  bool known = true;
  if (fixed > 0) {
    known = header.box.has_value();
    page_.rect = QRectF(QPointF(0, 0), known ? QSizeF(header.box->size()) : QSizeF(1, 1));
    if (known) page_.fixed_unit = box_units(header) / fixed;
  } else if (found.viewport) {
    page_.rect = QRectF(found.viewport_org.value_or(QPointF(0, 0)), *found.viewport).normalized();
  } else if (found.window) {
    page_.rect = QRectF(QPointF(0, 0), *found.window);
  } else if (header.box) {
    page_.rect = QRectF(QPointF(0, 0), QSizeF(header.box->size()));
    page_.window_org = header.box->topLeft();
  } else {
    known = false;
    page_.rect = QRectF(0, 0, 1, 1);
  }
  page_.viewport = page_.rect.size();
  page_.window = found.window.value_or(page_.rect.size());
  return known;
}

std::optional<Metafile> Metafile::parse(const QByteArray& bytes) {
  const std::optional<WmfHeader> header = read_wmf_header(bytes);
  if (!header) return std::nullopt;
  const WmfReader reader(bytes, header->first_record);
  const WmfSurvey found = survey(reader);

  Metafile metafile;
  metafile.bytes_ = bytes;
  metafile.first_record_ = header->first_record;
  metafile.needs_paper_ = found.needs_paper;
  Page& page = metafile.page_;
  const bool known = metafile.lay_out_page(*header, found);

  WmfBudget budget(kMeasureMilliseconds);
  WmfCanvas measure(nullptr, budget);
  Player(measure, budget, page, page.rect).play(reader);
  if (!measure.drawn()) return std::nullopt;
  // A picture that does not say where it lies, or that lies wholly beside its own window, is shown as it was drawn.
  const bool on_page = known && touches(page.rect, measure.bounds());
  if (!on_page) page.rect = page_of_bounds(measure.bounds());

  QSizeF natural;
  if (header->box) {
    natural = QSizeF(header->box->size()) * kDotsPerInch / box_units(*header);
  } else {
    const bool by_window = on_page && units_per_inch(found.map_mode) == 0;
    const QSizeF shape = by_window ? found.drawn_window.value_or(page.window) : page.rect.size();
    natural = shape * kUnknownSide / std::max(shape.width(), shape.height());
  }
  metafile.natural_size_ = with_limited_aspect(natural);
  return metafile;
}

QImage Metafile::play(QSize size) const {
  QImage image(size, needs_paper_ ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return {};
  image.fill(needs_paper_ ? QColor(Qt::white) : QColor(Qt::transparent));
  {
    WmfBudget budget(kPlayMilliseconds);
    WmfCanvas canvas(&image, budget);
    Player(canvas, budget, page_, QRectF(image.rect())).play(WmfReader(bytes_, first_record_));
  }
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage Metafile::render(QSize size, PictureFit fit) const {
  if (size.isEmpty() || size.width() > kMostSide || size.height() > kMostSide) return {};
  if (static_cast<qint64>(size.width()) * size.height() > kMostPixels) return {};
  if (fit == PictureFit::Stretch) return play(size);
  const QSize inner = fitted_size(natural_size_, size);
  QImage picture = play(inner);
  if (picture.isNull() || inner == size) return picture;
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return {};
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.drawImage((size.width() - inner.width()) / 2, (size.height() - inner.height()) / 2, picture);
  return image;
}

bool Metafile::draw(QPainter& painter, const QRectF& target, PictureFit fit) const {
  if (target.isEmpty()) return false;
  const QRectF device = painter.deviceTransform().mapRect(target);
  const double ratio = std::min({1.0, kMostSide / std::max(device.width(), device.height()),
                                 std::sqrt(static_cast<double>(kMostPixels) / (device.width() * device.height()))});
  const QSize size(std::max(1, static_cast<int>(std::lround(device.width() * ratio))),
                   std::max(1, static_cast<int>(std::lround(device.height() * ratio))));
  const QImage image = render(size.boundedTo({kMostSide, kMostSide}), fit);
  if (image.isNull()) return false;
  painter.drawImage(target, image);
  return true;
}

QSize fitted_size(QSizeF natural, QSize box) {
  const double scale = std::min(box.width() / natural.width(), box.height() / natural.height());
  const QSize size(static_cast<int>(std::lround(natural.width() * scale)),
                   static_cast<int>(std::lround(natural.height() * scale)));
  return size.expandedTo({1, 1}).boundedTo(box);
}

QImage render_metafile(const QByteArray& bytes, QSize size, PictureFit fit) {
  const std::optional<Metafile> metafile = Metafile::parse(bytes);
  return metafile ? metafile->render(size, fit) : QImage();
}

} // namespace cserko
