// The Markdown sources of the help pages.
#pragma once

#include <QHash>
#include <QString>
#include <stdexcept>

namespace cserko {

/// What is wrong with a source; the text names the file.
class HelpError : public std::runtime_error {
 public:
  HelpError(const QString& file, const QString& fault) : std::runtime_error((file + ": " + fault).toStdString()) {}
};

/// One source: a Markdown file whose first line, `<!-- page: NAME.mht -->`, names the page.
struct PageSource {
  QString file;   ///< Name of the source, by which other sources link to it.
  QString folder; ///< Where it lies, for its pictures.
  QString name;   ///< Name of the page.
  QString markdown;
};

/// Reads a source. Throws HelpError if it cannot be read or names no page.
PageSource read_page(const QString& path);

/// Page names by the names of their sources. Throws HelpError where two sources name the same page.
QHash<QString, QString> page_names(const QList<PageSource>& pages);

} // namespace cserko
