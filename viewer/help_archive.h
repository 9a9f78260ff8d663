// Reads a help page: a MIME multipart archive (.mht) with the page and its pictures.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

namespace cserko {

/// One file of an archive.
struct ArchivePart {
  QString type;     ///< Media type in lower case, such as "text/html".
  QString charset;  ///< Of a text, as the header names it; empty if it does not.
  QString location; ///< Under which name other parts refer to it.
  QByteArray content;
};

class HelpArchive {
 public:
  /// Reads an archive. Broken input never throws: what can be read is there, and `page` tells whether that is a page.
  static HelpArchive read(const QByteArray& bytes);

  /// The text of the page, empty if the archive holds none.
  QString page() const;
  /// The part that a reference of the page means (by location, file name or "cid:"), null if there is none.
  const ArchivePart* find(const QString& reference) const;
  int count() const { return static_cast<int>(parts_.size()); }

 private:
  void add(ArchivePart part, const QString& content_id);

  QList<ArchivePart> parts_;
  QHash<QString, qsizetype> index_;      ///< By location and by content id.
  QHash<QString, qsizetype> file_names_; ///< By the last part of the location.
};

} // namespace cserko
