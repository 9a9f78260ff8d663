#include "feedback/drawing/undo_store.h"

#include <algorithm>
#include <utility>

namespace cserko {

namespace {

constexpr std::size_t longest_run = 255;
constexpr std::size_t bytes_of_run = 4; // length, red, green, blue

std::size_t picture_bytes(const SharedImage& picture) { return picture ? picture->pixels.size() * sizeof(Color) : 0; }

} // namespace

std::string pack_image(const PixelImage& image) {
  std::string packed;
  for (std::size_t at = 0; at < image.pixels.size();) {
    const Color color = image.pixels[at];
    std::size_t run = 1;
    while (run < longest_run && at + run < image.pixels.size() && image.pixels[at + run] == color) ++run;
    for (const std::size_t byte : {run, std::size_t{color.red}, std::size_t{color.green}, std::size_t{color.blue}})
      packed.push_back(static_cast<char>(byte));
    at += run;
  }
  return packed;
}

PixelImage unpack_image(std::string_view packed, int width, int height) {
  PixelImage image{width, height, {}};
  image.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  const auto byte = [&](std::size_t at) { return static_cast<std::uint8_t>(packed[at]); };
  for (std::size_t at = 0; at + bytes_of_run <= packed.size(); at += bytes_of_run)
    image.pixels.insert(image.pixels.end(), byte(at), Color{byte(at + 1), byte(at + 2), byte(at + 3)});
  return image;
}

void UndoStore::begin(const PixelGrid& grid, SharedImage picture) {
  if (open_) return;
  open_ = true;
  tiles_across_ = (grid.columns() + tile_side - 1) / tile_side;
  const int tiles_down = (grid.rows() + tile_side - 1) / tile_side;
  touched_.assign(static_cast<std::size_t>(tiles_across_) * static_cast<std::size_t>(tiles_down), false);
  step_ = {{}, std::move(picture), 0};
}

GridRect UndoStore::place_of(std::size_t tile) const {
  const auto across = static_cast<std::size_t>(tiles_across_);
  const int left = static_cast<int>(tile % across) * tile_side;
  const int top = static_cast<int>(tile / across) * tile_side;
  return {left, top, left + tile_side, top + tile_side};
}

void UndoStore::keep_tile(const PixelGrid& grid, std::size_t tile) {
  touched_[tile] = true;
  step_.tiles.push_back({tile, pack_image(grid.copy(grid.inside(place_of(tile))))});
}

void UndoStore::touch(const PixelGrid& grid, const GridRect& place) {
  const GridRect part = grid.inside(place);
  if (!open_ || part.empty()) return;
  for (int row = part.top / tile_side; row <= (part.bottom - 1) / tile_side; ++row) {
    for (int column = part.left / tile_side; column <= (part.right - 1) / tile_side; ++column)
      touch(grid, column * tile_side, row * tile_side);
  }
}

void UndoStore::drop_tiles_that_stayed(const PixelGrid& grid) {
  std::erase_if(step_.tiles, [&](const Tile& tile) {
    return tile.packed == pack_image(grid.copy(grid.inside(place_of(tile.index))));
  });
}

void UndoStore::end(const PixelGrid& grid, const SharedImage& picture) {
  if (!open_) return;
  open_ = false;
  drop_tiles_that_stayed(grid);
  Step step = std::exchange(step_, {});
  if (step.tiles.empty() && step.picture == picture) return;
  forget(undone_);
  // A picture that goes on being the same belongs to no step.
  step.bytes = step.picture == picture ? 0 : picture_bytes(step.picture);
  for (const Tile& tile : step.tiles) step.bytes += tile.packed.size() + sizeof(Tile);
  bytes_ += step.bytes;
  done_.push_back(std::move(step));
  keep_within_bounds();
}

void UndoStore::keep_within_bounds() {
  while (done_.size() > most_steps || (done_.size() > steps_kept_always && bytes_ > budget_)) {
    bytes_ -= done_.front().bytes;
    done_.pop_front();
  }
}

void UndoStore::forget(std::deque<Step>& steps) {
  for (const Step& step : steps) bytes_ -= step.bytes;
  steps.clear();
}

void UndoStore::clear() {
  forget(done_);
  forget(undone_);
  open_ = false;
}

SharedImage UndoStore::swap(PixelGrid& grid, SharedImage picture, std::deque<Step>& from, std::deque<Step>& to) {
  if (open_ || from.empty()) return picture;
  Step step = std::move(from.back());
  from.pop_back();
  bytes_ -= step.bytes;
  std::swap(step.picture, picture);
  step.bytes = step.picture == picture ? 0 : picture_bytes(step.picture);
  for (Tile& tile : step.tiles) {
    const GridRect place = grid.inside(place_of(tile.index));
    std::string present = pack_image(grid.copy(place));
    grid.paste(place.left, place.top, unpack_image(tile.packed, place.right - place.left, place.bottom - place.top));
    tile.packed = std::move(present);
    step.bytes += tile.packed.size() + sizeof(Tile);
  }
  bytes_ += step.bytes;
  to.push_back(std::move(step));
  return picture;
}

} // namespace cserko
