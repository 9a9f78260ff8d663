// Text and places between the suite and Qt.
#pragma once

#include "platform/elements.h"

#include <QColor>
#include <QString>
#include <QStringView>

namespace cserko {

inline QString to_qt(TextView text) { return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())); }

/// The text in composed form, as all texts of the suite are.
inline Text from_qt(const QString& text) {
  const QString composed = text.normalized(QString::NormalizationForm_C);
  return {reinterpret_cast<const char16_t*>(composed.utf16()), static_cast<std::size_t>(composed.size())};
}

/// A text with line feeds where the suite has carriage returns.
inline QString lines_to_qt(TextView text) {
  QString lines = to_qt(text);
  lines.replace("\r\n", "\n");
  lines.replace('\r', '\n');
  return lines;
}

inline QColor to_qt(Color color) { return {color.red, color.green, color.blue}; }

} // namespace cserko
