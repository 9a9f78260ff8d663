#include "data/pack/record.h"

#include "core/codepage.h"
#include "data/pack/table.h"

#include <QStringList>

namespace cserko {

QByteArray to_code_page(const QString& text) {
  for (QChar character : text)
    if (cp1250_code(character.unicode()) < 0)
      throw PackError(QString("the character \"%1\" in \"%2\" is not in code page 1250").arg(character).arg(text));
  return QByteArray::fromStdString(to_cp1250(text.toStdU16String()));
}

QString from_code_page(const QByteArray& bytes) {
  return QString::fromStdU16String(from_cp1250(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size()))));
}

QByteArray record_bytes(const WordRecord& record) {
  QByteArray bytes;
  for (const QString& line : {QStringLiteral("magyar"), record.name, QStringLiteral("angol"), record.english,
                              record.syllables, record.definition, record.truth, record.falsehood})
    bytes += to_code_page(line) + "\r\n";
  return bytes;
}

std::optional<WordRecord> read_record(const QByteArray& bytes) {
  QStringList lines = from_code_page(bytes).split('\n');
  for (QString& line : lines)
    if (line.endsWith('\r')) line.chop(1);
  if (lines.size() > 8 && lines.last().isEmpty()) lines.removeLast();
  if (lines.size() < 8) return {};
  return WordRecord{lines[1], lines[3], lines[4], lines[5], lines[6], lines[7]};
}

} // namespace cserko
