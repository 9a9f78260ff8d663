// The pictures of the exercises in the graphic main window: what is done in each, for those who cannot read yet. Drawn
// by code, partly from the icon set, on a square of 100 units a side whose corners stay free.
#include "core/graphic_places.h"
#include "data/builder/brushwork.h"
#include "data/builder/scene.h"
#include "data/pack/table.h"
#include "data/pack/wmf_writer.h"

#include <map>

namespace cserko {
namespace {

const QColor kInk(0x3B, 0x27, 0x1A), kPaper(0xFF, 0xF8, 0xE6), kEdge(0xB9, 0x8A, 0x55), kWood(0xC8, 0x93, 0x5A),
    kDarkWood(0x9A, 0x68, 0x3A), kPaleWood(0xF3, 0xD2, 0xA0), kAccent(0xC9, 0x6F, 0x2B), kGold(0xF2, 0xB5, 0x3C),
    kRed(0xD2, 0x4B, 0x3E), kGreen(0x4C, 0x96, 0x4A), kLeaf(0x86, 0xB8, 0x5B), kBlue(0x3F, 0x6F, 0xA8),
    kSky(0xCF, 0xE4, 0xEC), kGrey(0xA9, 0xA3, 0x97), kLines(0xC9, 0xB8, 0x96);

struct Brush {
  QPainter& painter;
  const IconSet& icons;

