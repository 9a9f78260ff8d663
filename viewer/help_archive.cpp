#include "viewer/help_archive.h"

#include "core/codepage.h"

#include <QStringDecoder>
#include <QUrl>
#include <algorithm>

namespace cserko {

namespace {

constexpr int deepest_nesting = 4;
constexpr qsizetype most_parts = 1000; // of an archive; what is behind them is left out
constexpr qsizetype most_headers = 200;
constexpr qsizetype declaration_reach = 1024; // bytes of a page in which it may name its own charset
constexpr QByteArrayView byte_order_mark = "\xEF\xBB\xBF";

using Headers = QHash<QByteArray, QByteArray>;

struct Entity {
  Headers headers;
  QByteArray body;
};

qsizetype line_end(const QByteArray& bytes, qsizetype from) {
  const qsizetype end = bytes.indexOf('\n', from);
  return end < 0 ? bytes.size() : end;
}

// Splits a message into its headers, folded lines joined, and its body.
Entity split(const QByteArray& bytes) {
  Entity entity;
  QByteArray name;
  qsizetype at = bytes.startsWith(byte_order_mark) ? qsizetype(byte_order_mark.size()) : 0;
  while (at < bytes.size()) {
    const qsizetype end = line_end(bytes, at);
    QByteArray line = bytes.mid(at, end - at);
    if (line.endsWith('\r')) line.chop(1);
    at = end + 1;
    if (line.isEmpty()) break;
    const bool folded = line.startsWith(' ') || line.startsWith('\t');
    const qsizetype colon = line.indexOf(':');
    if (folded && !name.isEmpty()) {
      entity.headers[name] += ' ' + line.trimmed();
    } else if (colon > 0) {
      if (entity.headers.size() >= most_headers) {
        name.clear();
        continue;
      }
      name = line.left(colon).trimmed().toLower();
      entity.headers[name] = line.mid(colon + 1).trimmed();
    }
  }
  entity.body = bytes.mid(at);
  return entity;
}

// The value of a parameter such as boundary="…" of a header.
QByteArray parameter(const QByteArray& header, const QByteArray& name) {
  const QByteArray lower = header.toLower();
  qsizetype at = 0;
  while ((at = lower.indexOf(name + '=', at)) >= 0) {
    const bool starts_word = at == 0 || lower[at - 1] == ';' || lower[at - 1] == ' ' || lower[at - 1] == '\t';
    at += name.size() + 1;
    if (!starts_word) continue;
    if (at < header.size() && header[at] == '"') {
      const qsizetype close = header.indexOf('"', at + 1);
      return header.mid(at + 1, close < 0 ? -1 : close - at - 1);
    }
    const qsizetype end = header.indexOf(';', at);
    return header.mid(at, end < 0 ? -1 : end - at).trimmed();
  }
  return {};
}

int hex_digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

QByteArray from_quoted_printable(const QByteArray& text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] != '=') {
      bytes += text[at];
      continue;
    }
    // A mark at the end of a line joins it with the next.
    qsizetype end = at + 1;
    while (end < text.size() && (text[end] == ' ' || text[end] == '\t' || text[end] == '\r')) ++end;
    if (end >= text.size() || text[end] == '\n') {
      at = end;
      continue;
    }
    const int high = hex_digit(text[at + 1]);
    const int low = at + 2 < text.size() ? hex_digit(text[at + 2]) : -1;
    if (high < 0 || low < 0) {
      bytes += '=';
    } else {
      bytes += static_cast<char>(high * 16 + low);
      at += 2;
    }
  }
  return bytes;
}

QByteArray decoded(const Entity& entity) {
  const QByteArray encoding = entity.headers.value("content-transfer-encoding").toLower();
  if (encoding == "base64") return QByteArray::fromBase64(entity.body);
  if (encoding == "quoted-printable") return from_quoted_printable(entity.body);
  return entity.body;
}

enum class Line : std::uint8_t { Text, Boundary, LastBoundary };

// A boundary may begin like another one, so the rest of its line must be blank.
Line kind_of(QByteArrayView line, const QByteArray& mark) {
  if (!line.startsWith(mark)) return Line::Text;
  QByteArrayView rest = line.sliced(mark.size());
  const bool last = rest.startsWith("--");
  if (last) rest = rest.sliced(2);
  if (!rest.trimmed().isEmpty()) return Line::Text;
  return last ? Line::LastBoundary : Line::Boundary;
}

// The line end before a boundary belongs to the boundary.
QByteArray without_last_line_end(QByteArray part) {
  if (part.endsWith('\n')) part.chop(1);
  if (part.endsWith('\r')) part.chop(1);
  return part;
}

