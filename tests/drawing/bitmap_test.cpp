#include "platform/bitmap.h"
#include "tests/drawing/grid.h"

#include <random>

namespace cserko {
namespace {

std::string number(std::uint32_t value, int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFFU));
  return bytes;
}

struct Form {
  int width = 2;
  int height = 2;
  int depth = 24;
  std::uint32_t coding = 0;
  std::string table{};
  std::uint32_t colors = 0;
};

std::string bitmap(const Form& form, const std::string& points) {
  const std::size_t start = 14 + 40 + form.table.size();
  return "BM" + number(static_cast<std::uint32_t>(start + points.size()), 4) + number(0, 4) +
         number(static_cast<std::uint32_t>(start), 4) + number(40, 4) +
         number(static_cast<std::uint32_t>(form.width), 4) + number(static_cast<std::uint32_t>(form.height), 4) +
         number(1, 2) + number(static_cast<std::uint32_t>(form.depth), 2) + number(form.coding, 4) + number(0, 4) +
         number(0, 4) + number(0, 4) + number(form.colors, 4) + number(0, 4) + form.table + points;
}

const std::string two_colors = std::string("\0\0\0\0", 4) + std::string("\0\0\xFF\0", 4);

Rows read(const std::string& file) {
  const auto image = read_bitmap(file);
  return image ? rows_of(*image) : Rows{"(none)"};
}

TEST(Bitmap, WhatIsWrittenIsReadAgain) {
  for (int width = 1; width <= 9; ++width) {
    PixelImage image{width, 3, {}};
    std::mt19937 chance(static_cast<unsigned>(width));
    for (int i = 0; i < width * 3; ++i)
      image.pixels.push_back({static_cast<std::uint8_t>(chance()), static_cast<std::uint8_t>(chance()),
                              static_cast<std::uint8_t>(chance())});
    EXPECT_EQ(read_bitmap(write_bitmap(image)), image) << width;
  }
}

TEST(Bitmap, IsWrittenAsOtherProgramsReadIt) {
  const std::string file = write_bitmap(image_of({"r.", "#b"}));
  EXPECT_EQ(file.substr(0, 2), "BM");
  EXPECT_EQ(file.substr(2, 4), number(static_cast<std::uint32_t>(file.size()), 4));
  EXPECT_EQ(file.substr(10, 8), number(54, 4) + number(40, 4));
  EXPECT_EQ(file.substr(28, 6), number(24, 2) + number(0, 4));
  // The bottom row first, blue before green before red, each row filled up to four bytes.
  EXPECT_EQ(file.substr(54, 8), std::string("\0\0\0\xFF\0\0\0\0", 8));
  EXPECT_EQ(file.substr(62), std::string("\0\0\xFF\xFF\xFF\xFF\0\0", 8));
}

TEST(Bitmap, ReadsOneFourAndEightBitsByTheTable) {
  EXPECT_EQ(read(bitmap({.width = 3, .height = 1, .depth = 1, .table = two_colors}, std::string("\xA0\0\0\0", 4))),
            (Rows{"r#r"}));
  EXPECT_EQ(read(bitmap({.width = 3, .height = 1, .depth = 4, .table = two_colors, .colors = 2},
                        std::string("\x10\x10\0\0", 4))),
            (Rows{"r#r"}));
  EXPECT_EQ(
      read(bitmap({.width = 3, .height = 1, .depth = 8, .table = two_colors, .colors = 2}, std::string("\1\0\1\0", 4))),
      (Rows{"r#r"}));
}

TEST(Bitmap, ReadsSixteenAndThirtyTwoBits) {
  EXPECT_EQ(read(bitmap({.width = 2, .height = 1, .depth = 16}, number(0x7C00, 2) + number(0x001F, 2))), (Rows{"rb"}));
  EXPECT_EQ(read(bitmap({.width = 2, .height = 1, .depth = 32}, number(0xFF0000, 4) + number(0x0000FF, 4))),
            (Rows{"rb"}));
  EXPECT_EQ(read(bitmap({.width = 2,
                         .height = 1,
                         .depth = 16,
                         .coding = 3,
                         .table = number(0xF800, 4) + number(0x07E0, 4) + number(0x001F, 4)},
                        number(0xF800, 2) + number(0x001F, 2))),
            (Rows{"rb"}));
}

