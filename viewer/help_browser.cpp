#include "viewer/help_browser.h"

#include <QFile>
#include <QFileInfo>
#include <QFontMetrics>
#include <QImage>
#include <QTextFrame>
#include <QWheelEvent>
#include <algorithm>

namespace cserko {

namespace {

constexpr qint64 largest_archive = 64LL * 1024 * 1024; // bytes
constexpr int reading_size = 15;                       // points
constexpr int smallest_zoom = -6;
constexpr int largest_zoom = 20;
constexpr int letters_in_a_line = 76; // a longer line is hard to read on
constexpr int narrowest_column = 680; // pixels; the pictures of the pages fit in
constexpr int smallest_margin = 24;   // pixels

// A page is a file of this computer: the network name of a file would lead to another one.
bool is_here(const QUrl& url) { return url.isLocalFile() && url.host().isEmpty(); }

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenExternalLinks(false);
  setAccessibleName("Súgó");
  setFrameShape(QFrame::NoFrame);
  QFont letters("Liberation Serif");
  letters.setStyleHint(QFont::Serif);
  letters.setPointSize(reading_size);
  setFont(letters);
  connect(this, &QTextBrowser::sourceChanged, this, [this] { center_column(); });
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
  return page.trimmed().isEmpty() ? apology(path, "A fájl sérült, vagy nem súgóoldal.") : page;
}

void HelpBrowser::open(const QString& path) {
  if (path.isEmpty()) {
    setHtml(apology(path, "Nem derült ki, melyik oldalt kellene megmutatni."));
    center_column();
    return;
  }
  setSource(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()), QTextDocument::HtmlResource);
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType) {
  const QUrl target = source().isEmpty() ? name : source().resolved(name);
  // A link to anywhere else does nothing.
  if (is_here(target)) QTextBrowser::doSetSource(target, QTextDocument::HtmlResource);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::HtmlResource) return is_here(name) ? load_page(name.toLocalFile()) : QString();
  if (type == QTextDocument::ImageResource) return picture(name);
  // Without an answer the document would go and look for the file itself.
  const ArchivePart* part = find(name);
  return part == nullptr ? QByteArray("") : part->content;
}

const ArchivePart* HelpBrowser::find(const QUrl& name) const { return archive_.find(name.toString()); }

QVariant HelpBrowser::picture(const QUrl& name) const {
  // The document decodes pictures that stand in the reference itself.
  if (name.scheme() == "data") return {};
  const ArchivePart* part = find(name);
  const QImage image = part == nullptr ? QImage() : QImage::fromData(part->content);
  if (!image.isNull()) return sharp(image);
  // Without a picture the document would go and look for the file itself.
  QImage missing(24, 24, QImage::Format_RGB32);
  missing.fill(QColor(232, 213, 174));
  return missing;
}

// The document stretches a picture pixel by pixel where the screen is scaled.
QImage HelpBrowser::sharp(const QImage& image) const {
  const double scale = devicePixelRatioF();
  if (scale == 1) return image;
  QImage smooth =
      image.scaled((QSizeF(image.size()) * scale).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  smooth.setDevicePixelRatio(scale);
  return smooth;
}

void HelpBrowser::zoom(int steps) {
  const int wanted = std::clamp(zoom_steps_ + steps, smallest_zoom, largest_zoom);
  zoomIn(wanted - zoom_steps_);
  zoom_steps_ = wanted;
  center_column();
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QTextBrowser::wheelEvent(event);
    return;
  }
  if (event->angleDelta().y() != 0) zoom(event->angleDelta().y() > 0 ? 1 : -1);
  event->accept();
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  center_column();
}

void HelpBrowser::center_column() {
  const int column = std::max(narrowest_column, letters_in_a_line * QFontMetrics(font()).averageCharWidth());
  const int margin = std::max(smallest_margin, (viewport()->width() - column) / 2);
  QTextFrameFormat frame = document()->rootFrame()->frameFormat();
  if (frame.leftMargin() == margin && frame.bottomMargin() == smallest_margin) return;
  frame.setTopMargin(smallest_margin);
  frame.setBottomMargin(smallest_margin);
  frame.setLeftMargin(margin);
  frame.setRightMargin(margin);
  document()->rootFrame()->setFrameFormat(frame);
}

} // namespace cserko
