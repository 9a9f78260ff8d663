// Finds the images inside a PDF file.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

namespace cserko::test {

/// The colour images of a PDF file that are stored without loss.
QList<QImage> pdf_images(const QByteArray& pdf);

} // namespace cserko::test
