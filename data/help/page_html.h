// Turns the Markdown of a help page into the HTML that the help viewer shows.
#pragma once

#include "data/help/page_source.h"

#include <QStringList>

namespace cserko {

struct HtmlPage {
  QString title; ///< The heading of the page.
  QString html;
  QStringList pictures; ///< As the page refers to them, relative to the folder of the source; each once.
  QStringList missing;  ///< Those of them that are not there: the page says in their places what they would show.
};

/// How the text begins that stands in the place of a picture that is missing.
inline const QString missing_picture = QStringLiteral("[Hiányzó kép: ");

/// Translates a page. Links to other sources become links to their pages. What stands before the first second-level
/// heading speaks to the child and gets larger letters. Throws HelpError for a missing heading, for a link
/// that leads nowhere or out of the help, and for Markdown that the pages have no use for.
HtmlPage page_html(const PageSource& page, const QHash<QString, QString>& names);

} // namespace cserko
