#include "data/pack/icon_set.h"

#include "data/pack/table.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace cserko {

IconSet::IconSet(const QString& json_path) {
  const QJsonObject whole = QJsonDocument::fromJson(read_file(json_path)).object();
  const int common_width = whole.value("width").toInt(), common_height = whole.value("height").toInt();
  const QJsonObject icons = whole.value("icons").toObject();
  if (common_width <= 0 || common_height <= 0 || icons.isEmpty()) throw PackError(json_path + ": not an icon set");
  for (auto icon = icons.begin(); icon != icons.end(); ++icon) {
    const QJsonObject fields = icon.value().toObject();
    icons_.insert(icon.key(), {fields.value("body").toString(), QSize(fields.value("width").toInt(common_width),
                                                                      fields.value("height").toInt(common_height))});
  }
}

QByteArray IconSet::svg(const QString& name) const {
  const auto found = icons_.find(name);
  if (found == icons_.end()) throw PackError(name + ": no such icon");
  const auto& [stored_body, view] = found.value();
  QString body = stored_body;
  if (const QString why = refusal_of_svg(body, view); !why.isEmpty()) throw PackError(name + ": " + why);
  body.replace(" href=", " xlink:href=");
  return QString("<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                 "viewBox=\"0 0 %1 %2\">%3</svg>")
      .arg(view.width())
      .arg(view.height())
      .arg(body)
      .toUtf8();
}

QString refusal_of_svg(const QString& svg, QSize whole_view) {
  static const QRegularExpression forbidden("<mask|<filter|<image|<pattern|<text");
  if (const auto match = forbidden.match(svg); match.hasMatch())
    return QString("uses \"%1\", which solid fills cannot draw").arg(match.captured());
  static const QRegularExpression clip_path("<clipPath[^>]*>(.*?)</clipPath>");
  const QString whole = QString("d=\"M0 0h%1v%2H0z\"").arg(whole_view.width()).arg(whole_view.height());
  for (auto match = clip_path.globalMatch(svg); match.hasNext();)
    if (!match.next().captured(1).contains(whole)) return "cuts with a clip path";
  return {};
}

} // namespace cserko
