// Writes the seeds of a fuzz target: small files that between them hold every record and every coding of bitmaps.
//
// Usage: metafile-seeds TARGET FOLDER
#include "tests/metafile/wmf_bytes.h"

#include <QDir>
#include <QFile>
#include <cstdio>
#include <utility>

namespace {

using namespace cserko::test;
using Seeds = QList<std::pair<const char*, QByteArray>>;

Seeds bitmaps() {
  const QList<quint32> colors = {kRed, kGreen, kBlue, kYellow};
  Bytes old_header;
  old_header.u32(12).words({1, 2, 1, 24}).u8(1).u8(2).u8(3).u8(0).u8(4).u8(5).u8(6).u8(0);
  Bytes masks;
  masks.raw(dib_table(2, 1, 16, {}, {}, 3)).u32(0xF800).u32(0x07E0).u32(0x001F).words({0x001F, 0xFFE0});
  Bytes pattern;
  pattern.words({0, 8, 2, 2}).u8(1).u8(1).u32(0).raw(QByteArray(18, '\0')).words({0x0000, 0x00FF});
  return {{"24", dib24({{kRed, kGreen}, {kBlue, kYellow}})},
          {"24-top-down", dib24({{kRed, kGreen}, {kBlue, kYellow}}, true)},
          {"1", dib_table(2, 2, 1, {kRed, kBlue}, Bytes().u32(0x40).u32(0x80).bytes())},
          {"4", dib_table(2, 2, 4, colors, Bytes().u32(0x23).u32(0x01).bytes())},
          {"8", dib_table(2, 2, 8, colors, Bytes().u32(0x0302).u32(0x0100).bytes())},
          {"8-runs", dib_table(2, 2, 8, colors, Bytes().words({0x0201, 0x0301, 0, 1, 0x0101, 0x0100}).bytes(), 1)},
          {"4-runs", dib_table(2, 2, 4, colors, Bytes().words({0x2302, 0, 0x0102, 0x0100}).bytes(), 2)},
          {"16", dib_table(2, 1, 16, {}, Bytes().words({0x001F, 0x7FE0}).bytes())},
          {"16-masks", masks.bytes()},
          {"32", dib_table(1, 1, 32, {}, Bytes().u32(0x000000FF).bytes())},
          {"old-header", old_header.bytes()},
          {"pattern", pattern.bytes()}};
}

Wmf start() { return Wmf().window(100, 100).pen(0, 2, kBlue).brush(0, kRed).select(0).select(1); }

Seeds drawings() {
  const QByteArray dib = bitmaps().first().second;
  return {
      {"shapes", start()
                     .polygon({{0, 0}, {90, 0}, {0, 90}})
                     .polyline({{5, 5}, {90, 50}, {5, 90}})
                     .poly_polygon({{{0, 0}, {9, 0}, {9, 9}}, {{20, 20}, {90, 20}, {50, 90}}})
                     .move_to(3, 3)
                     .line_to(80, 20)
                     .rectangle(10, 10, 50, 60)
                     .round_rect(20, 20, 90, 90, 20, 10)
                     .ellipse(5, 5, 95, 60)
                     .set_pixel(50, 50, kGreen)
                     .file()},
      {"arcs", start()
                   .arc(0x0817, 10, 10, 90, 90, {100, 50}, {0, 50})
                   .arc(0x081A, 10, 10, 90, 90, {0, 0}, {100, 50})
                   .arc(0x0830, 10, 10, 90, 90, {50, 0}, {50, 100})
                   .file(Wmf::placeable(0, 0, 100, 100, 96))},
      {"mapping", start()
                      .map_mode(7)
                      .viewport_org(0, 100)
                      .viewport_ext(200, -100)
                      .offset_window(3, 4)
                      .scale_window(2, 3, 3, 2)
                      .offset_viewport(-5, 5)
                      .scale_viewport(1, 2, 1, 2)
                      .rectangle(0, 0, 50, 50)
                      .map_mode(4)
                      .ellipse(0, 0, 300, -300)
                      .file()},
      {"objects", start()
                      .palette({kRed, kBlue})
                      .record(0x0234, {2})
                      .region(10, 10, 50, 80)
                      .dib_pattern(dib)
                      .record(0x01F9, bitmaps().last().second)
                      .record(0x00F8, {0})
                      .brush(2, 0x01000001, 4)
                      .select(4)
                      .save()
                      .select_clip(3)
                      .rectangle(0, 0, 100, 100)
                      .restore(-1)
                      .record(0x0228, {3, 7})
                      .record(0x012B, {3})
                      .remove(4)
                      .record(0x0220, {2, 3})
                      .file()},
      {"clips", start()
                    .save()
                    .intersect_clip(10, 10, 90, 90)
                    .exclude_clip(30, 30, 60, 60)
                    .rectangle(0, 0, 100, 100)
                    .record(0x0220, {5, 5})
                    .ellipse(0, 0, 100, 100)
                    .restore(1)
                    .select_clip(0)
                    .file()},
      {"mixes", start()
                    .rop2(7)
                    .ellipse(0, 0, 80, 80)
                    .rop2(10)
                    .fill_mode(2)
                    .polygon({{0, 0}, {90, 90}, {0, 90}, {90, 0}})
                    .pen(2, 0, kGreen)
                    .select(2)
                    .bk_mode(1)
                    .line_to(99, 50)
                    .file()},
      {"text", start()
                   .font(-30, "Times New Roman", 300, 238)
                   .select(2)
                   .text_color(kGreen)
                   .bk_color(kYellow)
                   .text_align(24)
                   .record(0x0108, {2})
                   .record(0x020A, {1, 9})
                   .text_out(10, 50, "\xE1rv\xEDz t\xFBr\xF5")
                   .ext_text_out(10, 90, "ab", {6, 0, 60, 90, 100}, {20, 10})
                   .file()},
      {"bitmaps", start()
                      .stretch_dib(rop::kSrcCopy, {0, 0, 50, 50}, {0, 0, 2, 2}, dib)
                      .dib_stretch_blt(rop::kSrcAnd, {50, 0, -50, 50}, {0, 0, 2, 2}, dib)
                      .dib_bit_blt(rop::kSrcPaint, {40, 40, 2, 2}, 0, 0, dib)
                      .set_dib_to_dev(60, 60, {0, 0, 2, 2}, 2, 0, dib)
                      .file()},
      {"blits", start()
                    .pat_blt(rop::kPatInvert, {10, 10, 50, 50})
                    .dib_bit_blt(rop::kDstInvert, {0, 0, 20, 20}, 0, 0, {})
                    .dib_bit_blt(rop::kSrcCopy, {30, 30, 20, 20}, 5, 5, {})
                    .dib_stretch_blt(rop::kSrcInvert, {0, 0, 99, 99}, {9, 9, 30, 30}, {})
                    .file()},
  };
}

} // namespace

int main(int argc, char* argv[]) {
  if (argc != 3) {
    std::fputs("usage: metafile-seeds TARGET FOLDER\n", stderr);
    return 2;
  }
  const QByteArray target(argv[1]);
  const QDir folder(QString::fromLocal8Bit(argv[2]));
  if (!folder.mkpath(QStringLiteral("."))) return 1;
  const bool of_bitmaps = target == "fuzz_bitmap";
  for (const auto& [name, bytes] : of_bitmaps ? bitmaps() : drawings()) {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    // Two bytes in front choose how a bitmap is read.
    const QByteArray seed = of_bitmaps ? QByteArray(2, '\0') + bytes : bytes;
    if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size()) return 1;
  }
  return 0;
}
