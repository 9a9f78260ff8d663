// Packs a help page with its pictures into one file: a MIME multipart archive.
#pragma once

#include "data/help/page_html.h"

#include <QByteArray>

namespace cserko {

/// The whole archive of a page. The same page gives the same bytes on every machine. Throws HelpError if a picture
/// cannot be read or is larger than `largest_picture`.
QByteArray page_archive(const PageSource& page, const HtmlPage& html);

inline constexpr int largest_picture = 60 * 1024; ///< bytes
inline constexpr int widest_picture = 642;        ///< pixels, its frame included

} // namespace cserko
