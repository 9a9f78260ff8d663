#include "data/help/page_source.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace cserko {

PageSource read_page(const QString& path) {
  const QFileInfo info(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw HelpError(info.fileName(), "cannot be read");
  const QString text = QString::fromUtf8(file.readAll()).remove('\r');
  const qsizetype end = text.indexOf('\n');
  static const QRegularExpression page("^<!-- page: ([^/\\\\]+\\.mht) -->$");
  const QRegularExpressionMatch match = page.match(text.left(end));
  if (end < 0 || !match.hasMatch()) throw HelpError(info.fileName(), "its first line names no page");
  return {info.fileName(), info.absolutePath(), match.captured(1).normalized(QString::NormalizationForm_C),
          text.mid(end + 1)};
}

QHash<QString, QString> page_names(const QList<PageSource>& pages) {
  QHash<QString, QString> names;
  QSet<QString> taken;
  for (const PageSource& page : pages) {
    // Names that differ by case alone would be one file on some systems.
    if (taken.contains(page.name.toCaseFolded())) throw HelpError(page.file, "another source names the same page");
    taken.insert(page.name.toCaseFolded());
    names.insert(page.file, page.name);
  }
  return names;
}

} // namespace cserko
