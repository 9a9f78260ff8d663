#include "platform/qt/qt_printing.h"

#include "platform/qt/qt_images.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_text.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace cserko {

namespace {

class QtPrintJob : public PrintJob {
 public:
  explicit QtPrintJob(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {
    if (!painter_.begin(printer_.get())) throw PrintError("A nyomtató nem érhető el, vagy a fájl nem írható.");
  }

  Size page() const override {
    const QRectF area = printer_->pageRect(QPrinter::DevicePixel);
    return {area.width(), area.height()};
  }

  void image(const PixelImage& image, const Rect& place) override {
    painter_.setRenderHint(QPainter::LosslessImageRendering);
    painter_.drawImage(QRectF(place.left, place.top, place.width, place.height), to_qt(image));
  }

  void finish() override {
    const bool ended = painter_.end();
    if (!ended || printer_->printerState() == QPrinter::Error) throw PrintError("A nyomtatás félbeszakadt.");
  }

 private:
  std::unique_ptr<QPrinter> printer_;
  QPainter painter_; // goes before the printer
};

} // namespace

bool QtPrinting::available() const { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

std::unique_ptr<PrintJob> QtPrinting::start(Window& owner) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  bool accepted = false;
  platform_.stand_before(owner, [&] {
    QPrintDialog dialog(printer.get(), platform_.view_of(owner));
    dialog.setWindowTitle("Nyomtatás");
    accepted = dialog.exec() == QDialog::Accepted;
  });
  if (!accepted) return nullptr;
  return std::make_unique<QtPrintJob>(std::move(printer));
}

std::unique_ptr<PrintJob> QtPrinting::start_pdf(const Text& chosen) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setOutputFormat(QPrinter::PdfFormat);
  printer->setOutputFileName(to_qt(chosen));
  printer->setPageOrientation(QPageLayout::Landscape); // as the drawing lies on the screen
  return std::make_unique<QtPrintJob>(std::move(printer));
}

} // namespace cserko