  void tile(const QString& text, QPointF center, double side, double angle = 0, const QColor& paper = kPaper) const {
    cserko::tile(painter, text, center, side, angle, paper);
  }
  void word(const QString& text, QPointF center, double height, const QColor& color = kInk) const {
    cserko::word(painter, text, center, height, color);
  }
  void icon(const QString& name, double left, double top, double side) const {
    cserko::icon(painter, icons, name, {left, top, side, side});
  }
  void card(const QRectF& place, const QColor& paper = kPaper) const {
    round_box(painter, kEdge, place, 5);
    round_box(painter, paper, place.adjusted(2, 2, -2, -2), 3.5);
  }
  void line(const QColor& color, double width, const QPolygonF& points) const {
    QPainterPath path;
    path.addPolygon(points);
    stroke(painter, color, path, width);
  }
  void tick(QPointF at, double size) const {
    line(kGreen, size * 0.3,
         {at + QPointF(-size / 2, 0), at + QPointF(-size / 8, size * 0.4), at + QPointF(size * 0.55, -size / 2)});
  }
  void cross(QPointF at, double size) const {
    const double arm = size * 0.42;
    line(kRed, size * 0.3, {at + QPointF(-arm, -arm), at + QPointF(arm, arm)});
    line(kRed, size * 0.3, {at + QPointF(-arm, arm), at + QPointF(arm, -arm)});
  }
};

// A lens makes one letter of many large.
void letter_viewer(const Brush& brush) {
  brush.card({10, 12, 62, 70});
  brush.word("bdac", {40, 25}, 13, kGrey);
  brush.word("oeat", {40, 71}, 13, kGrey);
  brush.line(kDarkWood, 12, {{70, 70}, {90, 90}});
  brush.line(kInk, 6, {{65, 65}, {72, 72}});
  disc(brush.painter, kInk, {50, 48}, 31, 31);
  disc(brush.painter, kSky, {50, 48}, 26, 26);
  brush.word("a", {50, 48}, 46);
}

// One block too many stands out of the row.
void surplus_letter(const Brush& brush) {
  box(brush.painter, kDarkWood, 2, 80, 96, 7);
  brush.tile("l", {19, 63}, 33);
  brush.tile("ó", {81, 63}, 33);
  brush.tile("k", {50, 31}, 35, -14, QColor(0xF2, 0x8B, 0x7D));
  brush.line(kRed, 5, {{41, 71}, {50, 61}, {59, 71}});
}

// A fence of letters from which one board is missing.
void missing_letter(const Brush& brush) {
  const auto picket = [&](double left, const QColor& edge, const QColor& paper, const QString& letter) {
    polygon(brush.painter, edge, {{left, 30}, {left + 14, 14}, {left + 28, 30}, {left + 28, 88}, {left, 88}});
    polygon(brush.painter, paper,
            {{left + 2.5, 31}, {left + 14, 18}, {left + 25.5, 31}, {left + 25.5, 85.5}, {left + 2.5, 85.5}});
    if (!letter.isEmpty()) brush.word(letter, {left + 14, 54}, 30);
  };
  box(brush.painter, kDarkWood, 2, 34, 96, 6);
  box(brush.painter, kDarkWood, 2, 74, 96, 6);
  picket(4, kEdge, kPaper, "h");
  picket(68, kEdge, kPaper, "z");
  for (int dash = 0; dash < 5; ++dash) {
    const double y = 24 + 13.0 * dash;
    brush.line(kAccent, 2.6, {{38, y}, {38, y + 6}});
    brush.line(kAccent, 2.6, {{62, y}, {62, y + 6}});
  }
  brush.icon("red-question-mark", 36, 40, 28);
}

// Letters fall into the basket that is theirs.
void letter_sorting(const Brush& brush) {
  const auto basket = [&](double middle, const QString& letter) {
    QPainterPath handle;
    handle.moveTo(middle - 16, 58);
    handle.cubicTo(middle - 14, 38, middle + 14, 38, middle + 16, 58);
    stroke(brush.painter, kDarkWood, handle, 3.5);
    polygon(brush.painter, kWood, {{middle - 21, 58}, {middle + 21, 58}, {middle + 16, 90}, {middle - 16, 90}});
    for (int band = 0; band < 2; ++band) {
      const double y = 68.0 + 11 * band;
      brush.line(kDarkWood, 2, {{middle - 18.5 + 1.6 * band, y}, {middle + 18.5 - 1.6 * band, y}});
    }
    round_box(brush.painter, kDarkWood, {middle - 23, 55, 46, 7}, 3);
    brush.card({middle - 11, 62, 22, 24});
    brush.word(letter, {middle, 74}, 16);
  };
  basket(25, "b");
  basket(75, "d");
  brush.tile("b", {22, 24}, 22, -12);
  brush.tile("d", {77, 24}, 22, 14);
  brush.tile("b", {50, 13}, 20, 8);
}

// Letters swirl in a bowl.
void letter_mixer(const Brush& brush) {
  QPainterPath whirl({20, 40});
  whirl.cubicTo(10, 10, 70, -4, 84, 24);
  whirl.cubicTo(92, 44, 50, 52, 44, 36);
  stroke(brush.painter, kGold, whirl, 4);
  polygon(brush.painter, kGold, {{36, 37}, {52, 36}, {43, 25}});
  brush.line(kDarkWood, 6, {{90, 26}, {66, 62}});
  disc(brush.painter, kBlue.darker(125), {50, 58}, 42, 10);
  disc(brush.painter, kSky, {50, 58}, 38, 7.5);
  QPainterPath belly({8, 59});
  belly.cubicTo(12, 84, 28, 92, 50, 92);
  belly.cubicTo(72, 92, 88, 84, 92, 59);
  belly.cubicTo(76, 71, 24, 71, 8, 59);
  shape(brush.painter, kBlue, belly);
  brush.tile("t", {22, 36}, 20, -18);
  brush.tile("e", {48, 48}, 22, 12);
  brush.tile("a", {72, 34}, 21, 24);
  brush.tile("k", {46, 15}, 20, -8);
}

// A short caterpillar with a short sound, a long one with a long sound.
void short_long(const Brush& brush) {
  const auto caterpillar = [&](double y, double left, int rings, const QColor& pale, const QColor& deep) {
    constexpr double pitch = 12.5, radius = 9;
    for (int ring = rings - 1; ring >= 0; --ring) {
      const double x = left + 12 + pitch * ring;
      const double lift = ring % 2 == 0 ? 0 : -3.5;
      brush.line(kInk, 2, {{x - 2, y + 6}, {x - 3, y + 12}});
      brush.line(kInk, 2, {{x + 2, y + 6}, {x + 3, y + 12}});
      disc(brush.painter, ring % 2 == 0 ? deep : pale, {x, y + lift}, radius, radius);
    }
    const QPointF head(left + 11, y - 4);
    brush.line(kInk, 1.8, {head + QPointF(-4, -8), head + QPointF(-7, -16)});
    brush.line(kInk, 1.8, {head + QPointF(3, -9), head + QPointF(4, -17)});
    disc(brush.painter, kRed, head + QPointF(-7, -16), 2.2, 2.2);
    disc(brush.painter, kRed, head + QPointF(4, -17), 2.2, 2.2);
    disc(brush.painter, pale, head, 11, 11);
    disc(brush.painter, kInk, head + QPointF(-4.5, -2), 1.9, 1.9);
    disc(brush.painter, kInk, head + QPointF(2.5, -2), 1.9, 1.9);
    QPainterPath smile(head + QPointF(-5, 3));
    smile.cubicTo(head + QPointF(-3, 7), head + QPointF(2, 7), head + QPointF(4, 3));
    stroke(brush.painter, kInk, smile, 1.6);
  };
  caterpillar(35, 14, 2, QColor(0xF0, 0xC0, 0x60), kGold);
  brush.tile("o", {72, 28}, 26, 8);
  caterpillar(80, 2, 7, QColor(0xA5, 0xCF, 0x77), kLeaf);
  brush.tile("ó", {72, 54}, 26, 8);
}

// An apple with a signpost on each side.
void where_is_it(const Brush& brush) {
  const auto signpost = [&](double angle) {
    aslant(brush.painter, {50, 50}, angle, [&] {
      polygon(brush.painter, kDarkWood, {{20, -11}, {36, -11}, {52, 0}, {36, 11}, {20, 11}});
      polygon(brush.painter, kPaleWood, {{23, -8}, {35, -8}, {47, 0}, {35, 8}, {23, 8}});
      brush.line(kDarkWood, 2, {{27, 0}, {36, 0}});
    });
  };
  for (const double angle : {0.0, 90.0, 180.0, 270.0}) signpost(angle);
  brush.icon("red-apple", 27, 26, 46);
}

// A weathercock.
void which_way(const Brush& brush) {
  brush.line(kInk, 4, {{50, 56}, {50, 96}});
  brush.line(kInk, 3, {{26, 80}, {74, 80}});
  disc(brush.painter, kGold, {26, 80}, 5, 5);
  disc(brush.painter, kGold, {74, 80}, 5, 5);
  disc(brush.painter, kGold, {50, 80}, 5, 5);
  brush.line(kAccent, 6, {{12, 60}, {80, 60}});
  polygon(brush.painter, kAccent, {{76, 48}, {98, 60}, {76, 72}});
  polygon(brush.painter, kAccent, {{2, 49}, {14, 49}, {22, 60}, {14, 71}, {2, 71}, {10, 60}});
  brush.painter.save();
  brush.painter.translate(100, 0); // the cock looks where the arrow points
  brush.painter.scale(-1, 1);
  brush.icon("rooster", 23, 3, 54);
  brush.painter.restore();
}

// A book with sentences, and the picture that it tells of.
void sentence_to_picture(const Brush& brush) {
  brush.icon("open-book", 2, 30, 66);
  round_box(brush.painter, kDarkWood, {46, 8, 50, 46}, 4);
  box(brush.painter, kGold, 49, 11, 44, 40);
  box(brush.painter, kSky, 52, 14, 38, 34);
  brush.icon("cat-face", 57, 17, 28);
}

// Which of the texts belongs to the picture?
void picture_definition(const Brush& brush) {
  brush.card({6, 30, 50, 56}, kSky);
  brush.icon("elephant", 11, 38, 40);
  for (int text = 0; text < 3; ++text) {
    const double y = 42 + 17.0 * text;
    brush.card({60, y - 6, 36, 14});
    brush.line(kGrey, 2.6, {{66, y - 1}, {90, y - 1}});
    brush.line(kGrey, 2.6, {{66, y + 4}, {82, y + 4}});
  }
  brush.icon("red-question-mark", 36, 2, 34);
}

// True or false is weighed.
void true_or_false(const Brush& brush) {
  const auto pan = [&](double x, double y) {
    brush.line(kInk, 1.6, {{x - 17, y}, {x, 24}, {x + 17, y}});
    QPainterPath bowl({x - 21, y});
    bowl.cubicTo(x - 18, y + 15, x + 18, y + 15, x + 21, y);
    bowl.closeSubpath();
    shape(brush.painter, kGold, bowl);
  };
  brush.line(kDarkWood, 6, {{50, 16}, {50, 86}});
  brush.line(kDarkWood, 5, {{22, 24}, {78, 24}});
  round_box(brush.painter, kDarkWood, {30, 84, 40, 9}, 4);
  disc(brush.painter, kAccent, {50, 17}, 6, 6);
  pan(22, 64);
  pan(78, 64);
  brush.tick({22, 54}, 19);
  brush.cross({78, 54}, 18);
}

// Scissors cut a word.
void syllabifier(const Brush& brush) {
  aslant(brush.painter, {26, 62}, -5, [&] {
    brush.card({-23, -19, 46, 38});
    brush.word("al", {0, 0}, 22);
  });
  aslant(brush.painter, {74, 62}, 5, [&] {
    brush.card({-23, -19, 46, 38});
    brush.word("ma", {0, 1}, 21);
  });
  for (int dash = 0; dash < 5; ++dash) {
    const double y = 40 + 11.0 * dash;
    brush.line(kAccent, 2.4, {{50, y}, {50, y + 5}});
  }
  aslant(brush.painter, {50, 26}, 135, [&] { brush.icon("scissors", -23, -23, 46); });
}

// A word flashes by.
void word_flash(const Brush& brush) {
  brush.icon("cloud-with-lightning", 8, 0, 84);
  brush.card({20, 68, 60, 26});
  brush.word("hal", {50, 81}, 17);
}

// A train, wagon after wagon.
void word_chain(const Brush& brush) {
  const auto wagon = [&](double left, const QColor& paint, const QString& load) {
    brush.icon(load, left + 2, 30, 26);
    round_box(brush.painter, paint, {left, 52, 30, 20}, 4);
    for (const double wheel : {left + 8, left + 22}) {
      disc(brush.painter, kInk, {wheel, 74}, 6, 6);
      disc(brush.painter, kGrey, {wheel, 74}, 2.5, 2.5);
    }
  };
  brush.line(kDarkWood, 3, {{0, 82}, {100, 82}});
  for (int sleeper = 0; sleeper < 7; ++sleeper) box(brush.painter, kDarkWood, 4.0 + 14 * sleeper, 83, 6, 4);
  brush.line(kInk, 3, {{30, 66}, {98, 66}});
  wagon(34, kBlue, "duck");
  wagon(68, kAccent, "red-apple");
  brush.icon("locomotive", -4, 41, 40);
  const QColor steam(0xDC, 0xD8, 0xCC);
  disc(brush.painter, steam, {13, 36}, 5, 4);
  disc(brush.painter, steam, {22, 28}, 7, 5.5);
  disc(brush.painter, steam, {35, 20}, 9, 7);
}

// The letters of a word lie about on a tray.
void scrambled_word(const Brush& brush) {
  round_box(brush.painter, kDarkWood, {4, 10, 92, 80}, 9);
  round_box(brush.painter, kPaleWood, {10, 16, 80, 68}, 5);
  brush.tile("s", {28, 34}, 26, -20);
  brush.tile("k", {56, 30}, 26, 13);
  brush.tile("c", {76, 50}, 26, -9);
  brush.tile("ó", {24, 64}, 26, 15);
  brush.tile("e", {48, 56}, 26, -6);
  brush.tile("r", {66, 72}, 24, 24);
}

// A horse leaps over a board.
void knight(const Brush& brush) {
  constexpr int fields = 4;
  const auto corner = [](int column, int row) {
    const double depth = row / static_cast<double>(fields); // 0 far, 1 near
    const double half = 32 + 17 * depth;
    return QPointF(50 - half + 2 * half * column / fields, 56 + 36 * depth);
  };
  for (int row = 0; row < fields; ++row)
    for (int column = 0; column < fields; ++column)
      polygon(brush.painter, (row + column) % 2 == 0 ? kPaper : kWood,
              {corner(column, row), corner(column + 1, row), corner(column + 1, row + 1), corner(column, row + 1)});
  brush.line(kDarkWood, 2.5,
             {corner(0, 0), corner(fields, 0), corner(fields, fields), corner(0, fields), corner(0, 0)});
  QPainterPath leap({88, 80});
  leap.cubicTo(86, 40, 80, 20, 60, 16);
  for (int dot = 0; dot <= 4; ++dot) disc(brush.painter, kAccent, leap.pointAtPercent(dot / 7.0), 2.6, 2.6);
  aslant(brush.painter, {44, 40}, 8, [&] { brush.icon("horse", -36, -36, 72); });
}

// Columns of letters that turn until a word stands in the middle.
void winder(const Brush& brush) {
  const QString columns[] = {"bhm", "eás", "tzk"};
  round_box(brush.painter, kDarkWood, {6, 12, 88, 76}, 8);
  for (int column = 0; column < 3; ++column) {
    const double left = 11.0 + 27 * column;
    round_box(brush.painter, kPaper, {left, 17, 24, 66}, 5);
    for (int row = 0; row < 3; ++row)
      brush.word(columns[column].mid(row, 1), {left + 12, 28 + 22.0 * row}, row == 1 ? 21 : 15,
                 row == 1 ? kInk : kGrey);
  }
  QPainterPath window;
  window.addRoundedRect({4, 37, 92, 26}, 6, 6);
  stroke(brush.painter, kAccent, window, 4);
  polygon(brush.painter, kGreen, {{12, 12}, {23, -1}, {34, 12}});
  polygon(brush.painter, kGreen, {{66, 12}, {77, -1}, {88, 12}});
  polygon(brush.painter, kGreen, {{39, 88}, {50, 101}, {61, 88}});
}

// A chest of syllables.
void syllable_search(const Brush& brush) {
  const auto syllable = [&](const QString& text, QPointF place, double angle, const QColor& paper) {
    aslant(brush.painter, place, angle, [&] {
      brush.card({-16, -12, 32, 26}, paper);
      brush.word(text, {0, 0}, 14);
    });
  };
  polygon(brush.painter, kDarkWood, {{10, 26}, {90, 26}, {96, 56}, {4, 56}});
  polygon(brush.painter, kWood, {{15, 30}, {85, 30}, {90, 56}, {10, 56}});
  syllable("ha", {50, 20}, 3, kPaper);
  syllable("ka", {20, 37}, -16, kPaper);
  syllable("te", {80, 37}, 15, kPaper);
  syllable("ma", {50, 45}, -3, QColor(0xFF, 0xEB, 0xA8));
  round_box(brush.painter, kDarkWood, {2, 54, 96, 38}, 4);
  box(brush.painter, kWood, 7, 59, 86, 28);
  box(brush.painter, kDarkWood, 20, 54, 8, 38);
  box(brush.painter, kDarkWood, 72, 54, 8, 38);
  round_box(brush.painter, kGold, {41, 52, 18, 20}, 3);
  disc(brush.painter, kInk, {50, 60}, 3, 3);
  box(brush.painter, kInk, 48.7, 60, 2.6, 8);
}

// Two cards with the same picture among others that lie face down.
void picture_memory(const Brush& brush) {
  const auto card = [&](QPointF place, double angle, bool open) {
    aslant(brush.painter, place, angle, [&] {
      brush.card({-20, -25, 40, 50}, open ? kPaper : kAccent);
      if (open) {
        brush.icon("strawberry", -15, -15, 30);
      } else {
        brush.line(kPaleWood, 2.5, {{-10, -15}, {10, 15}});
        brush.line(kPaleWood, 2.5, {{10, -15}, {-10, 15}});
      }
    });
  };
  card({36, 34}, -10, false);
  card({66, 34}, 9, false);
  card({25, 60}, -6, true);
  card({75, 60}, 6, true);
}

// Pictures on the left, sentences on the right, and threads that join them.
void sentence_pairing(const Brush& brush) {
  const char* const pictures[] = {"sun", "fish", "tulip"};
  const auto row = [](int number) { return 20 + 30.0 * number; };
  for (int i = 0; i < 3; ++i) {
    brush.card({2, row(i) - 13, 30, 26}, kSky);
    brush.icon(pictures[i], 6, row(i) - 11, 22);
    brush.card({66, row(i) - 11, 34, 22});
    brush.line(kGrey, 2.6, {{72, row(i) - 3.5}, {94, row(i) - 3.5}});
    brush.line(kGrey, 2.6, {{72, row(i) + 3.5}, {87, row(i) + 3.5}});
  }
  const auto thread = [&](int from, int to, const QColor& color) {
    QPainterPath path({32, row(from)});
    path.cubicTo(58, row(from) - 8, 38, row(to) + 12, 66, row(to));
    stroke(brush.painter, color, path, 3.2);
    disc(brush.painter, color, {32, row(from)}, 3.4, 3.4);
    disc(brush.painter, color, {66, row(to)}, 3.4, 3.4);
  };
  thread(0, 1, kAccent);
  thread(1, 0, kBlue);
  thread(2, 2, kGreen);
}

using Draw = void (*)(const Brush& brush);

const std::map<TextView, Draw> kPictures{
    {u"frm_betűnézegető", letter_viewer},
    {u"frm_betűfelesleg", surplus_letter},
    {u"frm_betűhiány", missing_letter},
    {u"frm_betűválogatás", letter_sorting},
    {u"frm_betűkeverő", letter_mixer},
    {u"frm_hosszrövid", short_long},
    {u"frm_holvan", where_is_it},
    {u"frm_merremutat", which_way},
    {u"frm_mondatkép", sentence_to_picture},
    {u"frm_képhatározó", picture_definition},
    {u"frm_igazhamis", true_or_false},
    {u"frm_szótagoló", syllabifier},
    {u"frm_szóvillám", word_flash},
    {u"frm_szólánc", word_chain},
    {u"frm_cserkó", scrambled_word},
    {u"frm_lóugrás", knight},
    {u"frmverem", winder},
    {u"frm_szótagkereső", syllable_search},
    {u"frm_képmemória", picture_memory},
    {u"frm_párosító", sentence_pairing},
};

} // namespace

QByteArray scene_picture(const IconSet& icons, TextView window) {
  const QString name = QString::fromUtf16(window.data(), static_cast<qsizetype>(window.size()));
  const auto found = kPictures.find(window);
  if (found == kPictures.end()) throw PackError(name + ": no picture is drawn for this exercise");
  return drawn_metafile(name, {kMetafileSide, kMetafileSide}, [&](QPainter& painter) {
    painter.scale(kMetafileSide / 100.0, kMetafileSide / 100.0);
    found->second({painter, icons});
  });
}

} // namespace cserko