// The bodies between the boundary lines. A missing last boundary ends the last part with the file.
QList<QByteArray> parts_of(const QByteArray& body, const QByteArray& boundary) {
  QList<QByteArray> parts;
  const QByteArray mark = "--" + boundary;
  qsizetype part_start = -1;
  for (qsizetype at = 0; at < body.size() && parts.size() < most_parts;) {
    const qsizetype end = line_end(body, at);
    const Line line = kind_of(QByteArrayView(body).sliced(at, end - at), mark);
    if (line != Line::Text && part_start >= 0) parts += without_last_line_end(body.mid(part_start, at - part_start));
    if (line == Line::LastBoundary) return parts;
    if (line == Line::Boundary) part_start = end + 1;
    at = end + 1;
  }
  if (part_start >= 0 && parts.size() < most_parts) parts += body.mid(part_start);
  return parts;
}

QString file_name(const QString& location) {
  return location.mid(std::max(location.lastIndexOf('/'), location.lastIndexOf('\\')) + 1);
}

// The charset that a page names itself, as in <meta charset="utf-8">; empty if it names none.
QByteArray declared_charset(const QByteArray& page) {
  const QByteArray head = page.left(declaration_reach).toLower();
  const qsizetype at = head.indexOf("charset=");
  if (at < 0) return {};
  QByteArray name;
  for (const char c : head.mid(at + 8)) {
    if (c == '"' || c == '\'') continue;
    if (c == ' ' || c == '/' || c == '>' || c == ';') break;
    name += c;
  }
  return name;
}

QString text_of(const ArchivePart& part) {
  const QByteArray charset =
      part.charset.isEmpty() ? declared_charset(part.content) : part.charset.toLatin1().toLower();
  // The code page of Central Europe is not among the charsets that Qt has everywhere.
  if (charset == "windows-1250" || charset == "cp1250" || charset == "x-cp1250")
    return QString::fromStdU16String(from_cp1250({part.content.constData(), std::size_t(part.content.size())}));
  QStringDecoder decoder(charset.isEmpty() ? "utf-8" : charset.constData());
  if (!decoder.isValid()) decoder = QStringDecoder(QStringDecoder::Utf8);
  return decoder.decode(part.content);
}

// Every leaf of the tree of parts, with its content id.
void collect(const Entity& entity, int depth, QList<std::pair<ArchivePart, QString>>& leaves) {
  const QByteArray type = entity.headers.value("content-type", "text/html");
  const QByteArray boundary = parameter(type, "boundary");
  if (type.toLower().startsWith("multipart/") && !boundary.isEmpty()) {
    if (depth >= deepest_nesting) return;
    for (const QByteArray& part : parts_of(entity.body, boundary)) {
      if (leaves.size() < most_parts) collect(split(part), depth + 1, leaves);
    }
    return;
  }
  const qsizetype semicolon = type.indexOf(';');
  ArchivePart part{QString::fromLatin1(type.left(semicolon < 0 ? type.size() : semicolon).trimmed().toLower()),
                   QString::fromLatin1(parameter(type, "charset")),
                   QString::fromUtf8(entity.headers.value("content-location")), decoded(entity)};
  QString id = QString::fromUtf8(entity.headers.value("content-id"));
  if (id.startsWith('<') && id.endsWith('>')) id = id.mid(1, id.size() - 2);
  leaves.emplaceBack(std::move(part), id);
}

} // namespace

HelpArchive HelpArchive::read(const QByteArray& bytes) {
  QList<std::pair<ArchivePart, QString>> leaves;
  const Entity message = split(bytes);
  // A file without any header of an archive is none.
  if (message.headers.contains("content-type")) collect(message, 0, leaves);
  HelpArchive archive;
  for (auto& [part, id] : leaves) archive.add(std::move(part), id);
  return archive;
}

void HelpArchive::add(ArchivePart part, const QString& content_id) {
  const qsizetype at = parts_.size();
  if (!content_id.isEmpty()) index_.insert("cid:" + content_id, at);
  // Locations are percent-encoded, references arrive decoded. The first of two parts of one name is the one meant.
  for (const QString& location : {part.location, QUrl::fromPercentEncoding(part.location.toUtf8())}) {
    if (location.isEmpty()) continue;
    if (!index_.contains(location)) index_.insert(location, at);
    if (!file_names_.contains(file_name(location))) file_names_.insert(file_name(location), at);
  }
  parts_ += std::move(part);
}

QString HelpArchive::page() const {
  for (const ArchivePart& part : parts_) {
    if (part.type == "text/html") return text_of(part);
  }
  for (const ArchivePart& part : parts_) {
    if (part.type.startsWith("text/")) return text_of(part).toHtmlEscaped();
  }
  return {};
}

const ArchivePart* HelpArchive::find(const QString& reference) const {
  if (const auto found = index_.constFind(reference); found != index_.constEnd()) return &parts_[*found];
  const auto found = file_names_.constFind(file_name(reference));
  return found == file_names_.constEnd() ? nullptr : &parts_[*found];
}

} // namespace cserko
