#include "data/help/page_archive.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QUrl>

namespace cserko {

namespace {

// The equals sign is written as =3D in a quoted text and only ends a base64 one, so this never stands in a part.
constexpr const char* boundary = "----=_cserko_help";
constexpr qsizetype longest_line = 76;

QByteArray quoted_printable(const QByteArray& bytes) {
  QByteArray text;
  qsizetype line = 0;
  for (qsizetype at = 0; at < bytes.size(); ++at) {
    const char c = bytes[at];
    if (c == '\n') {
      text += "\r\n";
      line = 0;
      continue;
    }
    const bool before_line_end = at + 1 == bytes.size() || bytes[at + 1] == '\n';
    const bool plain = (c > ' ' && c <= '~' && c != '=') || (c == ' ' && !before_line_end);
    const QByteArray written = plain ? QByteArray(1, c) : '=' + QByteArray(1, c).toHex().toUpper();
    if (line + written.size() > longest_line - 1) {
      text += "=\r\n";
      line = 0;
    }
    text += written;
    line += written.size();
  }
  return text;
}

QByteArray base64_lines(const QByteArray& bytes) {
  const QByteArray encoded = bytes.toBase64();
  QByteArray text;
  for (qsizetype at = 0; at < encoded.size(); at += longest_line) text += encoded.mid(at, longest_line) + "\r\n";
  return text;
}

QByteArray part(const QByteArray& type, const QByteArray& encoding, const QString& location, const QByteArray& text) {
  return QByteArray("--") + boundary + "\r\nContent-Type: " + type + "\r\nContent-Transfer-Encoding: " + encoding +
         "\r\nContent-Location: " + QUrl::toPercentEncoding(location, "/") + "\r\n\r\n" + text + "\r\n";
}

QByteArray picture_part(const PageSource& page, const QString& name) {
  QFile file(QDir(page.folder).filePath(name));
  if (!name.endsWith(".png") || !file.open(QIODevice::ReadOnly)) throw HelpError(page.file, "no such picture: " + name);
  const QByteArray bytes = file.readAll();
  if (bytes.size() > largest_picture) throw HelpError(page.file, "a picture too large for a help page: " + name);
  if (QImageReader(file.fileName()).size().width() > widest_picture)
    throw HelpError(page.file, "a picture too wide for a help page: " + name);
  return part("image/png", "base64", name, base64_lines(bytes));
}

} // namespace

QByteArray page_archive(const PageSource& page, const HtmlPage& html) {
  QByteArray archive =
      "Subject: =?utf-8?B?" + html.title.toUtf8().toBase64() +
      "?=\r\nMIME-Version: 1.0\r\nContent-Type: multipart/related; type=\"text/html\";\r\n boundary=\"" + boundary +
      "\"\r\n\r\n";
  archive += part("text/html; charset=\"utf-8\"", "quoted-printable", page.name, quoted_printable(html.html.toUtf8()));
  for (const QString& name : html.pictures) archive += picture_part(page, name);
  return archive + "--" + boundary + "--\r\n";
}

} // namespace cserko
