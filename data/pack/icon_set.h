// The icon set that the pictures are drawn from, as its package delivers it: one JSON file with an SVG body a name.
#pragma once

#include <QHash>
#include <QSize>
#include <QString>

namespace cserko {

class IconSet {
 public:
  /// Reads the package's icons.json. Throws PackError when it is missing or has another form.
  explicit IconSet(const QString& json_path);

  bool contains(const QString& name) const { return icons_.contains(name); }

  /// The icon as a whole SVG document. Throws PackError for an unknown name or an icon that solid fills cannot draw.
  QByteArray svg(const QString& name) const;

 private:
  struct Icon {
    QString body;
    QSize view;
  };
  QHash<QString, Icon> icons_;
};

/// Why solid fills cannot stand for an SVG text (a mask, a filter, an embedded image, a clip path that cuts); empty
/// when they can.
QString refusal_of_svg(const QString& svg, QSize whole_view);

} // namespace cserko
