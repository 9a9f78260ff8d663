// Small archives for the tests, and pictures to put into them.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QString>
#include <ostream>
#include <vector>

/// Failing tests print texts as texts.
inline void PrintTo(const QString& text, std::ostream* stream) { *stream << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QByteArray& bytes, std::ostream* stream) { *stream << '"' << bytes.toStdString() << '"'; }

namespace cserko::test {

/// Lines as files of the kind have them.
inline QByteArray crlf(QByteArray text) { return text.replace("\n", "\r\n"); }

struct SamplePart {
  QByteArray headers; ///< One a line.
  QByteArray body;
};

inline QByteArray multipart(const QByteArray& boundary, const std::vector<SamplePart>& parts) {
  QByteArray text = "MIME-Version: 1.0\nContent-Type: multipart/related; boundary=\"" + boundary + "\"\n\n";
  for (const SamplePart& part : parts) text += "--" + boundary + "\n" + part.headers + "\n\n" + part.body + "\n";
  return crlf(text + "--" + boundary + "--\n");
}

/// An archive of a page alone.
inline QByteArray page_of(const QByteArray& html) {
  return multipart("xxx", {{"Content-Type: text/html; charset=\"utf-8\"", html}});
}

inline QByteArray png(int width, int height, QColor color) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(color);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

inline SamplePart picture_part(const QByteArray& location, const QByteArray& bytes) {
  return {"Content-Type: image/png\nContent-Transfer-Encoding: base64\nContent-Location: " + location,
          bytes.toBase64()};
}

/// Writes a file and returns its path.
inline QString put_file(const QString& folder, const QString& name, const QByteArray& bytes) {
  const QString path = QDir(folder).filePath(name);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return {};
  return path;
}

} // namespace cserko::test
