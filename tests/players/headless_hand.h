// The hand on the headless machine.
#pragma once

#include "platform/headless/hand.h"
#include "platform/headless/headless_platform.h"
#include "tests/players/hand.h"

namespace cserko {

class HeadlessHand : public Hand {
 public:
  explicit HeadlessHand(HeadlessPlatform& platform) : platform_(platform) {}

  void click(Element& element, MouseButton button) override {
    if (button == MouseButton::Left) {
      hand::click(element);
    } else {
      hand::click(element, button);
    }
  }
  void drag(Element& element, double dx, double dy) override { hand::drag(element, dx, dy); }
  void draw(Element& element, const std::vector<Point>& path, MouseButton button) override {
    hand::draw(element, path, button);
  }
  void key(int code, int shift) override {
    if (Window* front = platform_.active_window(); front != nullptr) hand::key(*front, code, shift);
  }

 private:
  HeadlessPlatform& platform_;
};

} // namespace cserko