TEST(Bitmap, RowsMayBeginAtTheTop) {
  const std::string points = std::string("\0\0\xFF\0", 4) + std::string("\xFF\0\0\0", 4);
  EXPECT_EQ(read(bitmap({.width = 1, .height = -2}, points)), (Rows{"r", "b"}));
  EXPECT_EQ(read(bitmap({.width = 1, .height = 2}, points)), (Rows{"b", "r"}));
}

TEST(Bitmap, ReadsRunsOfPoints) {
  const Form bytes{.width = 4, .height = 2, .depth = 8, .coding = 1, .table = two_colors, .colors = 2};
  // A run of three, the end of the row, then four points one by one, the end of the picture.
  EXPECT_EQ(read(bitmap(bytes, std::string("\3\1\0\0\0\4\1\0\0\1\0\1", 12))), (Rows{"r##r", "rrr#"}));
  const Form halves{.width = 4, .height = 1, .depth = 4, .coding = 2, .table = two_colors, .colors = 2};
  EXPECT_EQ(read(bitmap(halves, std::string("\4\x10\0\1", 4))), (Rows{"r#r#"}));
}

TEST(Bitmap, RefusesWhatIsNone) {
  EXPECT_EQ(read_bitmap(""), std::nullopt);
  EXPECT_EQ(read_bitmap("BM"), std::nullopt);
  EXPECT_EQ(read_bitmap("Ez nem kép, csak egy levél a nagymamának, elég hosszú szöveggel."), std::nullopt);
  EXPECT_EQ(read_bitmap(bitmap({.depth = 7}, std::string(16, '\0'))), std::nullopt);
  EXPECT_EQ(read_bitmap(bitmap({.coding = 9}, std::string(16, '\0'))), std::nullopt);
  EXPECT_EQ(read_bitmap(bitmap({.width = 0}, std::string(16, '\0'))), std::nullopt);
  EXPECT_EQ(read_bitmap(bitmap({.width = -5}, std::string(16, '\0'))), std::nullopt);
}

TEST(Bitmap, RefusesAFileThatIsCutAnywhere) {
  const std::string whole = write_bitmap(image_of({"r.b", "#.#", "rrr"}));
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_EQ(read_bitmap(std::string_view(whole).substr(0, length)), std::nullopt) << length;
}

TEST(Bitmap, ASmallFileThatClaimsToBeHugeIsRefused) {
  EXPECT_EQ(read_bitmap(bitmap({.width = 2147483647, .height = 2147483647}, std::string(16, '\0'))), std::nullopt);
  EXPECT_EQ(read_bitmap(bitmap({.width = 6000, .height = 6000}, std::string(16, '\0'))), std::nullopt);
  EXPECT_EQ(
      read_bitmap(bitmap({.width = 6000, .height = 6000, .depth = 8, .coding = 1, .table = two_colors, .colors = 2},
                         std::string("\0\1", 2))),
      std::nullopt);
}

TEST(Bitmap, AnIndexBehindTheTableIsBlack) {
  EXPECT_EQ(read(bitmap({.width = 1, .height = 1, .depth = 8, .table = two_colors, .colors = 2},
                        std::string("\x7F\0\0\0", 4))),
            (Rows{"#"}));
}

TEST(Bitmap, DamagedBytesNeverDoHarm) {
  const std::string whole = bitmap({.width = 4, .height = 2, .depth = 8, .coding = 1, .table = two_colors, .colors = 2},
                                   std::string("\3\1\0\0\0\4\1\0\0\1\0\1", 12));
  std::mt19937 chance(11);
  for (int round = 0; round < 20000; ++round) {
    std::string damaged = whole;
    for (int i = 0; i < 3; ++i) damaged[chance() % damaged.size()] = static_cast<char>(chance());
    if (const auto image = read_bitmap(damaged)) {
      EXPECT_EQ(image->pixels.size(), static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height));
    }
  }
}

} // namespace
} // namespace cserko
