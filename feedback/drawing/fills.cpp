#include "feedback/drawing/fills.h"

#include <bit>

namespace cserko {

namespace {

constexpr int points_between_redraws = 1000;
constexpr unsigned all_tried = 0xFF;

/// A point on the way. An area may have millions of them, and all can be on the way at once: the record is small.
struct Stop {
  std::uint16_t column = 0;
  std::uint16_t row = 0;
  std::uint8_t tried = 0; ///< The next direction of the table, or a flag for each direction that was tried.
};

class Walk {
 public:
  explicit Walk(const FillOrder& order) : order_(order), old_color_(order.grid.at(order.column, order.row)) {
    step_on(order.column, order.row);
  }

  Stop& top() { return stops_.back(); }
  bool on_the_way() const { return stops_.size() > 1; }
  void pop() { stops_.pop_back(); }

  /// Goes on to the neighbour of the top in a direction if that has the old colour.
  bool enter(FillStep step) {
    const int column = top().column + step.x;
    const int row = top().row + step.y;
    if (!order_.grid.contains(column, row) || order_.grid.at(column, row) != old_color_) return false;
    step_on(column, row);
    return true;
  }

 private:
  void step_on(int column, int row) {
    stops_.push_back({static_cast<std::uint16_t>(column), static_cast<std::uint16_t>(row), 0});
    if (order_.before) order_.before(column, row);
    order_.grid.put(column, row, order_.color);
    if (++painted_ < points_between_redraws) return;
    painted_ = 0;
    if (order_.redraw) order_.redraw();
  }

  const FillOrder& order_;
  Color old_color_;
  std::vector<Stop> stops_;
  int painted_ = 0;
};

// One of the directions that have not been tried, drawn at random.
unsigned draw_direction(unsigned tried, const std::function<double()>& random) {
  const int left = 8 - std::popcount(tried);
  int skip = static_cast<int>(random() * left);
  unsigned direction = 0;
  while ((tried >> direction & 1U) != 0 || skip-- > 0) ++direction;
  return direction;
}

} // namespace

void kitöltés(const FillOrder& order) {
  Walk walk(order);
  for (;;) {
    if (walk.enter(four_neighbours.at(walk.top().tried))) continue;
    if (++walk.top().tried < four_neighbours.size()) continue;
    // Back to where a direction is left. The clicked point itself is not looked at again.
    while (walk.on_the_way() && walk.top().tried >= four_neighbours.size()) walk.pop();
    if (!walk.on_the_way()) return;
  }
}

void foltfestés(const FillOrder& order) {
  Walk walk(order);
  for (;;) {
    const unsigned tried = walk.top().tried;
    const unsigned direction = draw_direction(tried, order.random);
    walk.top().tried = static_cast<std::uint8_t>(tried | 1U << direction);
    if (walk.enter(eight_neighbours.at(direction))) continue;
    if (walk.top().tried != all_tried) continue;
    while (walk.on_the_way() && walk.top().tried == all_tried) walk.pop();
    if (!walk.on_the_way()) return;
  }
}

} // namespace cserko
