#include "core/decoration.h"

#include "core/numbers.h"

#include <array>
#include <numbers>

namespace cserko {

namespace {

constexpr double pi = std::numbers::pi;

// A point mirrored into all four quarters of the square, and along its diagonal, joined to its image on the next axis.
struct Quarter {
  double x;
  double y;
};
constexpr std::array<Quarter, 4> quarters{{{1, 1}, {-1, 1}, {-1, -1}, {1, -1}}};

} // namespace

void LineDrawing::start() {
  lépés = rounded(-szélesség / 60.0);
  alak = static_cast<std::int16_t>(random_below(platform_, figures));
  szürke = 0;
  szürke_lépés = 256.0 / 2;
}

void LineDrawing::choose_figure(PictureBox& dísz) {
  alak = static_cast<std::int16_t>(random_below(platform_, figures));
  dísz.canvas().clear();
  dísz.Tag.clear();
}

void LineDrawing::tick(PictureBox& dísz) {
  szélesség = rounded(dísz.Width);
  platform_.seed_random();
  const double step = szélesség / 60.0;
  lépés = rounded(lépés + step);
  if (lépés >= szélesség / 2.0 + step) {
    lépés = 0;
    szürke = static_cast<std::int16_t>(rounded(szürke + szürke_lépés));
    if (szürke < 0 || szürke > 256) {
      // Figures 7 and 8 grow one curve and are left by a click alone. The panel is cleared: white lines over dark ones
      // leave their smoothed edges grey.
      if (szürke > 256 && alak < 7 && random_below(platform_, 6) == 5) choose_figure(dísz);
      szürke_lépés = -szürke_lépés;
      szürke = static_cast<std::int16_t>(szürke + 2 * szürke_lépés);
    }
  }
  draw(dísz);
}

Color LineDrawing::color() const {
  const auto level = static_cast<std::uint8_t>(szürke > 255 ? 255 : szürke < 0 ? 0 : szürke);
  return {level, level, level};
}

void LineDrawing::draw(PictureBox& dísz) {
  Canvas& canvas = dísz.canvas();
  if (alak <= 2) {
    string_art(canvas);
  } else if (alak <= 5) {
    ellipses(canvas);
  } else if (alak == 6) {
    narrowing_frame(canvas);
  } else if (alak == 7) {
    rosette(canvas);
  } else {
    wandering_curve(dísz);
  }
}

// Lines from a point that moves along one axis to a point on the next. The three figures differ in where the lines end:
// on the axes, on the edges, or on both with the crossing moved outwards.
void LineDrawing::string_art(Canvas& canvas) const {
  const double half = szélesség / 2.0;
  const double t = lépés;
  const auto join = [&](Quarter q, Point from, Point to) {
    canvas.line({half + q.x * from.x, half + q.y * from.y}, {half + q.x * to.x, half + q.y * to.y}, color());
  };
  for (const Quarter q : quarters) {
    join(q, {0, half - t}, {t, 0});
    join(q, {half - t, 0}, {0, t});
    if (alak == 0) {
      join(q, {half, t}, {half - t, half});
      join(q, {t, half}, {half, half - t});
    } else if (alak == 1) {
      join(q, {half, half - t}, {t, 0});
      join(q, {half - t, half}, {0, t});
    } else {
      join(q, {half - t, half - t}, {half, t});
      join(q, {half - t, half - t}, {t, half});
      join(q, {t, t}, {half, 0});
    }
  }
}

// Ellipses around centres that go round the middle; where the cosine of the angle is zero nothing is drawn.
void LineDrawing::ellipses(Canvas& canvas) const {
  const double half = szélesség / 2.0;
  const double angle = 0.75 * lépés / half;
  const double radius = szélesség / 6.0 * (alak == 4 ? 1.2 : 1.0);
  const int count = alak == 5 ? 8 : 4;
  for (int i = 0; i < count; ++i) {
    const double a = angle + i * (alak == 5 ? pi / 4 : pi / 2);
    const double flatness = std::cos(angle * (alak == 3 ? 1 : 2));
    if (flatness == 0) continue;
    const Point center{half + half * std::cos(a) / 2, half + half * std::sin(a) / 2};
    canvas.ellipse(center, radius, radius * std::abs(flatness), color());
  }
}

void LineDrawing::narrowing_frame(Canvas& canvas) const {
  const double width = szélesség;
  const double x = std::atan(lépés / (width / 2) * pi) * (width / 2.4) + width / 2;
  for (const double at : {x, width - x}) {
    canvas.line({at, 0}, {at, width}, color());
    canvas.line({0, at}, {width, at}, color());
  }
}

void LineDrawing::rosette(Canvas& canvas) {
  görbe_lépés = 3000;
  görbe_arány = 100;
  const double half = szélesség / 2.0;
  const auto at = [&](double angle) {
    const double size = 0.62 + 0.36 * std::cos(angle * görbe_arány);
    return Point{half + half * size * std::cos(angle), half + half * size * std::sin(angle)};
  };
  for (int i = 0; i < 16; ++i) {
    const Point from = at(görbe_szög);
    görbe_szög += pi / görbe_lépés + 0.001;
    canvas.line(from, at(görbe_szög), color());
  }
}

void LineDrawing::wandering_curve(PictureBox& dísz) {
  const double half = szélesség / 2.0;
  const bool starts = dísz.Tag.empty();
  if (starts) {
    görbe_arány = platform_.random();
    görbe_lépés = 40;
    dísz.Tag = u"q";
  }
  görbe_szög += pi / görbe_lépés;
  const double size = std::abs(std::cos(görbe_szög / 2)) / 2 + 0.5;
  const double reach = half * 0.48 * size;
  const Point next{half + reach * (std::sin(görbe_szög) + std::sin(görbe_szög * görbe_arány)),
                   half + reach * (std::cos(görbe_szög) + std::cos(görbe_szög * görbe_arány))};
  if (!starts) dísz.canvas().line(last_point_, next, color());
  last_point_ = next;
}

} // namespace cserko
