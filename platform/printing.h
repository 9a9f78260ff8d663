// The printer.
#pragma once

#include "platform/pixel_grid.h"

namespace cserko {

/// The printer, or the file that stands for it, has failed; the text says how, in Hungarian.
class PrintError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One page on its way to the printer.
class PrintJob {
 public:
  virtual ~PrintJob() = default;
  /// What can be printed on, in units of the printer's own.
  virtual Size page() const = 0;
  /// Paints an image to fill a place of the page.
  virtual void image(const PixelImage& image, const Rect& place) = 0;
  /// Ends the document and sends it off. Throws PrintError.
  virtual void finish() = 0;
};

class Printing {
 public:
  virtual ~Printing() = default;
  /// Whether any printer is installed.
  virtual bool available() const = 0;
  /// Lets the user choose a printer in the system's own dialog; null if the user cancels. Throws PrintError.
  virtual std::unique_ptr<PrintJob> start(Window& owner) = 0;
  /// Prints into a PDF file that was chosen in a dialog. Throws PrintError.
  virtual std::unique_ptr<PrintJob> start_pdf(const Text& chosen) = 0;
};

} // namespace cserko
