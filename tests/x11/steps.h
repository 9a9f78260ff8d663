// Somebody at the screen who does one thing after the other by events of the X server alone, each when the one before
// has had its effect.
#pragma once

#include "tests/x11/x_hand.h"

#include <functional>
#include <string>
#include <vector>

namespace cserko {

class Steps : public QObject {
 public:
  /// Begins as soon as events happen; the steps are made by then.
  explicit Steps(WatchedPlatform& platform);

  /// Whether all steps were done and nothing was otherwise than expected.
  bool done() const { return next_ == steps_.size() && trouble_.empty(); }
  /// What went otherwise than it should, and where; where the program ended too early, in front of which step.
  std::string trouble() const;

 protected:
  /// Adds a step. Its deed only tells the hand what to do, and may throw where something is not as it should be.
  void then(const std::string& what, std::function<bool()> ready, std::function<void()> deed);
  /// A step in a window, by its name, when that is at the front and has the keyboard.
  void in(TextView window, const std::string& what, std::function<void()> deed);
  /// Opens a menu of a window and clicks one of its entries.
  void choose(TextView window, TextView menu, TextView entry);

  WatchedPlatform& platform() const { return platform_; }
  XHand& hand() { return hand_; }

  /// Ends the story here. Throws std::runtime_error where something does not hold.
  static void expect(bool holds, const std::string& otherwise);

 private:
  struct Step {
    std::string what;
    std::function<bool()> ready;
    std::function<void()> deed;
  };

  void look();
  void stop();
  bool at_front(TextView name) const;
  std::string place() const;
  Element& front_element(TextView name) const;

  WatchedPlatform& platform_;
  XHand hand_;
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  std::string present_ = "the start";
  QTimer timer_;
  QElapsedTimer waiting_;
  std::string trouble_;
};

} // namespace cserko
