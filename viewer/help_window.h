// The window of the help viewer: the page, and back, zoom, print and close.
#pragma once

#include "viewer/help_browser.h"

#include <QMainWindow>

namespace cserko {

class HelpWindow : public QMainWindow {
 public:
  HelpWindow();
  void open(const QString& path);
  HelpBrowser& browser() { return *browser_; }

 private:
  void add_actions();
  void zoom(int steps);
  void print_page();

  HelpBrowser* browser_;
  int zoom_steps_ = 0;
};

} // namespace cserko
