// What shows an element: a widget, and what it last showed of the element.
#pragma once

#include "platform/elements.h"
#include "platform/qt/fonts.h"

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <memory>

namespace cserko {

/// What the views of all windows share.
struct ViewContext {
  const Fonts& fonts;
  /// Runs something the user did, then shows what it changed.
  std::function<void(const std::function<void()>&)> act;
  bool keyboard_used = false; ///< The focus is shown only to those who use the keyboard.
  bool alt_held = false;      ///< Mnemonics are underlined while the key is down.

  QRect to_pixels(const Rect& place) const;
  double to_twips(double pixels) const { return pixels / fonts.scale(); }
};

class View {
 public:
  View(Element& element, ViewContext& context, QWidget* widget);
  virtual ~View();
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  Element& element() const { return element_; }
  QWidget& widget() const { return *widget_; }
  /// The widget that takes the keyboard focus.
  virtual QWidget& focus_widget() const { return *widget_; }
  /// What lies inside the element is shown inside this widget.
  virtual QWidget& inner_widget() const { return *widget_; }

  /// The element's layer as it was when the view was last laid in its place among the others.
  std::uint64_t shown_layer() const { return shown_layer_; }
  /// Lays the widget before all others of its container.
  void raise();

  /// Compares the element with what was last shown and applies the differences. Returns whether there were any.
  bool sync();

 protected:
  /// What a kind shows beside what all elements have in common. Returns whether anything differed.
  virtual bool sync_content() { return false; }
  /// Where the widget stands, for an element at a place.
  virtual QRect widget_place(const Rect& place) const { return context_.to_pixels(place); }
  /// The common look has changed: texts, fonts, colours.
  virtual void look_changed();

  ViewContext& context() const { return context_; }

 private:
  struct Look {
    Rect place;
    Text caption;
    Text tool_tip;
    Text accessible_name;
    Font font;
    Color back;
    Color fore;
    bool visible = false;
    bool enabled = true;
    bool border = false;
    bool opaque = false;
    bool selected = false;
  };
  bool same_look() const;
  void take_look();
  void apply_place();

  Element& element_;
  ViewContext& context_;
  QPointer<QWidget> widget_; ///< Dies with the widget around it, if that goes first.
  Look shown_;
  std::uint64_t shown_layer_;
  bool first_ = true;
};

/// The view of an element inside a widget; null for kinds that show nothing by themselves (timers, menu items).
std::unique_ptr<View> make_view(Element& element, ViewContext& context, QWidget* parent);

/// The views of controls that the user types or steps in (input_views.cpp).
std::unique_ptr<View> make_input_view(Element& element, ViewContext& context, QWidget* parent);

/// Flags and text for painting a caption, wrapped or not.
void paint_caption(QPainter& painter, const QRectF& place, const Element& element, const ViewContext& context,
                   int alignment, bool wrapped);

/// While a button is held every point of the mouse's way arrives, so that what is drawn freehand has no corners; else
/// the window system may leave out those that the program is too slow for.
void take_every_move(bool held);

/// A line around a place, inside it, as thick as the screen is large.
void paint_border(QPainter& painter, const QRect& place, const QColor& color, double scale);

/// What a focus ring lies on: where that may be dark, the ring has a light line inside.
enum class RingGround : std::uint8_t { Paper, AnyColor };

/// The ring around what has the keyboard focus.
void paint_focus_ring(QPainter& painter, const QRectF& place, double scale, RingGround ground = RingGround::Paper);

} // namespace cserko
