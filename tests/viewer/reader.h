// What a reader finds on the page that the viewer shows, and does with it.
#pragma once

#include "viewer/help_window.h"

#include <QImage>
#include <QStringList>

namespace cserko::test {

/// Where the links of the shown page lead, each once.
QStringList links(HelpBrowser& browser);

struct ShownPicture {
  QString name;
  QSize place; ///< As the page reserves it.
  QImage image;
};

/// The pictures of the shown page.
QList<ShownPicture> pictures(HelpBrowser& browser);

/// Scrolls to a link and clicks on it. Returns whether the page has it.
bool click_link(HelpBrowser& browser, const QString& target);

} // namespace cserko::test
