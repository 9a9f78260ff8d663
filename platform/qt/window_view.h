// A window of the suite on the screen: menu bar, client area, and the views of its elements.
#pragma once

#include "platform/qt/view.h"
#include "platform/window.h"

#include <QAction>
#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <unordered_map>

namespace cserko {

class ClientArea;

class WindowView : public QWidget {
 public:
  WindowView(Window& window, ViewContext& context);
  ~WindowView() override;

  Window& model() const { return window_; }

  /// Compares the window and all its elements with what was last shown and applies the differences. Returns whether
  /// there were any.
  bool sync();
  /// Moves the keyboard focus to where the model has it.
  void apply_focus();
  /// The widget that shows an element, null if none does.
  QWidget* widget_of(const Element& element) const;
  /// The element that a widget, or what it lies in, shows; null for none.
  Element* element_of(const QWidget* widget) const;
  /// Whether the window system has done what the suite wanted last: from then on a move or another size is the user's.
  bool settled() const { return isVisible() && !settling_.isActive(); }

  /// Height of a menu bar, and what title bar and frame of the system are taken to add, device-independent pixels.
  static int menu_height(const Fonts& fonts);
  static QSize system_frame();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Entry {
    QAction* action = nullptr;
    QMenu* menu = nullptr; ///< Set for an entry that holds others.
    Text caption;
  };

  void lay_out();
  void settle();
  void take_users_place();
  QPoint corner_on_screen() const;
  bool sync_window();
  bool sync_views();
  bool sync_stacking();
  bool sync_menu();
  void add_views();
  void drop_dead_views();
  void add_menu_entry(MenuItem& item);
  QWidget* parent_widget(const Element& element) const;

  Window& window_;
  ViewContext& context_;
  QMenuBar* menu_bar_ = nullptr;
  ClientArea* client_;
  std::unordered_map<std::uint64_t, std::unique_ptr<View>> views_;
  std::unordered_map<std::uint64_t, Entry> menu_;
  std::vector<std::uint64_t> shown_elements_; ///< Serial numbers, in order of creation.
  QRect shown_place_;
  QTimer settling_;
  QPoint frame_offset_; ///< What the window system adds to the place that it is asked for.
  bool offset_known_ = false;
  Text shown_caption_;
  MousePointer shown_pointer_ = MousePointer::Arrow;
};

} // namespace cserko
