// The hand of a player on a real X server: it moves the mouse and presses keys, and the windows hear of it as they do
// of a person. What it is told to do happens later, action by action, from the event loop.
#pragma once

#include "tests/players/hand.h"
#include "tests/x11/watched_platform.h"
#include "tests/x11/x_input.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>
#include <optional>

namespace cserko {

class XHand : public QObject, public Hand {
 public:
  /// What shows a point of an element: the element, the point in its own coordinates (twips).
  using Place = std::function<Spot(const Element&, Point)>;

  explicit XHand(Place place);

  void click(Element& element, MouseButton button = MouseButton::Left) override;
  void drag(Element& element, double dx, double dy) override;
  void draw(Element& element, const std::vector<Point>& path, MouseButton button = MouseButton::Left) override;
  /// Letters, digits, and the keys that have no character of their own.
  void key(int code, int shift) override;

  /// Whether all that it was told is done and the windows have heard of it.
  bool idle() const { return actions_.empty() && !awaited_; }
  /// Presses that reached no window within `patience`, or whose place never came under the pointer.
  int lost() const { return lost_; }

  static constexpr int patience = 2000; ///< ms

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// One raw action: when it can be done, what is done, and the event by which a window hears of it.
  struct Action {
    std::function<bool()> ready{};
    std::function<void()> act{};
    std::optional<QEvent::Type> heard_as{};
  };

  void then(Action action);
  void then_press(const Spot& spot, MouseButton button);
  void then_release(MouseButton button);
  void then_key(std::uint32_t symbol, bool down);
  bool aim(const Spot& spot);
  bool still_awaiting();
  void turn();

  Place place_;
  XInput input_;
  std::deque<Action> actions_;
  QTimer timer_;
  QElapsedTimer since_last_;
  std::optional<QEvent::Type> awaited_; ///< What the last action has still to be heard as.
  QPointer<QObject> pressed_;           ///< The window that heard of the last press.
  int lost_ = 0;
};

} // namespace cserko
