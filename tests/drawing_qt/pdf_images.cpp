#include "tests/drawing_qt/pdf_images.h"

#include <QRegularExpression>
#include <cstring>

namespace cserko::test {

namespace {

int number_behind(const QByteArray& head, const char* name) {
  const QRegularExpression form(QString("%1 (\\d+)").arg(name));
  return form.match(QString::fromLatin1(head)).captured(1).toInt();
}

// A zlib stream as Qt takes it, the length in front.
QByteArray inflate(const QByteArray& stream, qsizetype size) {
  QByteArray packed(4, '\0');
  for (int i = 0; i < 4; ++i) packed[i] = static_cast<char>(size >> (8 * (3 - i)) & 0xFF);
  return qUncompress(packed + stream);
}

} // namespace

QList<QImage> pdf_images(const QByteArray& pdf) {
  QList<QImage> images;
  for (qsizetype at = pdf.indexOf("/Subtype /Image"); at >= 0; at = pdf.indexOf("/Subtype /Image", at + 1)) {
    const qsizetype begin = pdf.indexOf("stream\n", at) + 7;
    const qsizetype end = pdf.indexOf("endstream", begin);
    if (begin < at || end < begin) continue;
    const QByteArray head = pdf.mid(at, begin - at);
    const int width = number_behind(head, "/Width");
    const int height = number_behind(head, "/Height");
    const qsizetype size = qsizetype{3} * width * height;
    if (!head.contains("/DeviceRGB") || !head.contains("/FlateDecode")) continue;
    const QByteArray points = inflate(pdf.mid(begin, end - begin), size);
    if (points.size() != size) continue;
    QImage image(width, height, QImage::Format_RGB888);
    for (int y = 0; y < height; ++y)
      std::memcpy(image.scanLine(y), points.constData() + qsizetype{3} * width * y,
                  static_cast<std::size_t>(3) * static_cast<std::size_t>(width));
    images << image;
  }
  return images;
}

} // namespace cserko::test
