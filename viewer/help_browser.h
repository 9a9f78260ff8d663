// Shows help pages, with their pictures and with links between them. Nothing is ever fetched from elsewhere.
#pragma once

#include "viewer/help_archive.h"

#include <QTextBrowser>

namespace cserko {

class HelpBrowser : public QTextBrowser {
 public:
  explicit HelpBrowser(QWidget* parent = nullptr);

  /// Opens the page of a path. A missing or broken page shows a sentence that says so.
  void open(const QString& path);
  /// The sentence for a page that cannot be shown.
  static QString apology(const QString& path, const QString& reason);

  /// Makes the letters larger by so many points, or smaller; stays between readable bounds.
  void zoom(int steps);
  /// Points above the usual size.
  int zoom_steps() const { return zoom_steps_; }

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QString load_page(const QString& path);
  const ArchivePart* find(const QUrl& name) const;
  QVariant picture(const QUrl& name) const;
  QImage sharp(const QImage& image) const;
  void center_column();

  HelpArchive archive_;
  int zoom_steps_ = 0;
};

} // namespace cserko
