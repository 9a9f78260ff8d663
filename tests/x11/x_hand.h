// The hand of a player on a real X server: it moves the mouse and presses keys, and the windows hear of it as they do
// of a person. What it is told to do happens later, action by action, from the event loop.
#pragma once

#include "tests/players/hand.h"
#include "tests/x11/x_input.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>

namespace cserko {

class XHand : public QObject, public Hand {
 public:
  /// Where on the screen a point of an element lies: the element, the point in its own coordinates (twips).
  using Place = std::function<QPoint(const Element&, Point)>;

  explicit XHand(Place place);

  void click(Element& element) override;
  void drag(Element& element, double dx, double dy) override;
  /// Letters, digits, and the keys that have no character of their own.
  void key(int code, int shift) override;

  /// Whether all that it was told is done and the windows have heard of it.
  bool idle() const;
  /// Presses and releases that reached no window within `patience`.
  int unheard() const { return unheard_; }

  static constexpr int patience = 2000; ///< ms

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Raw actions; `heard` says whether a window will hear of it in a press or release that is counted.
  struct Action {
    std::function<void()> act;
    bool counted = false;
  };

  void then(std::function<void()> act, bool counted = false) { actions_.push_back({std::move(act), counted}); }
  void then_move(QPoint place);
  void then_button(bool down);
  void then_key(std::uint32_t symbol, bool down);
  void turn();

  Place place_;
  XInput input_;
  std::deque<Action> actions_;
  QTimer timer_;
  QElapsedTimer since_last_;
  int sent_ = 0;
  int heard_ = 0;
  int unheard_ = 0;
};

} // namespace cserko
