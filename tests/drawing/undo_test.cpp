#include "feedback/drawing/undo_store.h"
#include "tests/drawing/grid.h"

#include <random>

namespace cserko {
namespace {

void paint(UndoStore& store, Sheet& sheet, int column, int row, Color color) {
  store.begin(sheet.grid(), nullptr);
  store.touch(sheet.grid(), column, row);
  sheet.grid().put(column, row, color);
  store.end(sheet.grid(), nullptr);
}

TEST(UndoStore, TakesStepsBackAndDoesThemAgain) {
  Sheet sheet(blank_rows(3, 1));
  UndoStore store;
  paint(store, sheet, 0, 0, red);
  paint(store, sheet, 1, 0, blue);
  EXPECT_EQ(sheet.rows(), (Rows{"rb."}));
  store.undo(sheet.grid(), nullptr);
  EXPECT_EQ(sheet.rows(), (Rows{"r.."}));
  store.undo(sheet.grid(), nullptr);
  EXPECT_EQ(sheet.rows(), (Rows{"..."}));
  EXPECT_FALSE(store.can_undo());
  store.redo(sheet.grid(), nullptr);
  store.redo(sheet.grid(), nullptr);
  EXPECT_EQ(sheet.rows(), (Rows{"rb."}));
  EXPECT_FALSE(store.can_redo());
}

TEST(UndoStore, ANewStepForgetsThoseTakenBack) {
  Sheet sheet(blank_rows(3, 1));
  UndoStore store;
  paint(store, sheet, 0, 0, red);
  store.undo(sheet.grid(), nullptr);
  paint(store, sheet, 2, 0, blue);
  EXPECT_FALSE(store.can_redo());
  EXPECT_EQ(sheet.rows(), (Rows{"..b"}));
}

TEST(UndoStore, AStepThatChangesNothingIsNone) {
  Sheet sheet(blank_rows(3, 1));
  UndoStore store;
  paint(store, sheet, 0, 0, red);
  store.undo(sheet.grid(), nullptr);
  paint(store, sheet, 1, 0, white);
  EXPECT_FALSE(store.can_undo());
  EXPECT_TRUE(store.can_redo()) << "and forgets none";
}

TEST(UndoStore, WithoutAnythingToTakeBackNothingHappens) {
  Sheet sheet({"r.b"});
  UndoStore store;
  store.undo(sheet.grid(), nullptr);
  store.redo(sheet.grid(), nullptr);
  EXPECT_EQ(sheet.rows(), (Rows{"r.b"}));
}

TEST(UndoStore, ThePictureGoesBackWithItsStep) {
  Sheet sheet(blank_rows(2, 1));
  UndoStore store;
  const auto picture = std::make_shared<PixelImage>(image_of({"b"}));
  store.begin(sheet.grid(), nullptr);
  store.touch(sheet.grid(), sheet.grid().whole());
  sheet.grid().put(0, 0, blue);
  store.end(sheet.grid(), picture);
  EXPECT_EQ(store.undo(sheet.grid(), picture), nullptr);
  EXPECT_EQ(store.redo(sheet.grid(), nullptr), picture);
}

TEST(UndoStore, AThousandRandomStepsGoBackAndForthExactly) {
  Sheet sheet(blank_rows(200, 150));
  UndoStore store;
  std::mt19937 chance(3);
  std::vector<PixelImage> states{sheet.grid().copy(sheet.grid().whole())};
  for (int step = 0; step < 150; ++step) {
    store.begin(sheet.grid(), nullptr);
    for (int i = 0; i < 40; ++i) {
      const GridRect place{static_cast<int>(chance() % 200), static_cast<int>(chance() % 150), 200, 150};
      store.touch(sheet.grid(), place.left, place.top);
      sheet.grid().put(place.left, place.top, {static_cast<std::uint8_t>(chance() % 256), 1, 2});
    }
    store.end(sheet.grid(), nullptr);
    states.push_back(sheet.grid().copy(sheet.grid().whole()));
  }
  for (std::size_t i = states.size() - 1; i-- > 0;) {
    ASSERT_TRUE(store.can_undo()) << i;
    store.undo(sheet.grid(), nullptr);
    ASSERT_EQ(sheet.grid().copy(sheet.grid().whole()), states[i]) << i;
  }
  for (std::size_t i = 1; i < states.size(); ++i) {
    store.redo(sheet.grid(), nullptr);
    ASSERT_EQ(sheet.grid().copy(sheet.grid().whole()), states[i]) << i;
  }
}

TEST(UndoStore, TwentyStepsAreKeptWhateverTheyTakeAndNoMoreThanTheBudgetBeyond) {
  Sheet sheet(blank_rows(64, 64));
  UndoStore store(10000);
  std::mt19937 chance(5);
  for (int step = 0; step < 60; ++step) {
    store.begin(sheet.grid(), nullptr);
    store.touch(sheet.grid(), sheet.grid().whole());
    for (int y = 0; y < 64; ++y) {
      for (int x = 0; x < 64; ++x) sheet.grid().put(x, y, {static_cast<std::uint8_t>(chance()), 0, 0});
    }
    store.end(sheet.grid(), nullptr);
  }
  EXPECT_EQ(store.steps(), 20U);
  EXPECT_LE(store.bytes(), 20U * (64 * 64 * 4 + 200));
  UndoStore cheap(10000);
  for (int step = 0; step < 500; ++step) paint(cheap, sheet, step % 64, step / 64, step % 2 == 0 ? red : blue);
  EXPECT_LE(cheap.steps(), UndoStore::most_steps);
}

TEST(UndoStore, PackedImagesComeOutAsTheyWere) {
  for (const Rows& rows : {Rows{"r"}, Rows{"rrrb", "b.#."}, blank_rows(64, 64)}) {
    const PixelImage image = image_of(rows);
    EXPECT_EQ(unpack_image(pack_image(image), image.width, image.height), image);
  }
  EXPECT_LT(pack_image(image_of(blank_rows(64, 64))).size(), 100U);
}

} // namespace
} // namespace cserko
