// The steps of a drawing that can be taken back. A step keeps what stood before it, in tiles and packed, and only where
// it has painted.
#pragma once

#include "platform/pixel_grid.h"

#include <deque>

namespace cserko {

using SharedImage = std::shared_ptr<const PixelImage>;

class UndoStore {
 public:
  static constexpr std::size_t steps_kept_always = 20;
  static constexpr std::size_t most_steps = 200;

  /// Beyond the steps that are always kept, all together take no more than so many bytes.
  explicit UndoStore(std::size_t budget = std::size_t{64} * 1024 * 1024) : budget_(budget) {}

  /// Opens a step over a drawing with its loaded picture. Steps that were taken back are lost when something is
  /// painted.
  void begin(const PixelGrid& grid, SharedImage picture);
  bool open() const { return open_; }
  /// Keeps what stands at a place that is about to be painted. Without an open step it does nothing.
  void touch(const PixelGrid& grid, const GridRect& place);
  void touch(const PixelGrid& grid, int column, int row) {
    if (open_ && !touched_[tile_of(column, row)]) keep_tile(grid, tile_of(column, row));
  }
  /// Closes the step. One in which nothing has changed is forgotten.
  void end(const PixelGrid& grid, const SharedImage& picture);

  bool can_undo() const { return !done_.empty(); }
  bool can_redo() const { return !undone_.empty(); }
  /// Takes the last step back, or does the last one taken back again; gives the picture that belongs to it.
  SharedImage undo(PixelGrid& grid, SharedImage picture) { return swap(grid, std::move(picture), done_, undone_); }
  SharedImage redo(PixelGrid& grid, SharedImage picture) { return swap(grid, std::move(picture), undone_, done_); }
  void clear();

  std::size_t steps() const { return done_.size() + undone_.size(); }
  /// What all steps take, bytes.
  std::size_t bytes() const { return bytes_; }

 private:
  static constexpr int tile_side = 64;
  struct Tile {
    std::size_t index = 0;
    std::string packed;
  };
  struct Step {
    std::vector<Tile> tiles;
    SharedImage picture;
    std::size_t bytes = 0;
  };

  std::size_t tile_of(int column, int row) const {
    return static_cast<std::size_t>(row / tile_side) * static_cast<std::size_t>(tiles_across_) +
           static_cast<std::size_t>(column / tile_side);
  }
  GridRect place_of(std::size_t tile) const;
  void keep_tile(const PixelGrid& grid, std::size_t tile);
  void drop_tiles_that_stayed(const PixelGrid& grid);
  void keep_within_bounds();
  void forget(std::deque<Step>& steps);
  SharedImage swap(PixelGrid& grid, SharedImage picture, std::deque<Step>& from, std::deque<Step>& to);

  std::size_t budget_;
  std::size_t bytes_ = 0;
  bool open_ = false;
  int tiles_across_ = 0;
  std::vector<bool> touched_; // of the open step, by tile
  Step step_;
  std::deque<Step> done_;
  std::deque<Step> undone_;
};

/// Colours as bytes, runs of one colour as one; and back. An image of that size must come out.
std::string pack_image(const PixelImage& image);
PixelImage unpack_image(std::string_view packed, int width, int height);

} // namespace cserko
