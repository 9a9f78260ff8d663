// The window of the help viewer: the page, and back, zoom, print and close.
#pragma once

#include "viewer/help_browser.h"

#include <QMainWindow>

namespace cserko {

class HelpWindow : public QMainWindow {
 public:
  HelpWindow();
  /// Opens the page of a path; see HelpBrowser::open.
  void open(const QString& path);
  HelpBrowser& browser() { return *browser_; }

 private:
  void add_actions();
  void print_page();

  HelpBrowser* browser_;
};

} // namespace cserko
