#include "viewer/help_browser.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace cserko {

namespace {

constexpr qint64 largest_archive = 64LL * 1024 * 1024;

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenExternalLinks(false);
  setAccessibleName("Súgó");
}

QString HelpBrowser::apology(const QString& path, const QString& reason) {
  return QString("<h2>Ezt a súgóoldalt nem tudom megmutatni.</h2><p>%1</p><p><i>%2</i></p>")
      .arg(reason.toHtmlEscaped(), QFileInfo(path).fileName().toHtmlEscaped());
}

QString HelpBrowser::load_page(const QString& path) {
  archive_ = HelpArchive();
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return apology(path, "Az oldal nincs meg, vagy nem olvasható.");
  if (file.size() > largest_archive) return apology(path, "A fájl túl nagy ahhoz, hogy súgóoldal legyen.");
  archive_ = HelpArchive::read(file.readAll());
  const QString page = archive_.page();
  return page.isEmpty() ? apology(path, "A fájl sérült, vagy nem súgóoldal.") : page;
}

void HelpBrowser::open(const QString& path) { setSource(QUrl::fromLocalFile(path), QTextDocument::HtmlResource); }

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType) {
  const QUrl target = source().isEmpty() ? name : source().resolved(name);
  // Only pages of this computer are opened; a link to anywhere else does nothing.
  if (target.isLocalFile()) QTextBrowser::doSetSource(target, QTextDocument::HtmlResource);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::HtmlResource && name.isLocalFile()) return load_page(name.toLocalFile());
  if (type != QTextDocument::ImageResource) return {};
  // A picture is referred to as it stands in the page, or resolved against the page's own address.
  const ArchivePart* part = archive_.find(name.toString());
  if (part == nullptr) part = archive_.find(name.fileName());
  return part == nullptr ? QVariant() : QVariant(QImage::fromData(part->content));
}

} // namespace cserko
